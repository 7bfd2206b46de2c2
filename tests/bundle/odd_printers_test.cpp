// The panel on printers whose PPDs are odd: whatever the user does, what is shown, marked and sent
// stays the same, and each oddity comes to what the panel's rules make of it.
#include <algorithm>
#include <map>

#include "bundle/ppd/PDEUtilsMethod13.h"
#include "plain/PlainControls.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class OddPrinters : public PanelTest {
 protected:
  // As a host shows it: the printer's defaults marked, the keywords asked for, the marks restored.
  void show(const std::string& printer) {
    const std::string path = CUTLINE_SOURCE_DIR "/tests/samples/ppd/odd-" + printer + ".ppd";
    OpenPpd opened(ppdOpenFile(path.c_str()));
    ASSERT_TRUE(opened) << path;
    ppdMarkDefaults(opened.get());
    makePanel(std::move(opened));
    ASSERT_TRUE(panel->panelView());
    panel->supportedPPDOptionKeys();
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    save();
  }
  void save() {
    callback->marks.clear();
    panel->saveValuesAndReturnError(nullptr);
  }
  // What the last save handed on for the keyword; empty for nothing.
  std::string sent(const std::string& keyword) const {
    const auto found = std::find_if(callback->marks.begin(), callback->marks.end(),
                                    [&](const Mark& mark) { return mark.key == keyword; });
    return found == callback->marks.end() ? "" : found->choice;
  }
  std::string shownCount() const { return panel->mCutEveryTxBx->stringValue(); }
  bool isShown(OptionId id) const { return !box(id)->isHidden(); }

  std::map<std::string, std::string> summary() const {
    std::map<std::string, std::string> lines;
    const auto info = panel->summaryInfo();
    for (const auto& [title, value] : *info) {
      if (const auto* text = std::get_if<std::string>(&value)) lines[title] = *text;
    }
    return lines;
  }
};

TEST_F(OddPrinters, OnAndOffMayBeCalledTrueAndFalse) {
  show("boolean");
  EXPECT_EQ(sent("LxHalfCut"), "False");
  click(OptionId::halfCut);
  EXPECT_EQ(marked("LxHalfCut"), "True");
  save();
  EXPECT_EQ(sent("LxHalfCut"), "True");
  EXPECT_EQ(summary()["Half cut between labels"], "RS_STitle_Yes");
}

TEST_F(OddPrinters, WithoutDefaultsTheFirstChoicesAreShownAndSent) {
  show("no-default");
  const std::vector<Mark> first = {
      {"LxAutoTapeCut", "OFF"}, {"LxCutLabel", "1"}, {"LxMirror", "OFF"}, {"LxHalfCut", "OFF"}};
  EXPECT_EQ(callback->marks, first);
  EXPECT_EQ(shownCount(), "1");
  for (const OptionId id : {OptionId::cutEvery, OptionId::mirror, OptionId::halfCut}) {
    EXPECT_EQ(box(id)->state(), CheckBox::kOff) << rowOf(id).keyword;
  }
}

TEST_F(OddPrinters, BeforePrintingAnUnmarkedOptionWithoutADefaultStaysUnmarked) {
  const std::string path = CUTLINE_SOURCE_DIR "/tests/samples/ppd/odd-no-default.ppd";
  makePanel(OpenPpd(ppdOpenFile(path.c_str())));
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(OddPrinters, ASingleChoiceIsSentWhateverIsClicked) {
  show("one-choice");
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(sent("LxCutLabel") + sent("LxHalfCut") + sent("LxMirror"), "1OFFON");
    EXPECT_EQ(box(OptionId::halfCut)->state(), CheckBox::kOff);
    EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOff) << "the first choice is its place";
    callback->marks.clear();
    click(OptionId::halfCut);
    click(OptionId::mirror);
    EXPECT_TRUE(callback->marks.empty());
    save();
  }
  EXPECT_EQ(sent("LxAutoTapeCut"), "") << "the printer has no such option";
}

TEST_F(OddPrinters, AnOptionWithoutChoicesIsShownDeclaredAndNeverSent) {
  show("no-choices");
  EXPECT_TRUE(isShown(OptionId::halfCut));
  EXPECT_EQ(*panel->supportedPPDOptionKeys(), (KeywordList{"LxMirror", "LxHalfCut"}));
  click(OptionId::halfCut);
  save();
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxMirror", "OFF"}}));
  EXPECT_EQ(marked("LxHalfCut"), "");
  EXPECT_FALSE(summary().contains("Half cut between labels"));
}

