#include <cups/ppd.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "cups/PpdFile.h"
#include "tests/cups/Fixtures.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using test::fixturePath;
using test::fixtureText;
using test::replaced;
using test::TemporaryFolder;

class PpdFileTest : public testing::Test {
 protected:
  static std::shared_ptr<PpdFile> opened(const std::string& path) {
    auto ppd = PpdFile::open(path);
    if (!ppd) throw std::runtime_error(ppd.error().message);
    (*ppd)->mark({});
    return *ppd;
  }
  std::shared_ptr<PpdFile> openedText(const std::string& text) const {
    return opened(mFolder.write("x.ppd", text));
  }
  std::string problemOf(const std::string& text) const {
    const auto ppd = PpdFile::open(mFolder.write("x.ppd", text));
    return ppd ? "opened" : ppd.error().message;
  }

  TemporaryFolder mFolder;
  std::shared_ptr<PpdFile> mTape = opened(fixturePath("tape.ppd"));
};

TEST_F(PpdFileTest, AMissingFileIsNamedWithTheReason) {
  const auto ppd = PpdFile::open("/nowhere/x.ppd");
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.error().message,
            "cannot open the PPD \"/nowhere/x.ppd\": No such file or directory");
}

TEST_F(PpdFileTest, AFolderIsNoPpd) {
  const auto ppd = PpdFile::open("/tmp");
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.error().message, "cannot open the PPD \"/tmp\": it is a folder");
}

TEST_F(PpdFileTest, AFileThatIsNoPpdIsNamedWithTheLine) {
  const std::string path = mFolder.path() + "/x.ppd";
  EXPECT_EQ(problemOf("hello\n"),
            "cannot use the PPD \"" + path + "\": line 1: Missing asterisk in column 1");
  EXPECT_EQ(problemOf(""), "cannot use the PPD \"" + path + "\": Missing PPD-Adobe-4.x header");
}

TEST_F(PpdFileTest, ATooLongNameIsExplained) {
  const std::string keyword(40, 'K');
  const std::string problem = problemOf(replaced(fixtureText("tape.ppd"), "Darkness", keyword));
  EXPECT_NE(problem.find("line 81: the name \"*" + keyword +
                         "\" has 41 bytes, and a PPD's names have at most 40"),
            std::string::npos)
      << problem;
  const std::string choice(41, 'C');
  const std::string other =
      problemOf(replaced(fixtureText("tape.ppd"), " Light/", ' ' + choice + '/'));
  EXPECT_NE(other.find("line 84: the name \"" + choice + "\" has 41 bytes"), std::string::npos)
      << other;
}

TEST_F(PpdFileTest, DefaultsAreMarkedFirstAndLaterLayersWin) {
  EXPECT_EQ(mTape->markedChoice("LxHalfCut"), "OFF");
  mTape->mark({{{"LxHalfCut", "ON"}, {"Darkness", "Dark"}}, {{"Darkness", "Light"}}});
  EXPECT_EQ(mTape->markedChoice("LxHalfCut"), "ON");
  EXPECT_EQ(mTape->markedChoice("Darkness"), "Light");
  mTape->mark({});
  EXPECT_EQ(mTape->markedChoice("LxHalfCut"), "OFF");
}

TEST_F(PpdFileTest, MarkingIgnoresCaseAndLeavesUnknownNamesAlone) {
  mTape->mark({{{"LxHalfCut", "on"}, {"Nope", "ON"}, {"Darkness", "Purple"}}});
  EXPECT_EQ(mTape->markedChoice("LxHalfCut"), "ON");
  EXPECT_EQ(mTape->markedChoice("Darkness"), "Normal");
  EXPECT_EQ(mTape->markedChoice("Nope"), "");
}

TEST_F(PpdFileTest, OneChoiceIsMarkedOverTheOthers) {
  mTape->mark({{{"Darkness", "Dark"}}});
  mTape->markChoice("LxHalfCut", "ON");
  mTape->markChoice("LxHalfCut", "MAYBE");
  mTape->markChoice("Nope", "ON");
  EXPECT_EQ(mTape->markedChoice("LxHalfCut"), "ON");
  EXPECT_EQ(mTape->markedChoice("Darkness"), "Dark");
}

