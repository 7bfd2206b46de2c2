#include <gtest/gtest.h>

#include <string>

#include "base/CharacterSet.h"

namespace cutline {
namespace {

constexpr CharacterSet kBlanks(" \t");
constexpr CharacterSet kBeyondAscii =
    CharacterSet::of([](char c) { return static_cast<unsigned char>(c) >= 0x80; });

TEST(CharacterSet, ItHasWhatItIsMadeOf) {
  EXPECT_TRUE(kBlanks.has(' '));
  EXPECT_TRUE(kBlanks.has('\t'));
  EXPECT_FALSE(kBlanks.has('a'));
  EXPECT_FALSE(kBlanks.has('\0'));
  EXPECT_TRUE(kBeyondAscii.has('\xff'));
  EXPECT_FALSE(kBeyondAscii.has('\x7f'));
}

TEST(CharacterSet, TextsAreSearchedForIt) {
  EXPECT_EQ(kBlanks.firstIn("ab c"), 2U);
  EXPECT_EQ(kBlanks.firstIn("abc"), 3U);
  EXPECT_EQ(kBlanks.firstIn(""), 0U);
  EXPECT_EQ(kBlanks.firstNotIn(" \tc "), 2U);
  EXPECT_EQ(kBlanks.firstNotIn("  "), 2U);
  EXPECT_TRUE(kBlanks.hasAll(" \t "));
  EXPECT_TRUE(kBlanks.hasAll(""));
  EXPECT_FALSE(kBlanks.hasAll(" a"));
}

TEST(CharacterSet, ItIsTakenFromBothEnds) {
  EXPECT_EQ(kBlanks.trimmed(" a b\t"), "a b");
  EXPECT_EQ(kBlanks.trimmed("a"), "a");
  EXPECT_EQ(kBlanks.trimmed(" \t "), "");
  EXPECT_EQ(kBlanks.trimmed(""), "");
}

}  // namespace
}  // namespace cutline
