// What the panel asks its host again each time, and what it keeps from its creation.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Asks = std::vector<std::string>;

// A host whose dialog can go on to other objects while the panel stands.
class ChangingHost : public TestCallback {
 public:
  ChangingHost() { laterFormat.paper = &laterPaper; }

  PMPrintSettings printSettings() noexcept override {
    PMPrintSettings first = TestCallback::printSettings();
    return hasChanged ? &laterSettings : first;
  }
  PMPageFormat pageFormat() noexcept override {
    PMPageFormat first = TestCallback::pageFormat();
    return hasChanged ? &laterFormat : first;
  }
  cutline::PMPrinter PMPrinter() noexcept override {
    cutline::PMPrinter first = TestCallback::PMPrinter();
    return printersAsked++ > 0 ? &laterPrinter : first;
  }

  bool hasChanged = false;
  ScriptedSettings laterSettings;
  ScriptedPaper laterPaper;
  ScriptedPageFormat laterFormat;
  ScriptedPrinter laterPrinter;

 private:
  int printersAsked = 0;
};

class HostQuestions : public PanelTest {
 protected:
  HostQuestions() { callback = host; }

  // What the operation asks.
  template <typename Operation>
  Asks asksOf(const Operation& operation) {
    callback->asks.clear();
    operation();
    return callback->asks;
  }
  static std::string ticketFor(const std::string& paperName) {
    return "<plist version=\"1.0\"><dict><key>KmPaperName2</key><string>" + paperName +
           "</string></dict></plist>";
  }

  std::shared_ptr<ChangingHost> host = std::make_shared<ChangingHost>();
  const PpdText text = PpdText(allNine()).pageSizes({"W24", "DC24"});
};

TEST_F(HostQuestions, CreationAsksForPrinterSettingsAndFormatOnceMore) {
  makePanel(text);
  EXPECT_EQ(callback->asks,
            (Asks{"printSession", "printSettings", "printSettings", "pageFormat", "PMPrinter",
                  "ppdFile", "PMPrinter", "printSettings", "pageFormat"}));
}

TEST_F(HostQuestions, TheUSBFlagIsThatOfThePrinterAskedForAgain) {
  host->printer.uri = "ipp://office/queue";
  host->laterPrinter.uri = "usb://x";
  makePanel(text);
  EXPECT_STREQ(panel->deviceURI, "ipp://office/queue");
  EXPECT_EQ(panel->usb_dec, 1);
}

TEST_F(HostQuestions, EachOperationAsksForWhatItNeeds) {
  makePanelWithView(text);
  const Asks tape = {"printSettings", "pageFormat"};
  EXPECT_EQ(asksOf([&] { panel->enabledCheck_OP(); }), Asks{"pageFormat"});
  EXPECT_EQ(asksOf([&] { panel->initializeUI_RemoveBlkSpace(); }), tape);
  EXPECT_EQ(asksOf([&] { panel->saveSetting_RemoveBlkSpace(); }), tape);
  EXPECT_EQ(asksOf([&] { postPaperChange(); }), tape);
  EXPECT_EQ(asksOf([&] { panel->saveSetting_Mirror(); }), Asks{});
  EXPECT_EQ(asksOf([&] { panel->saveSetting_CutLabel(); }), Asks{});
  EXPECT_EQ(asksOf([&] { panel->setPDEItems2(); }), Asks{});
  EXPECT_EQ(asksOf([&] { panel->summaryInfo(); }), Asks{});
  // The rules run with the refresh and after it; ticking the box asks for the tape first.
  EXPECT_EQ(asksOf([&] { click(OptionId::halfCut); }), (Asks{"pageFormat", "pageFormat"}));
  EXPECT_EQ(asksOf([&] { click(OptionId::cutEvery); }),
            (Asks{"printSettings", "pageFormat", "pageFormat", "pageFormat"}));
  EXPECT_EQ(asksOf([&] { click(OptionId::cutEvery); }), (Asks{"pageFormat", "pageFormat"}));
}

TEST_F(HostQuestions, ThePaperIsThatOfTheFormatOfTheMoment) {
  host->laterPaper.name = "DC24";
  makePanelWithView(text);
  panel->enabledCheck_OP();
  ASSERT_TRUE(box(OptionId::removeBlkSpace)->isEnabled());
  host->hasChanged = true;
  panel->enabledCheck_OP();
  EXPECT_FALSE(box(OptionId::removeBlkSpace)->isEnabled());
  panel->initializeUI_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 1);
  host->hasChanged = false;
  panel->saveSetting_RemoveBlkSpace();
  EXPECT_EQ(panel->getTapeState(), 0);
}

TEST_F(HostQuestions, TheTicketIsThatOfTheSettingsOfTheMoment) {
  host->laterPaper.name.reset();
  host->laterSettings.values["org.cutline.print.PrintSettingsTicket.KmR3"] = ticketFor("HS12");
  showPanel(text);
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
  postPaperChange();
  ASSERT_EQ(marked("LxAutoTapeCut"), "ON");
  host->hasChanged = true;
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
  click(OptionId::cutEvery);
  EXPECT_EQ(platform.toolkit.alerts().size(), 1U);
}

TEST_F(HostQuestions, SavingGoesByTheSettingsOfTheCreation) {
  makePanelWithView(text);
  callback->hasSettings = false;
  panel->saveSetting_Mirror();
  EXPECT_EQ(callback->marks.size(), 1U);
  makePanelWithView(text);
  callback->hasSettings = true;
  panel->saveSetting_Mirror();
  EXPECT_TRUE(callback->marks.empty()) << "there were none when the panel was made";
}

TEST_F(HostQuestions, SessionAndPPDAreKept) {
  makePanelWithView(text);
  const OpenPpd another = PpdText().onOff("LxMirror", "ON").open();
  callback->ppd = another.get();
  const Asks asks = asksOf([&] {
    panel->supportedPPDOptionKeys();
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    panel->saveValuesAndReturnError(nullptr);
    for (const OptionRow& row : kOptions) click(row.id);
    panel->shouldPrint();
    postPaperChange();
    panel->summaryInfo();
  });
  for (const std::string& ask : asks) {
    EXPECT_TRUE(ask == "printSettings" || ask == "pageFormat") << ask;
  }
  EXPECT_EQ(panel->ppd, ppd.get());
  EXPECT_EQ(panel->indexOfMarkedOption(panel->mMirror_Choices.get(), "LxMirror"), 0);
}

}  // namespace
}  // namespace cutline::test