TEST_F(PpdFileTest, MarkedOptionsComeInThePpdsOrderWithoutInstallableOnes) {
  mTape->mark({{{"Cutter", "False"}, {"LxSpecialTape", "ON"}}});
  const OptionList expected{{"PageSize", "W24H100"},
                            {"LxHalfCut", "OFF"},
                            {"LxSpecialTape", "ON"},
                            {"Darkness", "Normal"}};
  EXPECT_EQ(mTape->markedOptions(), expected);
}

TEST_F(PpdFileTest, WhatIsAtItsDefaultCountsWhereItIsAskedFor) {
  mTape->mark({{{"LxSpecialTape", "ON"}}});
  EXPECT_EQ(mTape->markedBesideDefaults({}), (OptionList{{"LxSpecialTape", "ON"}}));
  EXPECT_EQ(mTape->markedBesideDefaults({"Darkness", "Cutter"}),
            (OptionList{{"LxSpecialTape", "ON"}, {"Darkness", "Normal"}}));
}

TEST_F(PpdFileTest, SeveralChoicesAreNoDefaultThoughItIsAmongThem) {
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "*Darkness/Darkness: PickOne",
                                       "*Darkness/Darkness: PickMany"));
  EXPECT_TRUE(ppd->markedBesideDefaults({}).empty());
  ppd->markChoice("Darkness", "Dark");
  EXPECT_EQ(ppd->markedBesideDefaults({}), (OptionList{{"Darkness", "Normal,Dark"}}));
}

// Its measures are not the default's.
TEST_F(PpdFileTest, ACustomSizeIsNoDefault) {
  const auto ppd = openedText(
      replaced(fixtureText("tape.ppd"), "*DefaultPageSize: W24H100", "*DefaultPageSize: Custom"));
  ppd->mark({{{"PageSize", "Custom.24x80mm"}}});
  const OptionList marked = ppd->markedBesideDefaults({});
  ASSERT_EQ(marked.size(), 1U);
  EXPECT_EQ(marked.front().first, "PageSize");
  EXPECT_NE(marked.front().second, "Custom");
}

TEST_F(PpdFileTest, AnOptionWithoutAValidDefaultHasNoMark) {
  const auto ppd =
      openedText(replaced(replaced(fixtureText("tape.ppd"), "*DefaultLxHalfCut: OFF\n", ""),
                          "*DefaultDarkness: Normal", "*DefaultDarkness: Purple"));
  EXPECT_EQ(ppd->markedChoice("LxHalfCut"), "");
  EXPECT_EQ(ppd->markedChoice("Darkness"), "");
  const OptionList expected{{"PageSize", "W24H100"}, {"LxSpecialTape", "OFF"}};
  EXPECT_EQ(ppd->markedOptions(), expected);
}

TEST_F(PpdFileTest, SeveralChoicesOfAnOptionAreMarkedTogether) {
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "*Darkness/Darkness: PickOne",
                                       "*Darkness/Darkness: PickMany"));
  ppd->markChoice("Darkness", "Dark");
  EXPECT_EQ(ppd->markedOptions().back(), (OptionList::value_type{"Darkness", "Normal,Dark"}));
}

