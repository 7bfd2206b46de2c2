#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/Utf16.h"

namespace cutline {
namespace {

const std::u16string kHigh(1, char16_t{0xD83D});
const std::u16string kLow(1, char16_t{0xDE00});

struct Pair {
  std::string utf8;
  std::u16string utf16;
};

TEST(Utf16, ConvertsBothWays) {
  const std::vector<Pair> pairs = {
      {"", u""},
      {"abc", u"abc"},
      {std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
      {"\x7F\xC2\x80", u"\u007F\u0080"},
      {"\xDF\xBF\xE0\xA0\x80", u"\u07FF\u0800"},
      {"é ß € Ω あ", u"é ß € Ω あ"},
      {"\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\uD7FF\uE000\uFFFF"},
      {"\xF0\x90\x80\x80", u"\U00010000"},
      {"\xF0\x9F\x98\x80!", kHigh + kLow + u"!"},
      {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
  };
  for (const auto& [utf8, utf16] : pairs) {
    EXPECT_EQ(utf8FromUtf16(utf16), utf8);
    EXPECT_EQ(utf16FromUtf8(utf8), utf16) << utf8;
    EXPECT_TRUE(isWellFormedUtf16(utf16)) << utf8;
  }
}

TEST(Utf16, EveryCharacterComesBack) {
  for (std::uint32_t c = 0; c <= 0x10FFFF; c += c < 0x3000 ? 1 : 97) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    std::u16string units;
    if (c < 0x10000) {
      units += static_cast<char16_t>(c);
    } else {
      units += static_cast<char16_t>(0xD7C0 + (c >> 10U));
      units += static_cast<char16_t>(0xDC00 + (c & 0x3FFU));
    }
    EXPECT_EQ(utf16FromUtf8(utf8FromUtf16(units)), units) << c;
  }
}

TEST(Utf16, ASurrogateWithoutItsOtherHalfIsReplaced) {
  for (const std::u16string& text : {kHigh, kLow}) {
    EXPECT_FALSE(isWellFormedUtf16(text));
    EXPECT_EQ(utf8FromUtf16(text), "\uFFFD");
  }
  EXPECT_EQ(utf8FromUtf16(u"a" + kHigh + u"b"), "a\uFFFDb");
  EXPECT_EQ(utf8FromUtf16(kLow + kHigh), "\uFFFD\uFFFD");
  EXPECT_EQ(utf8FromUtf16(kHigh + kHigh + kLow), "\uFFFD\xF0\x9F\x98\x80");
  EXPECT_FALSE(isWellFormedUtf16(kHigh + kLow + kLow));
}

TEST(Utf16, EachByteThatIsPartOfNoCharacterIsReplaced) {
  const std::vector<Pair> pairs = {
      {"a\xFFz", u"a\uFFFDz"},
      {"\x80", u"\uFFFD"},
      {"\xC3", u"\uFFFD"},
      {"\xC0\xAF", u"\uFFFD\uFFFD"},
      {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},
      {"\xE2\x82z", u"\uFFFD\uFFFDz"},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xF8\x88\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
  };
  for (const auto& [utf8, utf16] : pairs) EXPECT_EQ(utf16FromUtf8(utf8), utf16);
}

}  // namespace
}  // namespace cutline
