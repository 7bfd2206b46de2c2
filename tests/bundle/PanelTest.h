// A cut options panel on a printer of the test's choice.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "plain/PlainTextField.h"
#include "tests/bundle/TestBundle.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/TestCallback.h"

namespace cutline::test {

class PanelTest : public testing::Test {
 protected:
  // Makes a panel for the PPD, its defaults marked; a panel made before goes first.
  void makePanel(const PpdText& text) { makePanel(text.open()); }
  void makePanel(OpenPpd opened) {
    panel.reset();
    ppd = std::move(opened);
    callback->ppd = ppd.get();
    callback->marks.clear();
    panel = std::make_shared<OptionPDE13_v400_>();
    panel->initWithCallback(callback, bundle);
  }
  // The same with the view loaded.
  void makePanelWithView(const PpdText& text) {
    makePanel(text);
    ASSERT_TRUE(panel->panelView());
    callback->marks.clear();
  }
  // The same as the host shows it, ready for the user.
  void showPanel(const PpdText& text) {
    makePanelWithView(text);
    panel->supportedPPDOptionKeys();
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    callback->marks.clear();
  }

  std::string marked(const std::string& keyword) const { return markedChoice(ppd.get(), keyword); }
  CheckBox* box(OptionId id) const { return (*panel).*rowOf(id).checkBox; }
  // What a user who clicks the box does.
  void click(OptionId id) { box(id)->performClick(); }
  void typeCount(const std::string& text) {
    dynamic_cast<PlainTextField&>(*panel->mCutEveryTxBx).typeText(text);
  }
  bool previewNeedsDisplay() const {
    return dynamic_cast<PlainView&>(*panel->mOptionView->nativeView()).needsDisplay();
  }
  void clearPreviewNeedsDisplay() { panel->mOptionView->nativeView()->setNeedsDisplay(false); }
  void postPaperChange() {
    platform.center.postNotificationName("PMPrintDestinationPaperDidChangeNotification", {});
  }

  TestPlatform platform;
  std::shared_ptr<TestCallback> callback = std::make_shared<TestCallback>();
  std::shared_ptr<TestBundle> bundle = std::make_shared<TestBundle>();
  OpenPpd ppd;
  std::shared_ptr<OptionPDE13_v400_> panel;
};

}  // namespace cutline::test
