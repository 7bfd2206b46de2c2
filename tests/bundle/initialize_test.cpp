// The controls' first state, and the rules that enable and disable them.
#include "platform/ports/Controls.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class Initialize : public PanelTest {
 protected:
  void disableAll() {
    for (const OptionRow& row : kOptions) box(row.id)->setEnabled(false);
    panel->mCutEveryTxBx->setEnabled(false);
    panel->mCutEveryStpr->setEnabled(false);
  }
  void initialize() { panel->initUI(); }
};

TEST_F(Initialize, BoxesAreEnabledWhereThePPDHasTheOption) {
  for (const OptionRow& present : kOptions) {
    PpdText text;
    present.id == OptionId::cutEvery ? text.cutLabel(1, 3, "1") : text.onOff(present.keyword);
    makePanelWithView(text);
    disableAll();
    initialize();
    for (const OptionRow& row : kOptions) {
      const bool enabled = row.id == present.id || row.id == OptionId::removeBlkSpace;
      EXPECT_EQ(box(row.id)->isEnabled(), enabled) << present.keyword << ": " << row.keyword;
    }
    EXPECT_EQ(panel->mCutEveryTxBx->isEnabled(), present.id == OptionId::cutEvery);
    EXPECT_EQ(panel->mCutEveryStpr->isEnabled(), present.id == OptionId::cutEvery);
  }
}

TEST_F(Initialize, BoxesStartTickedByThePPDsDefault) {
  for (const OptionRow& row : kOptions) {
    if (row.id == OptionId::cutEvery) continue;
    for (const auto& [defaultChoice, state] : std::vector<std::pair<std::string, int>>{
             {"ON", 1}, {"OFF", 0}, {"On", 0}, {"", 0}, {"UNKNOWN", 0}}) {
      makePanelWithView(
          PpdText().onOff(row.keyword, defaultChoice).attribute("LxAutoCutObjHidden", "False"));
      box(row.id)->setState(state == 1 ? 0 : 1);
      initialize();
      EXPECT_EQ(box(row.id)->state(), state) << row.keyword << " " << defaultChoice;
    }
  }
}

TEST_F(Initialize, WhatIsMarkedDoesNotMatterAtFirst) {
  makePanelWithView(PpdText().onOff("LxMirror", "OFF"));
  ppdMarkOption(ppd.get(), "LxMirror", "ON");
  initialize();
  EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOff);
}

TEST_F(Initialize, TheCutEveryBoxStartsTickedOnTheDefaultOneOnly) {
  for (const auto& [count, state] :
       std::vector<std::pair<std::string, int>>{{"1", 1}, {"3", 0}, {"10", 0}}) {
    makePanelWithView(PpdText().cutLabel(1, 20, count));
    initialize();
    EXPECT_EQ(box(OptionId::cutEvery)->state(), state) << count;
    EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), count);
    EXPECT_EQ(panel->mCutEveryStpr->intValue(), std::stoi(count));
  }
}

TEST_F(Initialize, WithoutCutLabelItsControlsAreDisabledAndTheirTextsStay) {
  makePanelWithView(PpdText().onOff("LxSpecialTape"));
  panel->mCutEveryStr->setStringValue("design");
  panel->mCutEveryTxBx->setStringValue("7");
  box(OptionId::cutEvery)->setTitle("design");
  disableAll();
  initialize();
  EXPECT_FALSE(box(OptionId::cutEvery)->isEnabled());
  EXPECT_FALSE(panel->mCutEveryTxBx->isEnabled());
  EXPECT_FALSE(panel->mCutEveryStpr->isEnabled());
  EXPECT_EQ(panel->mCutEveryStr->stringValue(), "design");
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), "7");
  EXPECT_EQ(box(OptionId::cutEvery)->title(), "design");
  panel->enabledCheck_OP();
  EXPECT_TRUE(box(OptionId::cutEvery)->isEnabled()) << "beside special tape it is enabled again";
}

TEST_F(Initialize, TitlesAreKeyedByThePPDsText) {
  bundle->strings["Mirror it"] = "Mirror printing";
  makePanelWithView(
      PpdText().onOff("LxMirror", "OFF", "Mirror it").onOff("LxHalfCut", "OFF", "Half"));
  initialize();
  EXPECT_EQ(box(OptionId::mirror)->title(), "Mirror printing");
  EXPECT_EQ(box(OptionId::halfCut)->title(), "Half") << "the key itself where there is no string";
}

