// The panel's lines in the print dialog's summary.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Titles = std::vector<std::string>;

class Summary : public PanelTest {
 protected:
  Summary() {
    bundle->strings = {{"RS_STitle_Yes", "Yes"}, {"RS_STitle_No", "No"}, {"RS_Labels", "labels"}};
  }
  // All selections read, as after a restore.
  void makeReadPanel(const PpdText& text) {
    makePanel(text);
    panel->setPDEItems2();
  }
  void mark(const char* keyword, const char* choice) {
    ppdMarkOption(ppd.get(), keyword, choice);
    panel->setPDEItems2();
  }
  Titles titles() const {
    return std::get<Titles>(panel->summaryInfo()->at("Summary Display Order"));
  }
  std::string value(const std::string& title) const {
    const auto info = panel->summaryInfo();
    const auto found = info->find(title);
    return found == info->end() ? "(no line)" : std::get<std::string>(found->second);
  }
};

PpdText allNineWithTexts() {
  PpdText text = PpdText().option("LxCutLabel", {"1", "2", "5"}, "1", "Every");
  const std::vector<std::string> texts = {"End",   "Mirror",  "Auto",  "Half",
                                          "Chain", "Special", "Blank", "Mark"};
  for (std::size_t i = 0; i < texts.size(); ++i) text.onOff(nineKeywords()[i + 1], "OFF", texts[i]);
  return text;
}

TEST_F(Summary, WithoutSelectionsThereIsOnlyAnEmptyOrder) {
  makePanel(allNineWithTexts());
  const auto info = panel->summaryInfo();
  ASSERT_EQ(info->size(), 1U);
  EXPECT_EQ(info->begin()->first, "Summary Display Order");
  EXPECT_EQ(titles(), Titles{});
}

TEST_F(Summary, HasItsOwnOrder) {
  makeReadPanel(allNineWithTexts());
  EXPECT_EQ(titles(),
            (Titles{"Every", "End", "Half", "Special", "Chain", "Mirror", "Blank", "Mark"}));
  EXPECT_EQ(panel->summaryInfo()->size(), 9U);
}

TEST_F(Summary, AutoCutHasALineOnlyWithoutTheCutEveryGroup) {
  makeReadPanel(PpdText().onOff("LxAutoTapeCut", "ON", "Auto").onOff("LxCutAtEnd", "OFF", "End"));
  EXPECT_EQ(titles(), (Titles{"Auto", "End"}));
  EXPECT_EQ(value("Auto"), "Yes");
}

TEST_F(Summary, YesNoOrTheChoicesOwnText) {
  const std::vector<std::pair<OptionId, std::string>> lines = {
      {OptionId::cutEnd, "End"},          {OptionId::halfCut, "Half"},
      {OptionId::specialTape, "Special"}, {OptionId::chainPrint, "Chain"},
      {OptionId::mirror, "Mirror"},       {OptionId::removeBlkSpace, "Blank"},
      {OptionId::cutMark, "Mark"},        {OptionId::autoCut, "Auto"}};
  for (const auto& [id, title] : lines) {
    const char* keyword = rowOf(id).keyword;
    makeReadPanel(PpdText().option(keyword, {"OFF", "ON", {"MAYBE", "Perhaps"}}, "OFF", title));
    EXPECT_EQ(value(title), "No") << keyword;
    mark(keyword, "ON");
    EXPECT_EQ(value(title), "Yes") << keyword;
    mark(keyword, "MAYBE");
    EXPECT_EQ(value(title), "Perhaps") << keyword;
  }
}

TEST_F(Summary, NothingMarkedShowsTheSelectionsText) {
  makePanel(PpdText()
                .option("LxMirror", {{"OFF", "Straight"}, {"ON", "Turned"}}, "ON", "Mirror")
                .openUnmarked());
  panel->setPDEItems2();
  EXPECT_EQ(value("Mirror"), "Turned") << "the default, as nothing is marked";
}

