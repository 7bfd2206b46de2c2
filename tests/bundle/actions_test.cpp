// What the user does with the controls, and what a paper change does.
#include "plain/PlainControls.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Marks = std::vector<Mark>;

class Actions : public PanelTest {
 protected:
  void step(int by) { dynamic_cast<PlainStepper&>(*panel->mCutEveryStpr).performStep(by); }
  std::string countShown() const { return panel->mCutEveryTxBx->stringValue(); }
};

TEST_F(Actions, EachBoxMarksItsOptionAndReadsItBack) {
  struct Row {
    OptionId box;
    std::string keyword;
  };
  using enum OptionId;
  const std::vector<Row> rows = {
      {cutEvery, "LxAutoTapeCut"},    {cutEnd, "LxCutAtEnd"},
      {mirror, "LxMirror"},           {autoCut, "LxAutoTapeCut"},
      {halfCut, "LxHalfCut"},         {chainPrint, "LxChainPrint"},
      {specialTape, "LxSpecialTape"}, {removeBlkSpace, "LxRemoveBlkSpace"},
      {cutMark, "LxCutMark"}};
  for (const Row& row : rows) {
    showPanel(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
    box(row.box)->setState(CheckBox::kOff);
    clearPreviewNeedsDisplay();
    click(row.box);
    EXPECT_EQ(callback->marks, (Marks{{row.keyword, "ON"}}));
    EXPECT_EQ(marked(row.keyword), "ON");
    EXPECT_EQ(box(row.box)->state(), CheckBox::kOn);
    const PDEChoice* selection = row.box == cutEvery ? panel->mAutoCut_CutEvery_Selection
                                                     : (*panel).*rowOf(row.box).selection;
    ASSERT_TRUE(selection);
    EXPECT_EQ(selection->choice()->choice, std::string("ON"));
    EXPECT_TRUE(previewNeedsDisplay());
    callback->marks.clear();
    click(row.box);
    EXPECT_EQ(callback->marks, (Marks{{row.keyword, "OFF"}}));
    EXPECT_EQ(box(row.box)->state(), CheckBox::kOff);
  }
}

TEST_F(Actions, AnUnknownSenderMarksNothingButRunsTheRules) {
  showPanel(allNine());
  box(OptionId::specialTape)->setState(CheckBox::kOn);
  clearPreviewNeedsDisplay();
  const auto stranger = platform.toolkit.createCheckBox({});
  panel->changeOption(stranger.get());
  EXPECT_FALSE(box(OptionId::halfCut)->isEnabled());
  EXPECT_TRUE(previewNeedsDisplay());
  panel->changeOption(nullptr);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Actions, NoSenderIsNotAMissingBox) {
  bundle->missingOutlets = {"mMirrorPrintChkBx"};
  showPanel(allNine());
  panel->changeOption(nullptr);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Actions, ABoxWhoseOptionIsAbsentMarksNothing) {
  showPanel(PpdText().onOff("LxMirror"));
  box(OptionId::halfCut)->setEnabled(true);
  click(OptionId::halfCut);
  EXPECT_TRUE(callback->marks.empty());
  EXPECT_EQ(box(OptionId::halfCut)->state(), CheckBox::kOn);
}

TEST_F(Actions, ASingleChoiceCannotBeTicked) {
  showPanel(PpdText().option("LxMirror", {"OFF"}, "OFF"));
  click(OptionId::mirror);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Actions, CutEveryOnHSMediaWarnsOnceAndStaysOn) {
  bundle->strings["RS_Alrt_AutoCutWithHS"] = "This tape is thick.";
  callback->paper.name = "HS24";
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  ASSERT_EQ(platform.toolkit.alerts().size(), 1U);
  const Alert& alert = platform.toolkit.alerts().front();
  EXPECT_EQ(alert.messageText, "");
  EXPECT_EQ(alert.informativeText, "This tape is thick.");
  EXPECT_EQ(alert.buttonTitles, std::vector<std::string>{"OK"});
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOn);
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
  click(OptionId::cutEvery);
  EXPECT_EQ(platform.toolkit.alerts().size(), 1U) << "switching off needs no warning";
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

TEST_F(Actions, OtherMediaAndOtherBoxesDoNotWarn) {
  showPanel(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  callback->paper.name = "HS24";
  box(OptionId::autoCut)->setState(CheckBox::kOff);
  click(OptionId::autoCut);
  click(OptionId::halfCut);
  callback->format.status = kPMGeneralError;
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  EXPECT_TRUE(platform.toolkit.alerts().empty());
}

TEST_F(Actions, WithoutAToolkitThereIsNoWarning) {
  callback->paper.name = "HS24";
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  platform.dropToolkit();
  panel->changeOption(panel->mCutEveryChkBx);
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
}

TEST_F(Actions, TypedNumbersAreClampedAtOnceAndMarked) {
  showPanel(allNine());
  panel->mCutEveryTxBx->setEnabled(true);
  for (const auto& [typed, shown] : std::vector<std::pair<std::string, std::string>>{
           {"12", "12"}, {"0", "1"}, {"250", "99"}, {"abc", "1"}, {"-4", "1"}, {"5x", "5"}}) {
    callback->marks.clear();
    // Typing is refused nowhere, so that each keystroke reaches the panel.
    panel->mCutEveryTxBx->setEnabled(true);
    typeCount(typed);
    EXPECT_EQ(countShown(), shown) << typed;
    EXPECT_EQ(panel->mCutEveryStpr->intValue(), std::stoi(shown));
    EXPECT_EQ(callback->marks, (Marks{{"LxCutLabel", shown}})) << typed;
    EXPECT_EQ(panel->mCutEvery_Selection->ppdTitle(), shown);
  }
}

TEST_F(Actions, TheStepperMarksItsNumber) {
  showPanel(PpdText().cutLabel(2, 5, "2"));
  panel->mCutEveryStpr->setEnabled(true);
  panel->mCutEveryStpr->setIntValue(2);
  panel->changeCutEveryValue(panel->mCutEveryStpr);
  EXPECT_EQ(callback->marks, (Marks{{"LxCutLabel", "2"}})) << "the first choice";
  callback->marks.clear();
  panel->mCutEveryStpr->setEnabled(true);
  step(+1);
  EXPECT_EQ(countShown(), "3");
  EXPECT_EQ(callback->marks, (Marks{{"LxCutLabel", "3"}}));
  for (const auto& [value, shown] : std::vector<std::pair<int, int>>{{9, 5}, {0, 2}}) {
    panel->mCutEveryStpr->setIntValue(value);
    panel->changeCutEveryValue(panel->mCutEveryStpr);
    EXPECT_EQ(panel->mCutEveryStpr->intValue(), shown);
    EXPECT_EQ(countShown(), std::to_string(shown));
  }
}

TEST_F(Actions, WithoutChoicesTheBoundsAre1And99AndNothingIsMarked) {
  for (const bool emptyList : {false, true}) {
    showPanel(emptyList ? PpdText().option("LxCutLabel", {}, "") : PpdText().onOff("LxMirror"));
    panel->mCutEveryStpr->setIntValue(500);
    panel->changeCutEveryValue(panel->mCutEveryStpr);
    EXPECT_EQ(panel->mCutEveryStpr->intValue(), 99);
    EXPECT_EQ(countShown(), "99");
    panel->mCutEveryTxBx->setStringValue("0");
    panel->changeCutEveryValue(panel->mCutEveryTxBx);
    EXPECT_EQ(countShown(), "1");
    EXPECT_TRUE(callback->marks.empty());
  }
}

TEST_F(Actions, GapsInTheNumbersCannotMarkBeyondTheEnd) {
  showPanel(PpdText().option("LxCutLabel", {"1", "2", "50"}, "1"));
  panel->mCutEveryStpr->setIntValue(50);
  panel->changeCutEveryValue(panel->mCutEveryStpr);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Actions, ADescendingListMarksNoWrongNumber) {
  showPanel(PpdText().option("LxCutLabel", {"3", "2", "1"}, "3"));
  panel->mCutEveryStpr->setIntValue(5);
  panel->changeCutEveryValue(panel->mCutEveryStpr);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Actions, AnotherSenderMarksNothing) {
  showPanel(PpdText().cutLabel(1, 9, "4"));
  panel->changeCutEveryValue(panel->mMirrorPrintChkBx);
  panel->changeCutEveryValue(nullptr);
  EXPECT_TRUE(callback->marks.empty());
  EXPECT_EQ(countShown(), "4");
}

TEST_F(Actions, AMissingFieldOrStepperIsSkipped) {
  bundle->missingOutlets = {"mCutEveryTxBx"};
  showPanel(PpdText().cutLabel(1, 9, "4"));
  panel->mCutEveryStpr->setIntValue(6);
  panel->changeCutEveryValue(panel->mCutEveryStpr);
  EXPECT_EQ(marked("LxCutLabel"), "6");
  bundle->missingOutlets = {"mCutEveryStpr"};
  showPanel(PpdText().cutLabel(1, 9, "4"));
  panel->mCutEveryTxBx->setStringValue("8");
  panel->changeCutEveryValue(panel->mCutEveryTxBx);
  EXPECT_EQ(marked("LxCutLabel"), "8");
}

TEST_F(Actions, OnlyTheNumbersFieldIsHeard) {
  showPanel(PpdText().cutLabel(1, 9, "4"));
  panel->mCutEveryTxBx->setStringValue("7");
  const auto other = platform.toolkit.createTextField({});
  const void* object = static_cast<const View*>(other.get());
  panel->controlTextDidChange({"NSControlTextDidChangeNotification", object});
  panel->controlTextDidChange({"NSControlTextDidChangeNotification", {}});
  EXPECT_TRUE(callback->marks.empty());
  object = static_cast<const View*>(panel->mCutEveryTxBx);
  panel->controlTextDidChange({"NSControlTextDidChangeNotification", object});
  EXPECT_EQ(callback->marks, (Marks{{"LxCutLabel", "7"}}));
}

TEST_F(Actions, APaperChangeToHSMediaTurnsAutoCutOff) {
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  ASSERT_EQ(marked("LxAutoTapeCut"), "ON");
  callback->marks.clear();
  callback->paper.name = "HS24";
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
  EXPECT_TRUE(callback->marks.empty()) << "straight in the PPD, not through the host";
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection->ppdTitle(), "OFF");
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOff);
}

TEST_F(Actions, OtherPaperChangesDoNothing) {
  showPanel(allNine());
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
  clearPreviewNeedsDisplay();
  for (const char* name : {"W24", "hs24", "DC24"}) {
    callback->paper.name = name;
    postPaperChange();
    EXPECT_EQ(marked("LxAutoTapeCut"), "ON") << name;
    EXPECT_FALSE(previewNeedsDisplay());
  }
  callback->paper.name = "HS24";
  callback->format.status = kPMGeneralError;
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON") << "a name that cannot be read";
}

TEST_F(Actions, APaperChangeLeavesTheTapeStateAlone) {
  showPanel(PpdText(allNine()).pageSizes({"W24", "DC24"}));
  callback->paper.name = "DC24";
  postPaperChange();
  EXPECT_EQ(panel->getTapeState(), 0);
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
}

}  // namespace
}  // namespace cutline::test