TEST_F(Initialize, UnreadableTextsFallBackToTheTitleKeys) {
  PpdText text = PpdText().attribute("LxAutoCutObjHidden", "False");
  for (const std::string& keyword : nineKeywords()) {
    if (keyword == "LxCutLabel") {
      text.option(keyword, {"1", "2"}, "1", "x\xC3");
    } else {
      text.onOff(keyword, "OFF", "x\xC3");
    }
  }
  makePanelWithView(text);
  initialize();
  const std::vector<std::string> titleKeys = {
      "RS_CutAtEvery",    "RS_CutAtEnd",    "RS_MirrorPrinting", "RS_AutoTapeCut", "RS_HalfCut",
      "RS_ChainPrinting", "RS_SpecialTape", "RS_RemoveBlkSpace", "RS_CutMark"};
  for (const OptionRow& row : kOptions) {
    EXPECT_EQ(box(row.id)->title(), titleKeys[static_cast<std::size_t>(row.id)]);
  }
}

TEST_F(Initialize, TheLabelWordIsLocalized) {
  bundle->strings["RS_Labels"] = "labels";
  makePanelWithView(PpdText().cutLabel(1, 3, "1"));
  initialize();
  EXPECT_EQ(panel->mCutEveryStr->stringValue(), "labels");
}

TEST_F(Initialize, AHiddenAutoCutBoxKeepsTitleAndState) {
  makePanelWithView(PpdText().onOff("LxAutoTapeCut", "ON", "Auto"));
  box(OptionId::autoCut)->setTitle("design");
  initialize();
  EXPECT_TRUE(box(OptionId::autoCut)->isEnabled());
  EXPECT_EQ(box(OptionId::autoCut)->title(), "design");
  EXPECT_EQ(box(OptionId::autoCut)->state(), CheckBox::kOff);
}

TEST_F(Initialize, AnEmptyListKeepsTheStateButTakesTheTitle) {
  makePanelWithView(PpdText().option("LxMirror", {}, "ON", "Mirror"));
  box(OptionId::mirror)->setState(CheckBox::kOff);
  initialize();
  EXPECT_EQ(box(OptionId::mirror)->title(), "Mirror");
  EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOff);
}

TEST_F(Initialize, TheBlankSpaceBoxFollowsTheTapeState) {
  const PpdText text = PpdText().pageSizes({"W24", "DC24"});
  makePanelWithView(text);
  callback->paper.name = "DC24";
  panel->initializeUI_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 1);
  EXPECT_FALSE(box(OptionId::removeBlkSpace)->isEnabled());
  callback->paper.name = "AV99";
  panel->initializeUI_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 0) << "no size of the PPD";
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled()) << "though the PPD lacks the option";
}

TEST_F(Initialize, MissingControlsAreSkipped) {
  bundle->missingOutlets = {"mCutEveryChkBx",    "mCutEveryTxBx",     "mCutEveryStpr",
                            "mCutEveryStr",      "mMirrorPrintChkBx", "mRemoveBlkSpaceChkBx",
                            "mSpecialTapeChkBx", "mAutoCutChkBx",     "mOptionPopUpButton",
                            "mCutMarkChkBx"};
  makePanelWithView(allNine());
  panel->willShow();
  panel->restoreValuesAndReturnError(nullptr);
  panel->saveValuesAndReturnError(nullptr);
  panel->enabledCheck_OP();
  EXPECT_EQ(marked("LxMirror"), "OFF");
  panel->initializeUI_OtherStr();
}

TEST_F(Initialize, AStepperWithoutItsFieldStartsAtZero) {
  bundle->missingOutlets = {"mCutEveryTxBx"};
  makePanelWithView(PpdText().cutLabel(1, 9, "3"));
  panel->mCutEveryStpr->setIntValue(5);
  initialize();
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 0);
}

class Enabling : public PanelTest {
 protected:
  // What the three rules look at and change.
  struct Group {
    bool field, stepper, greyLabel;
    bool every, autoCut, chain, half;
    bool blank;
    friend bool operator==(const Group&, const Group&) = default;
  };

