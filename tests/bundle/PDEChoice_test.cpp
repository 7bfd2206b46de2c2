#include "bundle/ppd/PDEChoice.h"

#include <gtest/gtest.h>

#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"

namespace cutline::test {
namespace {

class PDEChoiceTest : public testing::Test {
 protected:
  void open(const PpdText& text) { ppd = text.open(); }
  ppd_option_t* option(const char* keyword) { return ppdFindOption(ppd.get(), keyword); }
  std::unique_ptr<PDEChoice> choice(const char* keyword, int index) {
    return PDEChoice::choiceWithChoice(&option(keyword)->choices[index]);
  }

  TestPlatform platform;
  OpenPpd ppd;
};

TEST_F(PDEChoiceTest, WrapsTheRecordAndReadsItsTitles) {
  open(PpdText().option("LxHalfCut", {{"OFF", "Nein"}, {"ON", "Schön"}}, "OFF"));
  const auto second = choice("LxHalfCut", 1);
  EXPECT_EQ(second->choice(), &option("LxHalfCut")->choices[1]);
  EXPECT_EQ(second->ppdTitle(), "ON");
  EXPECT_EQ(second->userTitle(), "Schön");
}

TEST_F(PDEChoiceTest, TitlesAreReadOnceAndKept) {
  open(PpdText().option("LxHalfCut", {{"OFF", "Off"}, {"ON", "On"}}, "OFF"));
  const auto first = choice("LxHalfCut", 0);
  ASSERT_EQ(first->userTitle(), "Off");
  ASSERT_EQ(first->ppdTitle(), "OFF");
  first->choice()->text[0] = 'X';
  first->choice()->choice[0] = 'X';
  EXPECT_EQ(first->userTitle(), "Off");
  EXPECT_EQ(first->ppdTitle(), "OFF");
}

// libcups may cut a long text within a character, and takes a damaged one as it is.
TEST_F(PDEChoiceTest, AUserTitleThatIsNoUTF8IsNilAndTriedAgain) {
  open(PpdText().option("LxHalfCut", {{"OFF", "x\xC3"}, {"ON", "On"}}, "OFF"));
  const auto first = choice("LxHalfCut", 0);
  ASSERT_EQ(first->userTitle(), std::nullopt);
  first->choice()->text[1] = '\0';
  EXPECT_EQ(first->userTitle(), "x");
}

TEST_F(PDEChoiceTest, AKeywordThatIsNotASCIIHasNoPPDTitle) {
  open(PpdText().onOff("LxHalfCut"));
  const auto first = choice("LxHalfCut", 0);
  first->choice()->choice[0] = '\xC3';
  EXPECT_EQ(first->ppdTitle(), std::nullopt);
}

TEST_F(PDEChoiceTest, TheDefaultChoiceIsTheOneThatThePPDNames) {
  open(PpdText().onOff("LxHalfCut", "ON").onOff("LxMirror", ""));
  EXPECT_FALSE(choice("LxHalfCut", 0)->isDefaultChoice());
  EXPECT_TRUE(choice("LxHalfCut", 1)->isDefaultChoice());
  EXPECT_FALSE(choice("LxMirror", 0)->isDefaultChoice());
}

TEST_F(PDEChoiceTest, TheDefaultIsComparedOverFortyOneBytes) {
  open(PpdText().onOff("LxHalfCut"));
  ppd_option_t* record = option("LxHalfCut");
  ppd_choice_t* first = &record->choices[0];
  // Both fields hold 41 bytes: full ones have no NUL, and what follows them must not count.
  std::fill_n(record->defchoice, sizeof record->defchoice, 'a');
  std::fill_n(first->choice, sizeof first->choice, 'a');
  EXPECT_TRUE(PDEChoice::choiceWithChoice(first)->isDefaultChoice());
  first->choice[40] = 'b';
  EXPECT_FALSE(PDEChoice::choiceWithChoice(first)->isDefaultChoice());
  first->choice[40] = '\0';
  record->defchoice[40] = '\0';
  EXPECT_TRUE(PDEChoice::choiceWithChoice(first)->isDefaultChoice());
}

TEST_F(PDEChoiceTest, DescribesItselfWithPositionAndMark) {
  open(PpdText().option("LxTape", {{"A", "First"}, {"B", "Second"}, {"C", "Third"}}, "B"));
  const auto second = choice("LxTape", 1);
  const std::string text = second->description();
  EXPECT_TRUE(text.starts_with("<PDEChoice 0x")) << text;
  const std::string end = " userTitle:\"Second\" ppdTitle:\"B\" marked:YES choice:2 of 3>";
  EXPECT_TRUE(text.ends_with(end)) << text;
  EXPECT_TRUE(choice("LxTape", 2)->description().ends_with("marked:NO choice:3 of 3>"));
}

TEST_F(PDEChoiceTest, NoRecordReadsAsNothing) {
  const auto none = PDEChoice::choiceWithChoice(nullptr);
  EXPECT_FALSE(none->userTitle());
  EXPECT_FALSE(none->ppdTitle());
  EXPECT_FALSE(none->isDefaultChoice());
  EXPECT_TRUE(none->description().ends_with("marked:NO choice:0 of 0>"));
}

TEST_F(PDEChoiceTest, WithoutEncodingsThereAreNoTitles) {
  open(PpdText().onOff("LxHalfCut"));
  const auto first = choice("LxHalfCut", 0);
  platform.dropTextEncodings();
  EXPECT_FALSE(first->userTitle());
  EXPECT_FALSE(first->ppdTitle());
}

}  // namespace
}  // namespace cutline::test
