// Every text style against every character of ASCII, and against samples beyond.
#include <climits>

#include "bundle/textinput/CharacterSet.h"
#include "tests/bundle/FormatterTest.h"
#include "tests/support/VettingModel.h"

namespace cutline::test {
namespace {

const std::u16string kHighSurrogate(1, char16_t{0xD83D});
const std::u16string kLowSurrogate(1, char16_t{0xDE00});

class TextStyles : public FormatterTest, public testing::WithParamInterface<int> {
 protected:
  TextStyles() { useStyle(GetParam()); }
};

TEST_P(TextStyles, TakeOfAsciiWhatIsSpelledOut) {
  const auto taken = charactersOfStyle(GetParam());
  for (char16_t c = 0; c < 128; ++c) {
    const bool isTaken = !taken || taken->find(static_cast<char>(c)) != taken->npos;
    EXPECT_EQ(type(u"", {c}), isTaken) << "character " << int{c};
    if (isTaken) continue;
    EXPECT_EQ(lastName(), "InvalidCharacterNotification");
    EXPECT_EQ(lastObject(), formatterItself());
  }
}

TEST_P(TextStyles, TakeBeyondAsciiAllOrNothing) {
  // In Mac Roman, which alone is not enough.
  for (const char16_t* text : {u"é", u"ß", u"€", u"Ω", u"\u00A0", u"ﬁ", u"aé", u"1€"}) {
    EXPECT_EQ(type(u"", text), GetParam() == 0);
    if (GetParam() == 0) continue;
    EXPECT_EQ(lastObject(), formatterItself());
  }
}

struct Sample {
  std::u16string text;
  std::string lastCharacter;
};

TEST_P(TextStyles, TakeNothingBeyondMacRomanAndNameIt) {
  const std::vector<Sample> samples = {
      {u"あ", "あ"},
      {u"１", "１"},           // a digit, but of full width
      {u"٣", "٣"},             // a digit, but an Arabic one
      {u"²", "²"},             // a digit, but a superscript
      {u"e\u0301", "\u0301"},  // a letter and its accent
      {u"\u00AD", "\u00AD"},   // invisible
      {u"1\u200B", "\u200B"},  // invisible
      {u"あ1", "1"},           // the whole is judged, the last is named
      {u"😀", "\uFFFD"},        // the last is half a pair
      {kHighSurrogate, "\uFFFD"},
      {kLowSurrogate, "\uFFFD"},
  };
  for (const auto& [text, lastCharacter] : samples) {
    EXPECT_EQ(type(u"", text), GetParam() == 0) << lastCharacter;
    if (GetParam() == 0) continue;
    EXPECT_EQ(lastName(), "InvalidCharacterNotification");
    EXPECT_EQ(lastObject(), characterAsObject(lastCharacter));
  }
}

INSTANTIATE_TEST_SUITE_P(EachNumber, TextStyles,
                         testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 100,
                                         INT_MAX, -1, -2, INT_MIN));

TEST(TextStylesSpelledOut, StyleElevenLeavesOutWhatItsPrinterCannot) {
  EXPECT_EQ(charactersOfStyle(11)->find_first_of("&#@[]{}\\^`|~$"), std::string::npos);
}

TEST(CharacterSet, HoldsWhatItWasGivenAndNothingBeyondAscii) {
  constexpr CharacterSet kSet = CharacterSet::range('a', 'c') | CharacterSet("+0");
  for (int c = 0; c <= 0xFFFF; ++c) {
    const bool isIn = c == 'a' || c == 'b' || c == 'c' || c == '+' || c == '0';
    EXPECT_EQ(kSet.contains(static_cast<char16_t>(c)), isIn) << c;
  }
  EXPECT_FALSE(CharacterSet().contains(u'a'));
  EXPECT_TRUE(CharacterSet::range('\x00', '\x7F').contains(u'\x7F'));
}

}  // namespace
}  // namespace cutline::test