TEST_F(PpdFileTest, SeveralChoicesOfAnOptionAreWhatTheyAreOneByOne) {
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "*Darkness/Darkness: PickOne",
                                       "*Darkness/Darkness: PickMany"));
  EXPECT_EQ(ppd->spelled({"darkness", "normal,DARK"}),
            (OptionList::value_type{"Darkness", "Normal,Dark"}));
  EXPECT_TRUE(ppd->checkChoice("Darkness", "Normal,Dark"));
  EXPECT_FALSE(ppd->checkChoice("Darkness", "Normal,Purple"));
  EXPECT_FALSE(mTape->checkChoice("Darkness", "Normal,Dark")) << "it takes one";
  ppd->mark({{{"Darkness", "Normal,Dark"}}});
  EXPECT_EQ(ppd->markedOptions().back(), (OptionList::value_type{"Darkness", "Normal,Dark"}));
  // The default choice is none of them.
  ppd->mark({{{"Darkness", "Light,Dark"}}});
  EXPECT_EQ(ppd->markedOptions().back(), (OptionList::value_type{"Darkness", "Light,Dark"}));
  ppd->markChoice("Darkness", "Light,Normal");
  EXPECT_EQ(ppd->markedOptions().back(), (OptionList::value_type{"Darkness", "Light,Normal"}));
}

TEST_F(PpdFileTest, ChoicesAreSpelledAsThePpdSpellsThem) {
  EXPECT_EQ(mTape->spelled({"lxhalfcut", "on"}), (OptionList::value_type{"LxHalfCut", "ON"}));
  EXPECT_EQ(mTape->spelled({"LxHalfCut", "Maybe"}), (OptionList::value_type{"LxHalfCut", "Maybe"}));
  EXPECT_EQ(mTape->spelled({"pagesize", "Custom.24x80mm"}),
            (OptionList::value_type{"PageSize", "Custom.24x80mm"}));
  EXPECT_EQ(mTape->spelled({"job-priority", "70"}), (OptionList::value_type{"job-priority", "70"}));
}

TEST_F(PpdFileTest, AnOptionWithoutChoicesIsHarmless) {
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "*CloseGroup: Quality",
                                       "*OpenUI *Hollow/Hollow: PickOne\n*CloseUI: *Hollow\n"
                                       "*CloseGroup: Quality"));
  EXPECT_TRUE(ppd->hasOption("Hollow"));
  EXPECT_EQ(ppd->markedChoice("Hollow"), "");
  EXPECT_TRUE(ppd->optionGroups().back().options.back().choices.empty());
  const auto checked = ppd->checkChoice("Hollow", "X");
  ASSERT_FALSE(checked);
  EXPECT_EQ(checked.error().message, "the option Hollow has no choice \"X\": it has none");
}

TEST_F(PpdFileTest, AnUnknownChoiceIsAnErrorThatListsTheChoices) {
  EXPECT_TRUE(mTape->checkChoice("LxHalfCut", "on"));
  EXPECT_TRUE(mTape->checkChoice("Nope", "MAYBE"));
  const auto checked = mTape->checkChoice("LxHalfCut", "MAYBE");
  ASSERT_FALSE(checked);
  EXPECT_EQ(checked.error().message,
            "the option LxHalfCut has no choice \"MAYBE\": its choices are OFF, ON");
}

TEST_F(PpdFileTest, ACustomSizeIsCheckedAgainstThePrintersLimits) {
  EXPECT_TRUE(mTape->checkChoice("PageSize", "Custom.24x80mm"));
  const auto tooWide = mTape->checkChoice("PageSize", "Custom.100x80mm");
  ASSERT_FALSE(tooWide);
  EXPECT_EQ(tooWide.error().message,
            "the printer does not take paper of 100 x 80 mm: it takes 3.5 x 7.1 mm to 25.4 x 352.8 "
            "mm");
  const auto unreadable = mTape->checkChoice("PageSize", "Custom.24");
  ASSERT_FALSE(unreadable);
  EXPECT_EQ(unreadable.error().message,
            "\"Custom.24\" is no paper size: write it as Custom.WIDTHxLENGTHmm");
}

