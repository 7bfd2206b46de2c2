#include <gtest/gtest.h>

#include "bundle/plugin/BasePDE13_v400_.h"
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "tests/bundle/TestBundle.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/TestCallback.h"

namespace cutline::test {
namespace {

constexpr char kTrackingAreas[] = "NSViewDidUpdateTrackingAreasNotification";

// A concrete panel that only remembers which hooks ran.
class HookPanel : public BasePDE13_v400_ {
 public:
  BasePDE13_v400_* init() noexcept override { return refuses ? nullptr : this; }
  void initSetTitleTexts() noexcept override { hooks.emplace_back("initSetTitleTexts"); }
  void initUI() noexcept override { hooks.emplace_back("initUI"); }
  void setValuesToKey() noexcept override { hooks.emplace_back("setValuesToKey"); }
  void setPDEItems() noexcept override { hooks.emplace_back("setPDEItems"); }
  void setPDEItems2() noexcept override { hooks.emplace_back("setPDEItems2"); }
  void updateMarkedSelections(std::uint32_t item) noexcept override {
    hooks.push_back("updateMarkedSelections " + std::to_string(item));
  }

  bool refuses = false;
  std::vector<std::string> hooks;
};

class BasePDE : public testing::Test {
 protected:
  void makePanel(const PpdText& text) {
    ppd = text.open();
    callback->ppd = ppd.get();
    panel = std::make_unique<HookPanel>();
    panel->initWithCallback(callback, bundle);
  }
  std::unique_ptr<ChoiceList> choicesOf(const char* keyword) {
    return PDEUtilsMethod13::arrayFromPPDOption(ppdFindOption(ppd.get(), keyword));
  }
  void setKeyWindowHeight(double height) {
    platform.toolkit.setKeyWindowFrame(Rect{{}, {800, height}});
  }
  void growDialog() {
    const void* view = static_cast<const View*>(panel->kPDEView.get());
    platform.center.postNotificationName(kTrackingAreas, view);
  }