TEST_F(OddPrinters, OnListedFirstIsOffByItsPlace) {
  show("on-first");
  EXPECT_EQ(box(OptionId::halfCut)->state(), CheckBox::kOff);
  EXPECT_EQ(sent("LxHalfCut"), "ON");
  EXPECT_EQ(summary()["Half cut between labels"], "RS_STitle_No");
  click(OptionId::halfCut);
  save();
  EXPECT_EQ(sent("LxHalfCut"), "OFF");
}

TEST_F(OddPrinters, NumbersFromTwoWithGapsAgreeWhateverIsTyped) {
  show("labels-from-two");
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOff) << "ticked on the default 1 only";
  EXPECT_EQ(sent("LxAutoTapeCut"), "OFF");
  EXPECT_EQ(shownCount(), "3");
  click(OptionId::cutEvery);
  for (const char* typed : {"2", "3", "1", "0", "-7", "abc", "250"}) {
    typeCount(typed);
    save();
    EXPECT_EQ(shownCount(), marked("LxCutLabel")) << typed;
    EXPECT_EQ(sent("LxCutLabel"), marked("LxCutLabel")) << typed;
  }
  typeCount("2");
  EXPECT_EQ(marked("LxCutLabel"), "2");
  typeCount("3");
  EXPECT_EQ(marked("LxCutLabel"), "3");
}

TEST_F(OddPrinters, OnlyFalseAndCapitalsOpenTheAutoCutBoxAndTheLabelFamily) {
  show("hidden-true");
  EXPECT_FALSE(isShown(OptionId::autoCut));
  EXPECT_FALSE(panel->isWNPrinter());
  EXPECT_FALSE(panel->mOptionView->isWN());
  EXPECT_EQ(sent("LxAutoTapeCut"), "ON");
  click(OptionId::cutEvery);
  save();
  EXPECT_EQ(sent("LxAutoTapeCut"), "OFF");
}

TEST_F(OddPrinters, MissingTextsAreTheKeywords) {
  show("missing-texts");
  EXPECT_EQ(box(OptionId::halfCut)->title(), "LxHalfCut");
  EXPECT_EQ(box(OptionId::cutEvery)->title(), "LxCutLabel");
  EXPECT_EQ(summary()["LxMirror"], "RS_STitle_No");
  EXPECT_EQ(summary()["LxCutLabel"], "1 RS_Labels") << "ticked on the default 1";
}

TEST_F(OddPrinters, ATextThatIsNoUTF8GivesWayToThePanelsOwn) {
  show("bad-text");
  EXPECT_EQ(box(OptionId::halfCut)->title(), "RS_HalfCut");
  EXPECT_EQ(summary()["RS_STitle_HalfCut"], "RS_STitle_No");
}

TEST_F(OddPrinters, TextsInUTF8AreTitles) {
  show("utf8");
  EXPECT_EQ(box(OptionId::halfCut)->title(), "Nur Trägerfolie übrig lassen");
  EXPECT_EQ(box(OptionId::mirror)->title(), "鏡像印刷");
  EXPECT_EQ(panel->mMirror_Choices->back()->userTitle(), "オン");
}

TEST_F(OddPrinters, SizeNamesCountByTheirFirstTwoCapitals) {
  show("size-names");
  const auto tapeStateOn = [&](const char* paper) {
    callback->paper.name = paper;
    panel->saveSetting_RemoveBlkSpace();
    const int state = panel->getTapeState();
    panel->enabledCheck_OP();
    EXPECT_EQ(box(OptionId::removeBlkSpace)->isEnabled(), state == 0) << paper;
    return state;
  };
  for (const char* paper : {"DC", "AV24H50"}) EXPECT_EQ(tapeStateOn(paper), 1) << paper;
  for (const char* paper : {"dc24H50", "D24H50", "av24H60", "HS24H50"}) {
    EXPECT_EQ(tapeStateOn(paper), 0) << paper;
  }
  for (const auto& [paper, choice] :
       std::map<std::string, std::string>{{"hs24H60", "ON"}, {"HS24H50", "OFF"}}) {
    ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
    callback->paper.name = paper;
    postPaperChange();
    EXPECT_EQ(marked("LxAutoTapeCut"), choice) << paper;
  }
}

