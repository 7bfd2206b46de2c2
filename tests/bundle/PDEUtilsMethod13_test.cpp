#include "bundle/ppd/PDEUtilsMethod13.h"

#include <gtest/gtest.h>

#include "platform/ports/Controls.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"

namespace cutline::test {
namespace {

using Utils = PDEUtilsMethod13;

class PDEUtilsTest : public testing::Test {
 protected:
  void open(const PpdText& text) { ppd = text.open(); }

  TestPlatform platform;
  OpenPpd ppd;
};

TEST_F(PDEUtilsTest, RunsOnEverySystem) { EXPECT_TRUE(Utils::runningOn105OrLater()); }

TEST_F(PDEUtilsTest, ReadsAttributes) {
  open(PpdText().attribute("LxTapeType", "WN").attribute("LxEmpty", ""));
  EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "LxTapeType"), "WN");
  EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "LxEmpty").value_or(""), "");
  EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "LxMissing"), std::nullopt);
  EXPECT_EQ(Utils::ppdAttrValStr(nullptr, "LxTapeType"), std::nullopt);
}

TEST_F(PDEUtilsTest, AnAttributeThatCannotBeDecodedIsNil) {
  open(PpdText().attribute("LxTapeType", "W\xFFN"));
  EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "LxTapeType"), std::nullopt);
}

TEST_F(PDEUtilsTest, ReadsTheTextOfAnOption) {
  open(PpdText().onOff("LxHalfCut", "OFF", "Half Cut"));
  EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "LxHalfCut"), "Half Cut");
  EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "LxMirror"), std::nullopt);
  EXPECT_EQ(Utils::ppdOptionTextStr(nullptr, "LxHalfCut"), std::nullopt);
}

TEST_F(PDEUtilsTest, AnItemIsSupportedExactlyOnFalse) {
  const std::vector<std::pair<std::string, bool>> expected = {
      {"False", true}, {"True", false}, {"false", false}, {"", false}, {"False ", false}};
  for (const auto& [value, supported] : expected) {
    open(PpdText().attribute("LxAutoCutObjHidden", value));
    EXPECT_EQ(Utils::isSupportedItem(ppd.get(), "LxAutoCutObjHidden"), supported) << value;
  }
  open(PpdText());
  EXPECT_FALSE(Utils::isSupportedItem(ppd.get(), "LxAutoCutObjHidden"));
  EXPECT_FALSE(Utils::isSupportedItem(nullptr, "LxAutoCutObjHidden"));
}

TEST_F(PDEUtilsTest, ReadsAPoint) {
  const std::vector<std::pair<std::string, Point>> expected = {
      {"{12, 34}", {12, 34}}, {"{-1.5,+2.25}", {-1.5, 2.25}},
      {"7 8", {7, 8}},        {"{3}", {3, 0}},
      {"nothing", {0, 0}},    {"", {0, 0}}};
  for (const auto& [value, point] : expected) {
    open(PpdText().attribute("LxOrigin", value));
    EXPECT_EQ(Utils::originItem(ppd.get(), "LxOrigin"), point) << value;
  }
  EXPECT_EQ(Utils::originItem(ppd.get(), "LxMissing"), Point());
}

TEST_F(PDEUtilsTest, AChoiceListHasEveryChoiceInThePPDsOrder) {
  open(PpdText().option("LxTape", {"C", "A", "B"}, "A"));
  const auto choices = Utils::arrayFromPPDOption(ppdFindOption(ppd.get(), "LxTape"));
  ASSERT_TRUE(choices);
  ASSERT_EQ(choices->size(), 3U);
  EXPECT_EQ((*choices)[0]->ppdTitle(), "C");
  EXPECT_EQ((*choices)[1]->ppdTitle(), "A");
  EXPECT_EQ((*choices)[2]->ppdTitle(), "B");
}

TEST_F(PDEUtilsTest, NoOptionHasNoListAndAnEmptyOneAnEmptyList) {
  EXPECT_FALSE(Utils::arrayFromPPDOption(nullptr));
  open(PpdText().option("LxTape", {}, ""));
  const auto choices = Utils::arrayFromPPDOption(ppdFindOption(ppd.get(), "LxTape"));
  ASSERT_TRUE(choices);
  EXPECT_TRUE(choices->empty());
}

TEST_F(PDEUtilsTest, FindsAChoiceByItsKeyword) {
  open(PpdText().option("LxTape", {"A", "B", "C"}, "B"));
  const auto choices = Utils::arrayFromPPDOption(ppdFindOption(ppd.get(), "LxTape"));
  EXPECT_EQ(Utils::findChoiceForString("C", choices.get()), (*choices)[2].get());
  EXPECT_EQ(Utils::findChoiceForString("c", choices.get()), nullptr);
  EXPECT_EQ(Utils::findChoiceForString("", choices.get()), nullptr);
  EXPECT_EQ(Utils::findChoiceForString("A", nullptr), nullptr);
}