  TestPlatform platform;
  std::shared_ptr<TestCallback> callback = std::make_shared<TestCallback>();
  std::shared_ptr<TestBundle> bundle = std::make_shared<TestBundle>();
  OpenPpd ppd;
  std::unique_ptr<HookPanel> panel;
};

using Hooks = std::vector<std::string>;

TEST_F(BasePDE, AsksTheCallbackForEverythingInOrder) {
  makePanel(PpdText());
  EXPECT_EQ(callback->asks, (Hooks{"printSession", "printSettings", "printSettings", "pageFormat",
                                   "PMPrinter", "ppdFile"}));
  EXPECT_EQ(panel->printSession, &callback->session);
  EXPECT_EQ(panel->pmPrintSettings, &callback->settings);
  EXPECT_EQ(panel->printSettings, panel->pmPrintSettings);
  EXPECT_EQ(panel->formatSettings, static_cast<PMPageFormat>(&callback->format));
  EXPECT_EQ(panel->printer, &callback->printer);
  EXPECT_EQ(panel->ppd, ppd.get());
  EXPECT_STREQ(panel->deviceURI, "usb://maker/model");
  EXPECT_EQ(panel->mSupportedOptions, nullptr);
  EXPECT_FALSE(panel->thePDEName);
  EXPECT_EQ(panel->mLoadedNibFlg, 0);
  EXPECT_EQ(panel->mFormattedItemFlg, 0);
}

TEST_F(BasePDE, RetainsCallbackAndBundleAsLongAsItLives) {
  makePanel(PpdText());
  const std::weak_ptr<TestCallback> heldCallback = callback;
  const std::weak_ptr<TestBundle> heldBundle = bundle;
  callback.reset();
  bundle.reset();
  EXPECT_FALSE(heldCallback.expired());
  EXPECT_FALSE(heldBundle.expired());
  panel.reset();
  EXPECT_TRUE(heldCallback.expired());
  EXPECT_TRUE(heldBundle.expired());
}

TEST_F(BasePDE, ARefusingRootInitialiserGivesNoPanel) {
  HookPanel refusing;
  refusing.refuses = true;
  EXPECT_EQ(refusing.initWithCallback(callback, bundle), nullptr);
  EXPECT_TRUE(callback->asks.empty());
  EXPECT_EQ(refusing.pdePluginCallbackObject, nullptr);
}

TEST_F(BasePDE, StandsWithoutCallbackAndBundle) {
  HookPanel lonely;
  EXPECT_EQ(lonely.initWithCallback(nullptr, nullptr), &lonely);
  EXPECT_EQ(lonely.panelView(), nullptr);
  EXPECT_EQ(lonely.panelName(), "OP_PANEL_NAME");
  EXPECT_FALSE(lonely.isWNPrinter());
  lonely.setViewFrameSize({1, 1});
  lonely.dialogDidExpand({kTrackingAreas, {}});
}

TEST_F(BasePDE, ADeviceURIOf254BytesIsTheLongestKept) {
  for (const auto& [length, kept] : std::vector<std::pair<std::size_t, std::size_t>>{
           {0, 0}, {1, 1}, {254, 254}, {255, 0}, {256, 0}, {5000, 0}}) {
    callback->printer.uri = std::string(length, 'u');
    makePanel(PpdText());
    EXPECT_EQ(std::string(panel->deviceURI).size(), kept) << length;
  }
}

TEST_F(BasePDE, TheDeviceURIIsMeasuredInTheSystemEncoding) {
  callback->printer.uri = "usb://" + std::string(247, 'x') + "ä";  // 255 bytes in UTF-8
  makePanel(PpdText());
  EXPECT_STREQ(panel->deviceURI, "");
  TestPlatform latin("ISO-8859-1");
  makePanel(PpdText());
  EXPECT_EQ(std::string(panel->deviceURI), "usb://" + std::string(247, 'x') + "\xE4");
}

TEST_F(BasePDE, AMissingDeviceURILeavesTheFieldEmpty) {
  callback->printer.uri.reset();
  makePanel(PpdText());
  EXPECT_STREQ(panel->deviceURI, "");
  callback->printer.uri = "usb://x";
  callback->printer.status = kPMGeneralError;
  makePanel(PpdText());
  EXPECT_STREQ(panel->deviceURI, "");
  callback->hasPrinter = false;
  makePanel(PpdText());
  EXPECT_STREQ(panel->deviceURI, "");
  callback->hasPrinter = true;
  callback->printer.status = noErr;
  platform.dropTextEncodings();
  makePanel(PpdText());
  EXPECT_STREQ(panel->deviceURI, "");
}

TEST_F(BasePDE, LoadsItsViewOnce) {
  makePanel(PpdText());
  const auto view = panel->panelView();
  ASSERT_TRUE(view);
  EXPECT_EQ(view, panel->kPDEView);
  EXPECT_EQ(panel->panelView(), view);
  EXPECT_EQ(bundle->loadedInterfaces, Hooks{"OptionPDE"});
}

TEST_F(BasePDE, AMissingInterfaceFileGivesNoView) {
  bundle->interfaceIsMissing = true;
  makePanel(PpdText());
  EXPECT_EQ(panel->panelView(), nullptr);
}

TEST_F(BasePDE, ReadsItsNameOnce) {
  bundle->strings["OP_PANEL_NAME"] = "Cut options";
  makePanel(PpdText());
  EXPECT_EQ(panel->panelName(), "Cut options");
  bundle->strings["OP_PANEL_NAME"] = "Other";
  EXPECT_EQ(panel->panelName(), "Cut options");
  EXPECT_EQ(panel->panelKind(), "org.cutline.printer.cups.pde.OptionPDEKind");
}

TEST_F(BasePDE, TheContractsDefaults) {
  makePanel(PpdText());
  EXPECT_EQ(panel->supportedPPDOptionKeys(), nullptr);
  EXPECT_EQ(panel->hooks, Hooks{"setValuesToKey"});
  panel->hooks.clear();
  panel->willShow();
  EXPECT_EQ(panel->hooks, (Hooks{"initSetTitleTexts", "initUI", "setPDEItems"}));
  panel->hooks.clear();
  std::string error = "untouched";
  EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
  EXPECT_EQ(panel->hooks, (Hooks{"setPDEItems2", "setPDEItems"}));
  panel->hooks.clear();
  EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
  EXPECT_EQ(panel->hooks, Hooks{"setValuesToKey"});
  panel->hooks.clear();
  EXPECT_EQ(error, "untouched");
  EXPECT_TRUE(panel->shouldHide());
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_FALSE(panel->shouldShowHelp());
  EXPECT_EQ(panel->summaryInfo(), nullptr);
  EXPECT_EQ(panel->indexForSummary(0x100), 0);
  panel->printWindowWillClose();
  panel->PPDOptionKeyValueDidChange("LxMirror", "ON");
  panel->updateUIItem(0x100);
  panel->getValuesFromKey();
  EXPECT_TRUE(panel->hooks.empty());
}

TEST_F(BasePDE, HasNoActionsAndOneOutlet) {
  makePanel(PpdText());
  const auto view = platform.toolkit.createView({});
  EXPECT_TRUE(panel->connectOutlet("kPDEView", view));
  EXPECT_EQ(panel->kPDEView, view);
  EXPECT_FALSE(panel->connectOutlet("kPDEView", nullptr));
  EXPECT_FALSE(panel->connectOutlet("other", view));
  EXPECT_FALSE(panel->actionNamed("changeOption:"));
  panel->controlTextDidChange({"NSControlTextDidChangeNotification", {}});
}

TEST_F(BasePDE, ReadsTheFileVersion) {
  makePanel(PpdText().attribute("FileVersion", "1.25"));
  EXPECT_EQ(panel->fileVerString(), "1.25");
  makePanel(PpdText());
  EXPECT_EQ(panel->fileVerString(), std::nullopt);
  panel->ppd = nullptr;
  EXPECT_EQ(panel->fileVerString(), std::nullopt);
}

TEST_F(BasePDE, TheLabelFamilyIsExactlyWN) {
  const std::vector<std::pair<std::string, bool>> expected = {
      {"WN", true}, {"wn", false}, {"WN ", false}, {"KM", false}, {"", false}, {"WNX", false}};
  for (const auto& [value, isWN] : expected) {
    makePanel(PpdText().attribute("LxTapeType", value));
    EXPECT_EQ(panel->isWNPrinter(), isWN) << "'" << value << "'";
  }
  makePanel(PpdText());
  EXPECT_FALSE(panel->isWNPrinter());
  panel->ppd = nullptr;
  EXPECT_FALSE(panel->isWNPrinter());
}

TEST_F(BasePDE, MarkingAChoiceTellsTheHostAndReadsItBack) {
  makePanel(PpdText().option("LxTape", {"A", "B", "C"}, "A"));
  const auto choices = choicesOf("LxTape");
  EXPECT_EQ(panel->selectionForItem(2, "LxTape", choices.get(), 0x400), (*choices)[2].get());
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxTape", "C"}}));
  EXPECT_EQ(markedChoice(ppd.get(), "LxTape"), "C");
  EXPECT_EQ(panel->hooks, Hooks{"updateMarkedSelections 1024"});
}

TEST_F(BasePDE, AnIndexOutsideTheListMarksNothing) {
  makePanel(PpdText().option("LxTape", {"A", "B", "C"}, "A").option("LxEmpty", {}, ""));
  const auto choices = choicesOf("LxTape");
  const auto empty = choicesOf("LxEmpty");
  ASSERT_TRUE(empty);
  EXPECT_EQ(panel->selectionForItem(3, "LxTape", choices.get(), 0x400), nullptr);
  EXPECT_EQ(panel->selectionForItem(-1, "LxTape", choices.get(), 0x400), nullptr);
  EXPECT_EQ(panel->selectionForItem(0, "LxTape", nullptr, 0x400), nullptr);
  EXPECT_EQ(panel->selectionForItem(0, "LxEmpty", empty.get(), 0x400), nullptr);
  EXPECT_TRUE(callback->marks.empty());
  EXPECT_TRUE(panel->hooks.empty());
}

TEST_F(BasePDE, AChoiceWithoutReadableKeywordIsHandedOnAsNone) {
  makePanel(PpdText().onOff("LxMirror"));
  const auto choices = choicesOf("LxMirror");
  (*choices)[1]->choice()->choice[0] = '\xFF';
  EXPECT_EQ(panel->selectionForItem(1, "LxMirror", choices.get(), 0x400), (*choices)[1].get());
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxMirror", "(nil)"}}));
}

TEST_F(BasePDE, TheMarkedChoicesPosition) {
  makePanel(PpdText().option("LxTape", {"A", "B", "C"}, "B").option("LxOther", {"X", "Y"}, "Y"));
  const auto choices = choicesOf("LxTape");
  const ChoiceList empty;
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxTape"), 1);
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxOther"), 0) << "not in the list";
  EXPECT_EQ(panel->indexOfMarkedOption(&empty, "LxTape"), 0);
  EXPECT_EQ(panel->indexOfMarkedOption(nullptr, "LxTape"), 0);
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxMissing"), -1);
}

TEST_F(BasePDE, NothingMarkedHasThePositionMinusOne) {
  makePanel(PpdText().onOff("LxMirror", ""));
  const auto choices = choicesOf("LxMirror");
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxMirror"), -1);
  panel->ppd = nullptr;
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxMirror"), -1);
}

TEST_F(BasePDE, AMarkedKeywordThatIsNotASCIIHasPositionZero) {
  makePanel(PpdText().onOff("LxMirror", "ON"));
  const auto choices = choicesOf("LxMirror");
  (*choices)[1]->choice()->choice[0] = '\xFF';
  EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), "LxMirror"), 0);
}