// Each control of the panel, whatever the printer.
class OddPrintersWalk : public OddPrinters, public testing::WithParamInterface<const char*> {
 protected:
  // Shown, marked and sent are the same for each option that has a control and a choice.
  void expectAgreement(const std::string& after) {
    SCOPED_TRACE(after);
    save();
    for (const Mark& mark : callback->marks) EXPECT_EQ(marked(mark.key), mark.choice) << mark.key;
    for (const OptionRow& row : kOptions) {
      const ChoiceList* choices = ((*panel).*row.choices).get();
      if (!choices || choices->empty() || !isShown(row.id)) continue;
      EXPECT_EQ(sent(row.keyword), marked(row.keyword)) << row.keyword;
      if (row.id == OptionId::cutEvery) {
        expectCountAgreement();
      } else {
        EXPECT_EQ(panel->indexOfMarkedOption(choices, row.keyword), placeOf(row)) << row.keyword;
      }
    }
  }
  // Where the box stands, as far as the list and special tape let it.
  std::int64_t placeOf(const OptionRow& row) const {
    const bool overridden = row.savedOffUnderSpecialTape && isShown(OptionId::specialTape) &&
                            box(OptionId::specialTape)->state() != CheckBox::kOff;
    const auto last = static_cast<int>(((*panel).*row.choices)->size()) - 1;
    return overridden ? 0 : std::min(box(row.id)->state(), last);
  }
  void expectCountAgreement() {
    EXPECT_EQ(shownCount(), marked("LxCutLabel"));
    EXPECT_EQ(std::to_string(panel->mCutEveryStpr->intValue()), marked("LxCutLabel"));
    if (!panel->mAutoCut_Option || isShown(OptionId::autoCut)) return;
    EXPECT_EQ(marked("LxAutoTapeCut"),
              panel->indexForSaveAutoChain(panel->mCutEveryChkBx) == 1 ? "ON" : "OFF");
  }
  void step(int by) { dynamic_cast<PlainStepper&>(*panel->mCutEveryStpr).performStep(by); }
};

TEST_P(OddPrintersWalk, ShownMarkedAndSentAgree) {
  show(GetParam());
  expectAgreement("showing");
  for (const char* round : {"first", "second", "third"}) {
    for (const OptionRow& row : kOptions) {
      if (box(row.id)->isHidden() || !box(row.id)->isEnabled()) continue;
      click(row.id);
      expectAgreement(std::string(round) + " click on " + row.keyword);
    }
    for (const char* typed : {"1", "2", "3", "99", "0"}) {
      if (!panel->mCutEveryTxBx->isHidden() && panel->mCutEveryTxBx->isEnabled()) typeCount(typed);
      expectAgreement(std::string("typing ") + typed);
    }
    for (const int by : {+1, +1, -1, -1, -1}) {
      step(by);
      expectAgreement("stepping");
    }
    for (const PopUpItem& item : panel->mOptionPopUpButton->items()) {
      ASSERT_TRUE(panel->mOptionPopUpButton->performSelection(item.tag));
      expectAgreement("preset " + std::to_string(item.tag));
    }
    panel->restoreValuesAndReturnError(nullptr);
    expectAgreement("restoring");
  }
}

TEST_P(OddPrintersWalk, TheSummarySaysYesExactlyWhereTheSecondChoiceIsMarked) {
  show(GetParam());
  for (const OptionRow& row : kOptions) {
    if (isShown(row.id) && box(row.id)->isEnabled()) click(row.id);
    panel->setPDEItems2();
    for (const OptionRow& each : kOptions) {
      const PDEChoice* selection = (*panel).*each.selection;
      if (!selection || each.id == OptionId::cutEvery) continue;
      const auto place = panel->indexOfMarkedOption(((*panel).*each.choices).get(), each.keyword);
      EXPECT_EQ(((*panel).*each.choices)->at(static_cast<std::size_t>(place)).get(), selection);
      if (each.id == OptionId::autoCut && panel->mCutEvery_Selection) continue;
      const std::string title =
          PDEUtilsMethod13::newOptionTitle((*panel).*each.option).value_or(each.summaryKey);
      EXPECT_EQ(summary()[title], place == 1 ? "RS_STitle_Yes" : "RS_STitle_No") << title;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EachOddPpd, OddPrintersWalk,
                         testing::Values("bad-text", "boolean", "hidden-true", "labels-from-two",
                                         "missing-texts", "no-choices", "no-default", "on-first",
                                         "one-choice", "size-names", "utf8"),
                         [](const auto& info) {
                           std::string name = info.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace cutline::test
