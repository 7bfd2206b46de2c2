// From the controls to the PPD's choices.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Marks = std::vector<Mark>;

class Save : public PanelTest {
 protected:
  // Ticks exactly these boxes.
  void tick(const std::vector<OptionId>& ids) {
    for (const OptionRow& row : kOptions) box(row.id)->setState(CheckBox::kOff);
    for (const OptionId id : ids) box(id)->setState(CheckBox::kOn);
  }
  Marks saved() {
    callback->marks.clear();
    panel->setValuesToKey();
    return callback->marks;
  }
};

PpdText allNineWithAutoCutBox() {
  return PpdText(allNine()).attribute("LxAutoCutObjHidden", "False");
}

TEST_F(Save, ATickedBoxIsTheSecondChoice) {
  makePanelWithView(allNineWithAutoCutBox());
  tick({OptionId::cutEnd, OptionId::halfCut, OptionId::autoCut});
  EXPECT_EQ(saved(), (Marks{{"LxCutLabel", "1"},
                            {"LxCutAtEnd", "ON"},
                            {"LxMirror", "OFF"},
                            {"LxAutoTapeCut", "ON"},
                            {"LxHalfCut", "ON"},
                            {"LxChainPrint", "OFF"},
                            {"LxSpecialTape", "OFF"},
                            {"LxRemoveBlkSpace", "OFF"},
                            {"LxCutMark", "OFF"}}));
}

TEST_F(Save, ChoicesAreTakenByPositionWhateverTheirNames) {
  makePanelWithView(PpdText().option("LxMirror", {"Straight", "Mirrored", "Third"}, "Third"));
  EXPECT_EQ(saved(), (Marks{{"LxMirror", "Straight"}}));
  tick({OptionId::mirror});
  EXPECT_EQ(saved(), (Marks{{"LxMirror", "Mirrored"}}));
}

TEST_F(Save, ASingleChoiceIsMarkedForATickedBoxToo) {
  makePanelWithView(PpdText().option("LxMirror", {"ONLY"}, "ONLY"));
  tick({OptionId::mirror});
  EXPECT_EQ(saved(), (Marks{{"LxMirror", "ONLY"}}));
}

TEST_F(Save, AMixedBoxIsTheFirstChoice) {
  makePanelWithView(PpdText().onOff("LxMirror"));
  box(OptionId::mirror)->setState(CheckBox::kMixed);
  EXPECT_EQ(saved(), (Marks{{"LxMirror", "OFF"}}));
}

TEST_F(Save, AnEmptyListMarksNothing) {
  makePanelWithView(PpdText().option("LxMirror", {}, "").option("LxCutLabel", {}, ""));
  ASSERT_TRUE(panel->mMirror_Choices);
  tick({OptionId::mirror});
  EXPECT_EQ(saved(), Marks{});
}

TEST_F(Save, WithoutPrintSettingsNothingIsMarked) {
  callback->hasSettings = false;
  makePanelWithView(allNineWithAutoCutBox());
  EXPECT_EQ(saved(), Marks{});
}

TEST_F(Save, SpecialTapeSavesTheCutsOff) {
  makePanelWithView(allNineWithAutoCutBox());
  tick({OptionId::cutEvery, OptionId::cutEnd, OptionId::mirror, OptionId::autoCut,
        OptionId::halfCut, OptionId::chainPrint, OptionId::specialTape, OptionId::removeBlkSpace,
        OptionId::cutMark});
  EXPECT_EQ(saved(), (Marks{{"LxCutLabel", "1"},
                            {"LxCutAtEnd", "ON"},
                            {"LxMirror", "ON"},
                            {"LxAutoTapeCut", "OFF"},
                            {"LxHalfCut", "OFF"},
                            {"LxChainPrint", "OFF"},
                            {"LxSpecialTape", "ON"},
                            {"LxRemoveBlkSpace", "ON"},
                            {"LxCutMark", "OFF"}}));
}