TEST_F(Summary, TheCutEveryLineSaysItsNumberOrNo) {
  makeReadPanel(allNineWithTexts());
  mark("LxCutLabel", "5");
  EXPECT_EQ(value("Every"), "No");
  mark("LxAutoTapeCut", "ON");
  EXPECT_EQ(value("Every"), "5 labels");
}

TEST_F(Summary, TheCutEveryLineFallsBackToItsText) {
  makePanel(PpdText()
                .option("LxCutLabel", {"1", {"5", "five at once"}}, "5", "Every")
                .onOff("LxAutoTapeCut", "")
                .open());
  panel->setPDEItems2();
  EXPECT_EQ(value("Every"), "five at once") << "nothing is marked for auto cut";
  makeReadPanel(PpdText().option("LxCutLabel", {"1", {"5", "five at once"}}, "5", "Every"));
  EXPECT_EQ(value("Every"), "five at once") << "there is no auto cut";
}

TEST_F(Summary, ATapeStateDropsTheBlankSpaceLine) {
  makeReadPanel(allNineWithTexts());
  for (const int state : {1, -1, 7}) {
    panel->setTapeState(state);
    EXPECT_EQ(value("Blank"), "(no line)") << state;
    EXPECT_EQ(titles().size(), 7U);
  }
  panel->setTapeState(0);
  EXPECT_EQ(value("Blank"), "No");
}

TEST_F(Summary, TitlesAreLocalizedByThePPDsText) {
  bundle->strings["Half"] = "Half cut between labels";
  makeReadPanel(PpdText().onOff("LxHalfCut", "OFF", "Half"));
  EXPECT_EQ(titles(), Titles{"Half cut between labels"});
}

TEST_F(Summary, UnreadableTextsFallBackToTheTitleKeys) {
  PpdText withGroup = PpdText().option("LxCutLabel", {"1", "2"}, "1", "x\xC3");
  PpdText withoutGroup;
  for (std::size_t i = 1; i < kOptionCount; ++i) {
    withGroup.onOff(nineKeywords()[i], "OFF", "x\xC3");
    withoutGroup.onOff(nineKeywords()[i], "OFF", "x\xC3");
  }
  makeReadPanel(withGroup);
  EXPECT_EQ(titles(),
            (Titles{"RS_STitle_CutLabels", "RS_STitle_CutAtEnd", "RS_STitle_HalfCut",
                    "RS_STitle_SpecialTape", "RS_STitle_ChainPrint", "RS_STitle_MirrorPrinting",
                    "RS_STitle_RemoveBlkSpace", "RS_STitle_CutMark"}));
  makeReadPanel(withoutGroup);
  EXPECT_EQ(titles().front(), "RS_STitle_AutoTapeCut");
}

TEST_F(Summary, AnEmptyTitleStaysInTheOrder) {
  bundle->strings["Half"] = "";
  makeReadPanel(PpdText().onOff("LxCutAtEnd", "OFF", "End").onOff("LxHalfCut", "OFF", "Half"));
  EXPECT_EQ(titles(), (Titles{"End", ""}));
  EXPECT_EQ(value(""), "No");
}

TEST_F(Summary, EqualTitlesShareOneEntry) {
  makeReadPanel(PpdText().onOff("LxCutAtEnd", "OFF", "Same").onOff("LxHalfCut", "ON", "Same"));
  EXPECT_EQ(titles(), (Titles{"Same", "Same"}));
  EXPECT_EQ(panel->summaryInfo()->size(), 2U);
  EXPECT_EQ(value("Same"), "Yes") << "the later line's";
}

TEST_F(Summary, AChoiceTextThatCannotBeReadIsEmpty) {
  makeReadPanel(PpdText().option("LxMirror", {"A", "B", {"C", "x\xC3"}}, "C", "Mirror"));
  EXPECT_EQ(value("Mirror"), "");
}

}  // namespace
}  // namespace cutline::test