TEST_F(BasePDE, TheDefaultChoicesPosition) {
  makePanel(PpdText().option("LxTape", {"A", "B", "C"}, "C").onOff("LxMirror", ""));
  const ChoiceList empty;
  EXPECT_EQ(panel->indexOfDefaultOption(choicesOf("LxTape").get()), 2);
  EXPECT_EQ(panel->indexOfDefaultOption(choicesOf("LxMirror").get()), -1);
  EXPECT_EQ(panel->indexOfDefaultOption(&empty), 0);
  EXPECT_EQ(panel->indexOfDefaultOption(nullptr), 0);
}

TEST_F(BasePDE, TheListOfSupportedOptionsIsHeld) {
  makePanel(PpdText());
  const auto first = std::make_shared<KeywordList>(KeywordList{"A"});
  panel->setSupportedOptions(first);
  EXPECT_EQ(panel->supportedOptions(), first);
  panel->setSupportedOptions(first);
  EXPECT_EQ(panel->supportedOptions(), first);
  panel->setSupportedOptions(nullptr);
  EXPECT_EQ(panel->supportedOptions(), nullptr);
}

class BasePDEDefaults : public BasePDE {
 protected:
  void setDefaults(const char* keyword) {
    panel->setDefaultChoices(ppdFindOption(ppd.get(), keyword), choicesOf(keyword).get(), keyword,
                             keyword);
  }
};