TEST_F(Save, TheCutEveryBoxSavesAutoCutBeforeTheNumber) {
  makePanelWithView(PpdText(allNine()));
  ppdMarkOption(ppd.get(), "LxCutLabel", "5");
  tick({OptionId::cutEvery});
  callback->marks.clear();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "5"}}));
  callback->marks.clear();
  panel->saveSetting_AutoCut();
  EXPECT_EQ(callback->marks, Marks{});
  tick({});
  callback->marks.clear();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "OFF"}, {"LxCutLabel", "5"}}));
}

TEST_F(Save, SpecialTapeSavesAutoCutOffThroughTheCutEveryBox) {
  makePanelWithView(PpdText(allNine()));
  tick({OptionId::cutEvery, OptionId::specialTape});
  callback->marks.clear();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "OFF"}, {"LxCutLabel", "1"}}));
}

TEST_F(Save, TheTwoWordsForAutoCutAreFixed) {
  makePanelWithView(PpdText().cutLabel(1, 3, "2").option("LxAutoTapeCut", {"NEIN", "JA"}, "NEIN"));
  tick({OptionId::cutEvery});
  callback->marks.clear();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "2"}}));
}

TEST_F(Save, WithAnAutoCutBoxTheCutEveryBoxLeavesItAlone) {
  makePanelWithView(allNineWithAutoCutBox());
  tick({OptionId::cutEvery});
  callback->marks.clear();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxCutLabel", "1"}}));
  callback->marks.clear();
  panel->saveSetting_AutoCut();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "OFF"}}));
}

TEST_F(Save, WithoutCutLabelAutoCutHasNobodyToSaveIt) {
  makePanelWithView(PpdText().onOff("LxAutoTapeCut"));
  tick({OptionId::cutEvery});
  EXPECT_EQ(saved(), Marks{});
}

TEST_F(Save, WithoutAutoCutTheNumberIsSavedAlone) {
  makePanelWithView(PpdText().cutLabel(1, 3, "2"));
  tick({OptionId::cutEvery});
  EXPECT_EQ(saved(), (Marks{{"LxCutLabel", "2"}}));
}

// The field's text is not consulted: its number was marked when it was entered.
TEST_F(Save, TheMarkedNumberIsHandedOnAgain) {
  makePanelWithView(PpdText().cutLabel(1, 9, "2"));
  ppdMarkOption(ppd.get(), "LxCutLabel", "4");
  panel->mCutEveryTxBx->setStringValue("7");
  tick({OptionId::cutEvery});
  EXPECT_EQ(saved(), (Marks{{"LxCutLabel", "4"}}));
}

TEST_F(Save, AnUnmarkedNumberIsTheFirstWithAFieldAndTheDefaultWithout) {
  const PpdText text = PpdText().cutLabel(1, 9, "3").onOff("LxAutoTapeCut", "ON");
  makePanel(text.openUnmarked());
  panel->panelView();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "OFF"}, {"LxCutLabel", "1"}}));

  bundle->missingOutlets = {"mCutEveryTxBx"};
  makePanel(text.openUnmarked());
  panel->panelView();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks, (Marks{{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "3"}}))
      << "both by their defaults";
}

TEST_F(Save, BeforeTheViewIsLoadedTheMarkedChoicesAreHandedOn) {
  makePanel(allNineWithAutoCutBox());
  ppdMarkOption(ppd.get(), "LxHalfCut", "ON");
  ppdMarkOption(ppd.get(), "LxCutLabel", "8");
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
  EXPECT_EQ(saved(), (Marks{{"LxCutLabel", "8"},
                            {"LxCutAtEnd", "OFF"},
                            {"LxMirror", "OFF"},
                            {"LxAutoTapeCut", "ON"},
                            {"LxHalfCut", "ON"},
                            {"LxChainPrint", "OFF"},
                            {"LxSpecialTape", "OFF"},
                            {"LxRemoveBlkSpace", "OFF"},
                            {"LxCutMark", "OFF"}}));
}

TEST_F(Save, WithoutABoxAnUnmarkedOptionTakesItsDefault) {
  makePanel(PpdText().onOff("LxMirror", "ON").onOff("LxHalfCut", "").openUnmarked());
  EXPECT_EQ(saved(), (Marks{{"LxMirror", "ON"}, {"LxHalfCut", "OFF"}}))
      << "and without a default the first";
}