TEST_F(PDEUtilsTest, NoKeywordFindsTheDefaultWhateverIsMarked) {
  open(PpdText().option("LxTape", {"A", "B", "C"}, "B"));
  ppdMarkOption(ppd.get(), "LxTape", "C");
  const auto choices = Utils::arrayFromPPDOption(ppdFindOption(ppd.get(), "LxTape"));
  EXPECT_EQ(Utils::findChoiceForString(std::nullopt, choices.get()), (*choices)[1].get());
}

TEST_F(PDEUtilsTest, ATitleThatCannotBeDecodedMatchesNothing) {
  open(PpdText().option("LxTape", {"A", "B"}, "B"));
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxTape");
  option->choices[0].choice[0] = '\xFF';
  const auto choices = Utils::arrayFromPPDOption(option);
  EXPECT_EQ(Utils::findChoiceForString("A", choices.get()), nullptr);
  EXPECT_EQ(Utils::findChoiceForString("B", choices.get()), (*choices)[1].get());
}

TEST_F(PDEUtilsTest, TitlesAreReadAsUTF8) {
  open(PpdText().option("LxTape", {{"A", "Über"}}, "A", "Bänder"));
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxTape");
  EXPECT_EQ(Utils::newOptionTitle(option), "Bänder");
  EXPECT_EQ(Utils::newChoiceTitle(&option->choices[0]), "Über");
  option->text[0] = '\xFF';
  EXPECT_EQ(Utils::newOptionTitle(option), std::nullopt);
  EXPECT_EQ(Utils::newOptionTitle(nullptr), std::nullopt);
  EXPECT_EQ(Utils::newChoiceTitle(nullptr), std::nullopt);
}

TEST_F(PDEUtilsTest, OnlyTheFlagOneGivesTheEnabledTextColour) {
  const auto label = platform.toolkit.createLabel({});
  for (const auto& [flag, colour] :
       std::vector<std::pair<int, TextColor>>{{1, TextColor::controlText},
                                              {0, TextColor::disabledControlText},
                                              {2, TextColor::disabledControlText},
                                              {-1, TextColor::disabledControlText}}) {
    Utils::setEnabledForText(flag, label.get());
    EXPECT_EQ(label->textColor(), colour) << flag;
  }
}

TEST_F(PDEUtilsTest, AControlWithoutATextColourIsLeftAlone) {
  const auto box = platform.toolkit.createCheckBox({});
  Utils::setEnabledForText(0, box.get());
  EXPECT_TRUE(box->isEnabled());
  Utils::setEnabledForText(0, nullptr);
}

TEST_F(PDEUtilsTest, CountsTheBytesInTheSystemEncoding) {
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding(std::nullopt), 0U);
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("abc"), 3U);
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("äö"), 4U);
}

TEST_F(PDEUtilsTest, CountsASystemsMultiByteEncoding) {
  TestPlatform japanese("Shift_JIS");
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("あい"), 4U);
}

TEST_F(PDEUtilsTest, FallsBackToTheFirstEncodingThatCanCarryTheString) {
  TestPlatform american("US-ASCII");
  ASSERT_FALSE(american.encodings.encode("ä", TextEncoding::system));
  std::size_t expected = 0;
  for (const TextEncoding encoding : american.encodings.availableStringEncodings()) {
    const auto bytes = american.encodings.encode("ä", encoding);
    if (bytes) expected = bytes->size();
    if (bytes) break;
  }
  ASSERT_GT(expected, 0U);
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("ä"), expected);
}

TEST_F(PDEUtilsTest, CountsNothingWhenNoEncodingCanCarryTheString) {
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("\xFF"), 0U);
  platform.dropTextEncodings();
  EXPECT_EQ(Utils::stringLengthConvertedToEncoding("abc"), 0U);
}

TEST_F(PDEUtilsTest, ScansForAPattern) {
  EXPECT_TRUE(Utils::scanString("one two", "two"));
  EXPECT_TRUE(Utils::scanString("one", "one"));
  EXPECT_FALSE(Utils::scanString("one", "One"));
  EXPECT_FALSE(Utils::scanString("one", "ones"));
  EXPECT_FALSE(Utils::scanString("", "one"));
  EXPECT_FALSE(Utils::scanString("", ""));
  EXPECT_FALSE(Utils::scanString("one", ""));
  // The composed letter is not the decomposed one: the search is literal.
  EXPECT_FALSE(Utils::scanString("\xC3\xA4", "a\xCC\x88"));
}

TEST_F(PDEUtilsTest, DeletesTheFirstOccurrence) {
  EXPECT_EQ(Utils::deleteString("abcabc", "bc"), "aabc");
  EXPECT_EQ(Utils::deleteString("abc", "abc"), "");
  EXPECT_EQ(Utils::deleteString("abc", "x"), std::nullopt);
  EXPECT_EQ(Utils::deleteString("", "x"), std::nullopt);
}

}  // namespace
}  // namespace cutline::test