TEST_F(PpdFileTest, GroupsLeaveOutInstallableOptionsTheRegionAndChoicesThatNeedAValue) {
  const auto groups = mTape->optionGroups();
  ASSERT_EQ(groups.size(), 3U);
  EXPECT_EQ(groups[0].name, "General");
  ASSERT_EQ(groups[0].options.size(), 1U);
  EXPECT_EQ(groups[0].options[0].keyword, "PageSize");
  EXPECT_EQ(groups[0].options[0].choices.size(), 4U);
  EXPECT_EQ(groups[1].name, "Cutting");
  EXPECT_EQ(groups[1].options[0].keyword, "LxHalfCut");
  EXPECT_EQ(groups[1].options[0].text, "Half cut");
  EXPECT_EQ(groups[1].options[0].defaultChoice, "OFF");
  EXPECT_EQ(groups[1].options[0].choices[1].name, "ON");
  EXPECT_EQ(groups[1].options[0].choices[1].text, "On");
  EXPECT_EQ(groups[2].name, "Quality");
}

TEST_F(PpdFileTest, AChoiceWithoutTextIsCalledByItsName) {
  EXPECT_EQ(mTape->optionGroups()[2].options[0].choices[1].text, "Normal");
}

TEST_F(PpdFileTest, ATextThatIsCutEndsWithAWholeCharacter) {
  std::string text = "a";
  for (int i = 0; i < 40; ++i) text += "\xc3\xa9";
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "Light/Light", "Light/" + text));
  const std::string shown = ppd->optionGroups()[2].options[0].choices[0].text;
  EXPECT_EQ(shown.size() % 2, 1U) << shown;
  EXPECT_EQ(text.find(shown), 0U);
  EXPECT_GT(shown.size(), 70U);
}

TEST_F(PpdFileTest, AConflictNamesBothSidesOnce) {
  EXPECT_TRUE(mTape->conflicts().empty());
  mTape->markChoice("LxHalfCut", "ON");
  mTape->markChoice("LxSpecialTape", "ON");
  const std::vector<Conflict> expected{{"LxSpecialTape", "ON", "LxHalfCut", "ON"}};
  EXPECT_EQ(mTape->conflicts(), expected);
  mTape->markChoice("LxSpecialTape", "OFF");
  EXPECT_TRUE(mTape->conflicts().empty());
}

TEST_F(PpdFileTest, AMissingPartOfThePrinterConflictsToo) {
  mTape->mark({{{"Cutter", "False"}, {"LxHalfCut", "ON"}}});
  const std::vector<Conflict> expected{{"Cutter", "False", "LxHalfCut", "ON"}};
  EXPECT_EQ(mTape->conflicts(), expected);
}

TEST_F(PpdFileTest, ConstraintsOfTheNewerFormAreFoundToo) {
  const auto ppd =
      openedText(fixtureText("tape.ppd") +
                 "*cupsUIConstraints noLightHalf: \"*Darkness Light *LxHalfCut ON\"\n");
  ppd->mark({{{"Darkness", "Light"}, {"LxHalfCut", "ON"}}});
  const std::vector<Conflict> expected{{"Darkness", "Light", "LxHalfCut", "ON"}};
  EXPECT_EQ(ppd->conflicts(), expected);
}

TEST_F(PpdFileTest, AConstraintWithoutAChoiceMeansAnyThatIsNotOff) {
  const auto ppd = openedText(fixtureText("tape.ppd") +
                              "*UIConstraints: *LxSpecialTape *Darkness Dark\n"
                              "*UIConstraints: *CustomPageSize True *Darkness\n");
  ppd->mark({{{"LxSpecialTape", "OFF"}, {"Darkness", "Dark"}}});
  EXPECT_TRUE(ppd->conflicts().empty());
  ppd->mark({{{"LxSpecialTape", "ON"}, {"Darkness", "Dark"}, {"PageSize", "Custom.20x50mm"}}});
  const std::vector<Conflict> expected{{"LxSpecialTape", "ON", "Darkness", "Dark"},
                                       {"PageSize", "Custom", "Darkness", "Dark"}};
  EXPECT_EQ(ppd->conflicts(), expected);
}

