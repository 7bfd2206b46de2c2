#include <gtest/gtest.h>

#include "base/Transcoding.h"

namespace cutline {
namespace {

TEST(Transcoding, ChangesTheBytesOfATextAndNotWhatItSays) {
  EXPECT_EQ(transcoded("B\xE4nder", "ISO-8859-1", "UTF-8"), "Bänder");
  EXPECT_EQ(transcoded("Bänder", "UTF-8", "ISO-8859-1"), "B\xE4nder");
  EXPECT_EQ(transcoded("\xB6\xF3\xBA\xA7", "EUC-KR", "UTF-8"), "라벨");
  EXPECT_EQ(transcoded("", "ISO-8859-1", "UTF-8"), "");
}

TEST(Transcoding, BringsATextWithStatesBackToTheFirst) {
  EXPECT_EQ(transcoded("日", "UTF-8", "ISO-2022-JP"), "\x1B$BF|\x1B(B");
}

TEST(Transcoding, TakesTextsOfAnyLength) {
  std::string latin;
  std::string utf8;
  for (int i = 0; i < 100'000; ++i) {
    latin += '\xE4';
    utf8 += "ä";
  }
  EXPECT_EQ(transcoded(latin, "ISO-8859-1", "UTF-8"), utf8);
  EXPECT_EQ(transcoded(utf8, "UTF-8", "ISO-8859-1"), latin);
}

TEST(Transcoding, ReplacesNothing) {
  EXPECT_FALSE(transcoded("B\xE4nder", "US-ASCII", "UTF-8"));
  EXPECT_FALSE(transcoded("\xE2\x82", "UTF-8", "UTF-16LE")) << "cut off";
  EXPECT_FALSE(transcoded("\xED\xA0\x80", "UTF-8", "UTF-16LE")) << "half of a pair";
  EXPECT_FALSE(transcoded("라", "UTF-8", "ISO-8859-1"));
}

TEST(Transcoding, KnowsNotEachEncoding) {
  EXPECT_FALSE(transcoded("a", "no-such", "UTF-8"));
  EXPECT_FALSE(transcoded("a", "UTF-8", "no-such"));
  EXPECT_FALSE(transcoded("a", "", "UTF-8"));
  EXPECT_FALSE(transcoded("라", "UTF-8", "ISO-8859-1//TRANSLIT"));
}

}  // namespace
}  // namespace cutline