TEST_F(BasePDEDefaults, AnUnmarkedOptionGetsItsDefault) {
  makePanel(PpdText().onOff("LxMirror", "ON"));
  ppdMarkOption(ppd.get(), "LxMirror", "ON");
  ppdFindMarkedChoice(ppd.get(), "LxMirror");
  ppd = PpdText().onOff("LxMirror", "ON").openUnmarked();
  panel->ppd = callback->ppd = ppd.get();
  setDefaults("LxMirror");
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxMirror", "ON"}}));
  EXPECT_EQ(markedChoice(ppd.get(), "LxMirror"), "ON");
}

TEST_F(BasePDEDefaults, AMarkedOptionIsLeftAlone) {
  makePanel(PpdText().onOff("LxMirror", "ON"));
  ppdMarkOption(ppd.get(), "LxMirror", "OFF");
  setDefaults("LxMirror");
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(BasePDEDefaults, WithoutADefaultOrChoicesNothingIsMarked) {
  makePanel(PpdText().onOff("LxMirror", "").option("LxEmpty", {}, ""));
  setDefaults("LxMirror");
  setDefaults("LxEmpty");
  setDefaults("LxMissing");
  EXPECT_TRUE(callback->marks.empty());
}

class BasePDEResize : public BasePDE {
 protected:
  BasePDEResize() {
    makePanel(PpdText());
    panel->panelView();
  }
};

TEST_F(BasePDEResize, ATallWindowIsToldAtOnce) {
  setKeyWindowHeight(501);
  panel->setViewFrameSize({560, 404});
  EXPECT_EQ(callback->resizes, 1);
  EXPECT_EQ(panel->kPDEView->frame().size, (Size{560, 404}));
  growDialog();
  EXPECT_EQ(callback->resizes, 1) << "nothing waits for the dialog";
}

TEST_F(BasePDEResize, AWindowThatIsJustTooLowIsToldWhenItHasGrown) {
  setKeyWindowHeight(500);
  panel->setViewFrameSize({560, 404});
  EXPECT_EQ(callback->resizes, 0);
  platform.center.postNotificationName(kTrackingAreas, static_cast<const void*>(&platform));
  EXPECT_EQ(callback->resizes, 0) << "another view";
  growDialog();
  EXPECT_EQ(callback->resizes, 1);
  growDialog();
  EXPECT_EQ(callback->resizes, 1) << "once only";
}

TEST_F(BasePDEResize, WithoutAKeyWindowNothingIsToldThoughTheViewIsResized) {
  panel->setViewFrameSize({560, 404});
  growDialog();
  EXPECT_EQ(callback->resizes, 0);
  EXPECT_EQ(panel->kPDEView->frame().size.height, 404);
}

TEST_F(BasePDEResize, AWindowThatVanishesCountsAsLow) {
  platform.toolkit.keyWindowVanishes = true;
  panel->setViewFrameSize({560, 404});
  EXPECT_EQ(callback->resizes, 0);
  growDialog();
  EXPECT_EQ(callback->resizes, 1);
}

TEST_F(BasePDEResize, AHostThatDoesNotListenChangesNothing) {
  callback->listensToResizes = false;
  setKeyWindowHeight(1000);
  const Size before = panel->kPDEView->frame().size;
  panel->setViewFrameSize({1, 2});
  EXPECT_EQ(panel->kPDEView->frame().size, before);
  EXPECT_EQ(callback->resizes, 0);
}

TEST_F(BasePDEResize, WithoutAViewItHearsOfAnyView) {
  panel->kPDEView.reset();
  setKeyWindowHeight(100);
  panel->setViewFrameSize({560, 404});
  platform.center.postNotificationName(kTrackingAreas, static_cast<const void*>(&platform));
  EXPECT_EQ(callback->resizes, 1);
}

TEST_F(BasePDEResize, APanelThatGoesBeforeTheDialogGrowsIsNotCalled) {
  setKeyWindowHeight(100);
  panel->setViewFrameSize({560, 404});
  const auto view = panel->kPDEView;
  panel.reset();
  platform.center.postNotificationName(
      kTrackingAreas, static_cast<const void*>(static_cast<const View*>(view.get())));
  EXPECT_EQ(callback->resizes, 0);
}

}  // namespace
}  // namespace cutline::test