TEST_F(PpdFileTest, PaperSizesHaveTheirPrintableArea) {
  const auto papers = mTape->paperSizes();
  ASSERT_EQ(papers.size(), 4U);
  const PaperSize& paper = papers[1];
  EXPECT_EQ(paper.name, "W24H100");
  EXPECT_EQ(paper.text, "24 mm x 100 mm");
  EXPECT_NEAR(paper.width, 68.03, 0.001);
  EXPECT_NEAR(paper.length, 283.46, 0.001);
  EXPECT_NEAR(paper.left, 2.5, 0.001);
  EXPECT_NEAR(paper.bottom, 4, 0.001);
  EXPECT_NEAR(paper.right, 65.53, 0.001);
  EXPECT_NEAR(paper.top, 277.46, 0.001);
}

TEST_F(PpdFileTest, TheMarkedPaperFollowsTheMark) {
  EXPECT_EQ(mTape->markedPaper().name, "W24H100");
  mTape->markChoice("PageSize", "DC24");
  EXPECT_EQ(mTape->markedPaper().name, "DC24");
  mTape->mark({{{"media", "W12H100"}}});
  EXPECT_EQ(mTape->markedPaper().name, "W12H100");
}

TEST_F(PpdFileTest, WithoutAMarkedSizeThePaperHasNoName) {
  const auto ppd = openedText(replaced(fixtureText("tape.ppd"), "*DefaultPageSize: W24H100\n", ""));
  EXPECT_EQ(ppd->markedPaper().name, "");
  EXPECT_EQ(ppd->markedPaper().length, 0);
}

TEST_F(PpdFileTest, ACustomSizeIsMarkedShownAndSentByItsMeasures) {
  mTape->mark({{{"PageSize", "Custom.24x80mm"}}});
  const PaperSize paper = mTape->markedPaper();
  EXPECT_EQ(paper.text, "24 x 80 mm");
  EXPECT_NEAR(paper.width, 68.03, 0.01);
  EXPECT_NEAR(paper.length, 226.77, 0.01);
  EXPECT_NEAR(paper.left, 2.5, 0.01);
  EXPECT_NEAR(paper.right, 68.03 - 2.5, 0.01);
  EXPECT_NEAR(paper.top, 226.77 - 6, 0.01);
  EXPECT_EQ(mTape->markedChoice("PageSize"), "Custom");
  EXPECT_EQ(mTape->markedOptions().front(), (OptionList::value_type{"PageSize", paper.name}));

  mTape->mark({});
  mTape->markChoice("PageSize", paper.name);
  EXPECT_EQ(mTape->markedPaper().name, paper.name);
}

TEST_F(PpdFileTest, OtherCustomValuesAreSentWithTheirValues) {
  const auto ppd = openedText(replaced(
      fixtureText("tape.ppd"), "*CloseGroup: Quality",
      "*OpenUI *Feed/Feed: PickOne\n*DefaultFeed: None\n*Feed None/None: \"\"\n*CloseUI: *Feed\n"
      "*CustomFeed True: \"\"\n*ParamCustomFeed Length: 1 int 0 50\n"
      "*OpenUI *Stamp/Stamp: PickOne\n*DefaultStamp: None\n*Stamp None/None: \"\"\n"
      "*CloseUI: *Stamp\n*CustomStamp True: \"\"\n*ParamCustomStamp Text: 1 string 0 20\n"
      "*ParamCustomStamp Angle: 2 real 0 90\n*CloseGroup: Quality"));
  ppd->mark({{{"Feed", "Custom.12"}, {"Stamp", "{Text=Draft Angle=22.5}"}}});
  const OptionList marked = ppd->markedOptions();
  EXPECT_EQ(marked[marked.size() - 2], (OptionList::value_type{"Feed", "Custom.12"}));
  EXPECT_EQ(marked.back(), (OptionList::value_type{"Stamp", "{Text=Draft Angle=22.5}"}));
}

TEST_F(PpdFileTest, AnAttributeIsItsValueOrEmpty) {
  EXPECT_EQ(mTape->attribute("LxTapeType"), "TP");
  EXPECT_EQ(mTape->attribute("LxAutoCutObjHidden"), "");
}

}  // namespace
}  // namespace cutline
