// Media on which tape must not be cut automatically: what happens in which order, and by which
// name.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Steps = std::vector<std::string>;

// A panel that notes what is read and refreshed.
class NotingPanel : public OptionPDE13_v400_ {
 public:
  void updateMarkedSelections(std::uint32_t item) noexcept override {
    steps.push_back("read " + std::to_string(item));
    OptionPDE13_v400_::updateMarkedSelections(item);
  }
  void updateUI() noexcept override {
    steps.emplace_back("refresh all");
    OptionPDE13_v400_::updateUI();
  }
  Steps steps;
};

// Calls the test while an alert stands open.
class AlertingToolkit : public TestToolkit {
 public:
  void runModal(const Alert& alert) noexcept override {
    TestToolkit::runModal(alert);
    if (whileOpen) whileOpen();
  }
  std::function<void()> whileOpen;
};

class HSMedia : public PanelTest {
 protected:
  HSMedia() {
    Platform now = currentPlatform();
    now.toolkit = &alerting;
    setCurrentPlatform(now);
  }
  std::shared_ptr<NotingPanel> makeNotingPanel(const PpdText& text) {
    ppd = text.open();
    callback->ppd = ppd.get();
    auto noting = std::make_shared<NotingPanel>();
    noting->initWithCallback(callback, bundle);
    panel = noting;
    EXPECT_TRUE(panel->panelView());
    return noting;
  }

  AlertingToolkit alerting;
};

TEST_F(HSMedia, APaperChangeReadsTheCutEveryGroupAloneAndRefreshesAll) {
  const auto noting = makeNotingPanel(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  noting->willShow();
  noting->restoreValuesAndReturnError(nullptr);
  for (const std::string& keyword : nineKeywords()) {
    ppdMarkOption(ppd.get(), keyword.c_str(), keyword == "LxCutLabel" ? "7" : "ON");
  }
  noting->steps.clear();
  callback->paper.name = "HS24";
  postPaperChange();
  EXPECT_EQ(noting->steps, (Steps{"read 256", "refresh all"}));
  EXPECT_EQ(panel->mCutEvery_Selection->ppdTitle(), "7");
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection->ppdTitle(), "OFF");
  // The others still stand where they were read last.
  EXPECT_EQ(panel->mHalfCut_Selection->ppdTitle(), "OFF");
  EXPECT_EQ(panel->mMirror_Selection->ppdTitle(), "OFF");
  EXPECT_EQ(panel->mCutMark_Selection->ppdTitle(), "OFF");
}

TEST_F(HSMedia, TheAutoCutBoxsOwnSelectionIsNotReadAgain) {
  makeNotingPanel(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
  panel->restoreValuesAndReturnError(nullptr);
  callback->paper.name = "HS24";
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection->ppdTitle(), "OFF");
  EXPECT_EQ(panel->mAutoCut_Selection->ppdTitle(), "ON");
}

TEST_F(HSMedia, OtherPaperChangesReadAndRefreshNothing) {
  const auto noting = makeNotingPanel(allNine());
  noting->steps.clear();
  postPaperChange();
  EXPECT_EQ(noting->steps, Steps{});
}

TEST_F(HSMedia, TheAlertIsClosedBeforeTheChoiceIsMarked) {
  callback->paper.name = "HS24";
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "OFF");
  clearPreviewNeedsDisplay();
  alerting.whileOpen = [&] {
    EXPECT_TRUE(callback->marks.empty());
    EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
    EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOn);
    EXPECT_TRUE(previewNeedsDisplay()) << "the preview is asked to draw before anything else";
  };
  click(OptionId::cutEvery);
  ASSERT_EQ(alerting.alerts().size(), 1U);
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxAutoTapeCut", "ON"}}));
}

// The name is known before the height is asked for.
class HSMediaWithoutHeight : public HSMedia {
 protected:
  HSMediaWithoutHeight() {
    callback->paper.name = "HS24";
    callback->paper.heightStatus = kPMGeneralError;
  }
};

TEST_F(HSMediaWithoutHeight, CreationTurnsAutoCutOff) {
  makePanel(PpdText().onOff("LxAutoTapeCut", "ON"));
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

TEST_F(HSMediaWithoutHeight, APaperChangeTurnsAutoCutOff) {
  callback->paper.name = "W24";
  makePanel(PpdText().onOff("LxAutoTapeCut", "ON"));
  callback->paper.name = "HS24";
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

TEST_F(HSMediaWithoutHeight, TickingCutEveryWarns) {
  showPanel(allNine());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  EXPECT_EQ(alerting.alerts().size(), 1U);
}

TEST_F(HSMediaWithoutHeight, ATicketsNameCountsToo) {
  callback->paper.nameStatus = kPMGeneralError;
  callback->settings.values["org.cutline.print.PrintSettingsTicket.KmR3"] =
      "<plist version=\"1.0\"><dict><key>KmPaperName2</key><string>HS12</string></dict></plist>";
  makePanel(PpdText().onOff("LxAutoTapeCut", "ON"));
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

TEST_F(HSMediaWithoutHeight, TheTapeStateStaysZero) {
  callback->paper.name = "DC24";
  makePanelWithView(PpdText(allNine()).pageSizes({"W24", "DC24"}));
  panel->setTapeState(1);
  panel->saveSetting_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 0);
}

}  // namespace
}  // namespace cutline::test