  Group read() const {
    return {panel->mCutEveryTxBx->isEnabled(),
            panel->mCutEveryStpr->isEnabled(),
            panel->mCutEveryStr->textColor() == TextColor::disabledControlText,
            box(OptionId::cutEvery)->isEnabled(),
            box(OptionId::autoCut)->isEnabled(),
            box(OptionId::chainPrint)->isEnabled(),
            box(OptionId::halfCut)->isEnabled(),
            box(OptionId::removeBlkSpace)->isEnabled()};
  }
  void write(const Group& group) {
    panel->mCutEveryTxBx->setEnabled(group.field);
    panel->mCutEveryStpr->setEnabled(group.stepper);
    panel->mCutEveryStr->setTextColor(group.greyLabel ? TextColor::disabledControlText
                                                      : TextColor::controlText);
    box(OptionId::cutEvery)->setEnabled(group.every);
    box(OptionId::autoCut)->setEnabled(group.autoCut);
    box(OptionId::chainPrint)->setEnabled(group.chain);
    box(OptionId::halfCut)->setEnabled(group.half);
    box(OptionId::removeBlkSpace)->setEnabled(group.blank);
  }
  static Group groupOf(unsigned bits) {
    const auto bit = [&](unsigned i) { return ((bits >> i) & 1U) != 0; };
    return {bit(0), bit(1), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7)};
  }

  // The rules as the tables state them.
  static Group expected(Group before, bool everyOn, bool specialHidden, bool specialOn,
                        const std::string& paper) {
    Group after = before;
    const bool bothEnabled = before.field && before.stepper;
    const bool bothDisabled = !before.field && !before.stepper;
    if (!everyOn && bothEnabled) after.field = after.stepper = false, after.greyLabel = true;
    if (everyOn && bothDisabled) after.field = after.stepper = true, after.greyLabel = false;
    if (!specialHidden) {
      after.every = after.autoCut = after.chain = after.half = !specialOn;
      if (specialOn) {
        after.greyLabel = after.greyLabel || after.stepper;
        after.field = after.stepper = false;
      }
    }
    const std::string start = paper.substr(0, 2);
    after.blank = start != "DC" && start != "AV";
    return after;
  }
};

// Every state of every control that a rule reads or writes, on each kind of paper.
TEST_F(Enabling, EveryCombination) {
  makePanelWithView(allNine());
  CheckBox* special = box(OptionId::specialTape);
  for (unsigned situation = 0; situation < 8; ++situation) {
    const bool everyOn = situation & 1U;
    const bool specialHidden = situation & 2U;
    const bool specialOn = situation & 4U;
    box(OptionId::cutEvery)->setState(everyOn);
    special->setHidden(specialHidden);
    special->setState(specialOn);
    for (const std::string paper : {"W24", "DC24", "AV24", "dc24", ""}) {
      callback->paper.name = paper;
      for (unsigned bits = 0; bits < 256; ++bits) {
        const Group before = groupOf(bits);
        write(before);
        panel->enabledCheck_OP();
        ASSERT_TRUE(read() == expected(before, everyOn, specialHidden, specialOn, paper))
            << "situation " << situation << " paper " << paper << " before " << bits;
      }
    }
  }
}

TEST_F(Enabling, CutAtEndMirrorAndCutMarkAreNeverSwitched) {
  makePanelWithView(allNine());
  for (const int state : {0, 1}) {
    box(OptionId::specialTape)->setState(state);
    for (const bool enabled : {false, true}) {
      for (const OptionId id : {OptionId::cutEnd, OptionId::mirror, OptionId::cutMark}) {
        box(id)->setEnabled(enabled);
        panel->enabledCheck_OP();
        EXPECT_EQ(box(id)->isEnabled(), enabled);
      }
    }
  }
}

TEST_F(Enabling, SpecialTapeOnAndOffAgainGivesTheCutEveryGroupBack) {
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  ASSERT_TRUE(panel->mCutEveryTxBx->isEnabled());
  click(OptionId::specialTape);
  EXPECT_FALSE(panel->mCutEveryTxBx->isEnabled());
  EXPECT_FALSE(panel->mCutEveryStpr->isEnabled());
  EXPECT_EQ(panel->mCutEveryStr->textColor(), TextColor::disabledControlText);
  EXPECT_FALSE(box(OptionId::cutEvery)->isEnabled());
  click(OptionId::specialTape);
  EXPECT_TRUE(panel->mCutEveryTxBx->isEnabled());
  EXPECT_TRUE(panel->mCutEveryStpr->isEnabled());
  EXPECT_EQ(panel->mCutEveryStr->textColor(), TextColor::controlText);
  EXPECT_TRUE(box(OptionId::cutEvery)->isEnabled());
}

TEST_F(Enabling, ThePaperRuleGoesByTheNameAloneAndAFailingQueryEnables) {
  makePanelWithView(PpdText(allNine()).pageSizes({"W24"}));
  callback->paper.name = "DC-not-in-the-PPD";
  panel->initializeUI_RemoveBlkSpace();
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
  panel->enabledCheck_OP();
  EXPECT_FALSE(box(OptionId::removeBlkSpace)->isEnabled());
  callback->paper.nameStatus = kPMGeneralError;
  panel->enabledCheck_OP();
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
  callback->paper.nameStatus = noErr;
  callback->hasFormat = false;
  box(OptionId::removeBlkSpace)->setEnabled(false);
  panel->enabledCheck_OP();
  EXPECT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
}

}  // namespace
}  // namespace cutline::test