TEST_F(Save, TheTapeStateIsReadAgainAndSwitchesTheBlankSpaceBox) {
  makePanelWithView(PpdText().onOff("LxRemoveBlkSpace").pageSizes({"W24", "DC24"}));
  tick({OptionId::removeBlkSpace});
  callback->paper.name = "DC24";
  EXPECT_EQ(saved(), (Marks{{"LxRemoveBlkSpace", "ON"}})) << "saved though the box is disabled";
  EXPECT_EQ(panel->getTapeState(), 1);
  EXPECT_FALSE(box(OptionId::removeBlkSpace)->isEnabled());
  callback->paper.name = "W24";
  panel->saveSetting_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 0);
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
}

TEST_F(Save, AFailingPaperQueryGivesTapeStateZero) {
  makePanelWithView(PpdText().onOff("LxRemoveBlkSpace").pageSizes({"W24", "DC24"}));
  callback->paper.name = "DC24";
  panel->saveSetting_RemoveBlkSpace();
  callback->paper.heightStatus = kPMGeneralError;
  panel->saveSetting_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 0);
}

TEST_F(Save, TheIndexForTheAutoChain) {
  makePanelWithView(allNine());
  CheckBox* special = box(OptionId::specialTape);
  CheckBox* half = box(OptionId::halfCut);
  struct Row {
    bool hidden;
    int special;
    int state;
    int index;
  };
  const std::vector<Row> expected = {{false, 0, 0, 0}, {false, 0, 1, 1}, {false, 1, 0, 0},
                                     {false, 1, 1, 0}, {true, 0, 0, 0},  {true, 0, 1, 1},
                                     {true, 1, 0, 0},  {true, 1, 1, 1},  {false, -1, 1, 0}};
  for (const Row& row : expected) {
    special->setHidden(row.hidden);
    special->setState(row.special);
    half->setState(row.state);
    EXPECT_EQ(panel->indexForSaveAutoChain(half), row.index)
        << row.hidden << row.special << row.state;
    EXPECT_EQ(panel->indexForSaveAutoChain(nullptr), 0);
    EXPECT_EQ(panel->indexForSaveAutoChain(panel->mCutEveryStr), 0) << "a control without state";
  }
}

// Every combination of boxes, with and without a box of its own for auto cut.
TEST_F(Save, EveryCombinationOfBoxes) {
  for (const bool hasAutoCutBox : {false, true}) {
    makePanelWithView(hasAutoCutBox ? allNineWithAutoCutBox() : allNine());
    for (unsigned bits = 0; bits < 512; ++bits) {
      const auto on = [&](OptionId id) { return (bits >> static_cast<unsigned>(id)) & 1U; };
      for (const OptionRow& row : kOptions) box(row.id)->setState(static_cast<int>(on(row.id)));
      const auto word = [](bool isOn) { return std::string(isOn ? "ON" : "OFF"); };
      const bool special = on(OptionId::specialTape);
      Marks expected;
      if (!hasAutoCutBox) {
        expected.push_back({"LxAutoTapeCut", word(on(OptionId::cutEvery) && !special)});
      }
      expected.push_back({"LxCutLabel", "1"});
      expected.push_back({"LxCutAtEnd", word(on(OptionId::cutEnd))});
      expected.push_back({"LxMirror", word(on(OptionId::mirror))});
      if (hasAutoCutBox) {
        expected.push_back({"LxAutoTapeCut", word(on(OptionId::autoCut) && !special)});
      }
      expected.push_back({"LxHalfCut", word(on(OptionId::halfCut) && !special)});
      expected.push_back({"LxChainPrint", word(on(OptionId::chainPrint) && !special)});
      expected.push_back({"LxSpecialTape", word(special)});
      expected.push_back({"LxRemoveBlkSpace", word(on(OptionId::removeBlkSpace))});
      expected.push_back({"LxCutMark", word(on(OptionId::cutMark) && !special)});
      ASSERT_EQ(saved(), expected) << "boxes " << bits;
    }
  }
}

}  // namespace
}  // namespace cutline::test
