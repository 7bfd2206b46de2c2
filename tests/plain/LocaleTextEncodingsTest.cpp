#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <map>
#include <string>

#include "plain/LocaleTextEncodings.h"

namespace cutline {
namespace {

struct PairRow {
  const char* name;
  TextEncoding encoding;
  std::string utf8;
  std::string bytes;
};

class EncodedPairs : public testing::TestWithParam<PairRow> {
 protected:
  LocaleTextEncodings encodings{"ISO-8859-1"};
};

TEST_P(EncodedPairs, ConvertBothWays) {
  const auto& [name, encoding, utf8, bytes] = GetParam();
  EXPECT_EQ(encodings.encode(utf8, encoding), bytes);
  EXPECT_EQ(encodings.decode(bytes, encoding), utf8);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EncodedPairs,
    testing::Values(PairRow{"EmptyAscii", TextEncoding::ascii, "", ""},
                    PairRow{"Ascii", TextEncoding::ascii, "LxHalfCut", "LxHalfCut"},
                    PairRow{"Utf8", TextEncoding::utf8, "Bänder 라벨", "Bänder 라벨"},
                    PairRow{"Utf8BeyondTheFirstPlane", TextEncoding::utf8, "\xF0\x9F\x8F\xB7",
                            "\xF0\x9F\x8F\xB7"},
                    PairRow{"Utf8ByteOrderMark", TextEncoding::utf8,
                            "\xEF\xBB\xBF"
                            "a",
                            "\xEF\xBB\xBF"
                            "a"},
                    PairRow{"MacRoman", TextEncoding::macRoman, "Bänder", "B\x8Ander"},
                    PairRow{"MacRomanHighest", TextEncoding::macRoman, "ˇ", "\xFF"},
                    PairRow{"System", TextEncoding::system, "Bänder", "B\xE4nder"},
                    PairRow{"Nul", TextEncoding::system, std::string("a\0b", 3),
                            std::string("a\0b", 3)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(LocaleTextEncodings, BytesThatAreNotValidAreNotDecoded) {
  const LocaleTextEncodings encodings("UTF-8");
  EXPECT_FALSE(encodings.decode("B\xE4nder", TextEncoding::ascii));
  EXPECT_FALSE(encodings.decode("B\xE4nder", TextEncoding::utf8));
  EXPECT_FALSE(encodings.decode("\xE2\x82", TextEncoding::utf8));
  EXPECT_FALSE(encodings.decode("\xC0\xAF", TextEncoding::utf8));
  EXPECT_FALSE(encodings.decode("\xED\xA0\x80", TextEncoding::utf8));
  EXPECT_FALSE(encodings.decode("\xFF", TextEncoding::system));
}

TEST(LocaleTextEncodings, TextThatWouldLoseSomethingIsNotEncoded) {
  const LocaleTextEncodings encodings("ISO-8859-1");
  EXPECT_FALSE(encodings.encode("Bänder", TextEncoding::ascii));
  EXPECT_FALSE(encodings.encode("라벨", TextEncoding::macRoman));
  EXPECT_FALSE(encodings.encode("라벨", TextEncoding::system));
  EXPECT_FALSE(encodings.encode("Ａ", TextEncoding::system));  // no full-width to plain letter
  EXPECT_FALSE(encodings.encode("\xFF", TextEncoding::utf8));
}

TEST(LocaleTextEncodings, InvisibleCharactersAreNotDroppedWhereAnEncodingLacksThem) {
  const LocaleTextEncodings encodings("ISO-8859-1");
  EXPECT_EQ(encodings.encode("\u00AD", TextEncoding::system), "\xAD");
  for (const char* text : {"\u00AD", "\u200B", "a\u200Db", "\u2060", "\uFE0F"}) {
    EXPECT_FALSE(encodings.encode(text, TextEncoding::ascii)) << text;
    EXPECT_FALSE(encodings.encode(text, TextEncoding::macRoman)) << text;
  }
  EXPECT_FALSE(encodings.encode("\u200B", TextEncoding::system));
}

TEST(LocaleTextEncodings, AnErrorDoesNotSpoilTheNextConversion) {
  const LocaleTextEncodings encodings("ISO-2022-JP");
  EXPECT_FALSE(encodings.encode("日\xFF", TextEncoding::system));
  EXPECT_FALSE(encodings.decode("\x1B$B\x46", TextEncoding::system));
  EXPECT_EQ(encodings.decode("plain", TextEncoding::system), "plain");
  EXPECT_EQ(encodings.encode("plain", TextEncoding::system), "plain");
}

TEST(LocaleTextEncodings, MultibyteSystemEncodingsCountTheirBytes) {
  const LocaleTextEncodings encodings("EUC-KR");
  const auto bytes = encodings.encode("라벨", TextEncoding::system);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), 4U);
  EXPECT_EQ(encodings.decode(*bytes, TextEncoding::system), "라벨");
}

TEST(LocaleTextEncodings, UTF8TakesThePlaceOfASystemCodesetThatIsNotKnown) {
  for (const char* codeset : {"", "no-such", "utf", "ISO-8859-1//IGNORE"}) {
    const LocaleTextEncodings encodings(codeset);
    EXPECT_EQ(encodings.decode("WN", TextEncoding::system), "WN") << codeset;
    EXPECT_EQ(encodings.decode("Bänder", TextEncoding::system), "Bänder") << codeset;
    EXPECT_EQ(encodings.encode("라벨", TextEncoding::system), "라벨") << codeset;
    EXPECT_FALSE(encodings.decode("B\xE4nder", TextEncoding::system)) << codeset;
    EXPECT_FALSE(encodings.encode("ä", TextEncoding::ascii)) << codeset;
  }
}

TEST(LocaleTextEncodings, KnowTheCodesetsOfLocales) {
  for (const char* codeset : {"ARMSCII-8", "KOI8-R", "KOI8-T", "PT154", "TCVN5712-1", "GB18030"}) {
    const LocaleTextEncodings encodings(codeset);
    EXPECT_EQ(encodings.decode("WN", TextEncoding::system), "WN") << codeset;
    EXPECT_FALSE(encodings.encode("\xFF", TextEncoding::system)) << codeset;
  }
  EXPECT_EQ(LocaleTextEncodings("KOI8-R").decode("\xC1", TextEncoding::system), "а");
}

TEST(LocaleTextEncodings, MacRomanHasACharacterForEachByte) {
  const LocaleTextEncodings encodings("UTF-8");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const auto text = encodings.decode(bytes, TextEncoding::macRoman);
    ASSERT_TRUE(text) << byte;
    EXPECT_EQ(encodings.encode(*text, TextEncoding::macRoman), bytes) << *text;
  }
  EXPECT_EQ(encodings.decode("\xC6\xDB\xF0", TextEncoding::macRoman), "∆€\uF8FF");
  EXPECT_FALSE(encodings.encode("Δ", TextEncoding::macRoman)) << "the Greek letter";
  EXPECT_FALSE(encodings.encode("¤", TextEncoding::macRoman));
}

TEST(LocaleTextEncodings, OffersEachEncodingOnce) {
  auto offered = LocaleTextEncodings("UTF-8").availableStringEncodings();
  std::sort(offered.begin(), offered.end());
  EXPECT_EQ(offered, (std::vector<TextEncoding>{TextEncoding::ascii, TextEncoding::utf8,
                                                TextEncoding::macRoman, TextEncoding::system}));
}

TEST(LocaleTextEncodings, ConvertsLongTexts) {
  const LocaleTextEncodings encodings("UTF-8");
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "라";
  EXPECT_EQ(encodings.decode(text, TextEncoding::utf8), text);
}

struct CodesetRow {
  const char* name;
  std::map<std::string, std::string> variables;
  std::string codeset;
};

class UserLocaleCodesets : public testing::TestWithParam<CodesetRow> {
 protected:
  void SetUp() override {
    for (const char* name : kNames) {
      const char* value = getenv(name);
      if (value) mBefore[name] = value;
      unsetenv(name);
    }
    for (const auto& [name, value] : GetParam().variables) setenv(name.c_str(), value.c_str(), 1);
  }
  void TearDown() override {
    for (const char* name : kNames) unsetenv(name);
    for (const auto& [name, value] : mBefore) setenv(name.c_str(), value.c_str(), 1);
  }

 private:
  static constexpr const char* kNames[] = {"LC_ALL", "LC_CTYPE", "LANG"};
  std::map<std::string, std::string> mBefore;
};

TEST_P(UserLocaleCodesets, AreRead) { EXPECT_EQ(codesetOfUserLocale(), GetParam().codeset); }

INSTANTIATE_TEST_SUITE_P(
    Rows, UserLocaleCodesets,
    testing::Values(
        CodesetRow{"Nothing", {}, "UTF-8"}, CodesetRow{"C", {{"LANG", "C"}}, "UTF-8"},
        CodesetRow{"Posix", {{"LC_ALL", "POSIX"}}, "UTF-8"},
        CodesetRow{"InstalledLocale", {{"LANG", "C.UTF-8"}}, "UTF-8"},
        CodesetRow{"LocaleThatIsNotInstalled", {{"LANG", "xx_XX.ISO-8859-1@euro"}}, "ISO-8859-1"},
        CodesetRow{
            "AllBeforeLang", {{"LANG", "xx_XX.ISO-8859-1"}, {"LC_ALL", "xx_XX.EUC-KR"}}, "EUC-KR"},
        CodesetRow{"NameWithoutCodeset", {{"LANG", "xx_XX"}}, "UTF-8"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace cutline
