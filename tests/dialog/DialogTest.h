// The print dialog with the real cut panel on a sample printer, a fake server, and a user's hands.
#pragma once

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/core/HostPlatform.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "host/dialog/PrintDialog.h"
#include "platform/ports/View.h"
#include "qt/QtToolkit.h"
#include "tests/dialog/FakeComposer.h"
#include "tests/dialog/FakePrintServer.h"

namespace cutline {

inline constexpr QSize kSmallScreen{1280, 760};  // 1280 x 800 without a title bar

// Paths of PPD files: samples for users, and odd ones for tests.
std::string samplePpd(const std::string& name);
std::string oddPpd(const std::string& name);

// Runs the event loop until the condition holds; false after five seconds.
bool waitUntil(const std::function<bool()>& condition);

class DialogTest : public testing::Test {
 protected:
  DialogTest();
  ~DialogTest() override;

  // A dialog on the queue "tape" with this PPD, shown; the document is three empty pages.
  void openQueue(const std::string& ppdPath, const AskedSettings& asked = {});
  // The same on the PPD alone.
  void openPpd(const std::string& ppdPath, const AskedSettings& asked = {});
  // The documents that the dialog is opened with; one that is nowhere unless they are set.
  void setPaths(std::vector<std::string> paths) { mPaths = std::move(paths); }

  PrintDialog& dialog() { return *mDialog; }
  PrintModel& model() { return *mModel; }
  FakePrintServer& server() { return *mServer; }
  FakeComposer& composer() { return *mComposer; }
  void closeDialog();

  // The shown control of this kind and accessible name; fails the test when there is none.
  template <class Widget>
  Widget* named(const char* accessibleName) {
    for (Widget* widget : mDialog->findChildren<Widget*>()) {
      if (widget->accessibleName() == QLatin1String(accessibleName)) return widget;
    }
    ADD_FAILURE() << "no control is called " << accessibleName;
    return nullptr;
  }
  template <class Button>
  Button* buttonWithText(const QString& text) {
    for (Button* button : mDialog->findChildren<Button*>()) {
      if (button->text() == text) return button;
    }
    ADD_FAILURE() << "no button says " << text.toStdString();
    return nullptr;
  }
  template <class Button>
  Button* buttonWithText(const char* text) {
    return buttonWithText<Button>(QString::fromUtf8(text));
  }
  // Its text tells how many labels there are.
  QPushButton* printButton();
  // The panel's check box for a PPD option.
  QWidget* box(const std::string& keyword);
  void click(QWidget* widget);
  // Clicks what asks the user to read an alert before it goes on, and closes the alert.
  void clickPastAlert(QWidget* widget);
  void press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  // Every text that a shown label has.
  QStringList shownTexts() const;
  bool shows(const QString& part) const;
  std::map<std::string, std::string> sent() const;
  bool waitForClose();
  // The dialog says that the job is out.
  bool waitForPrinted();
  // Whatever was clicked before, a click counts again.
  static void waitForClicks();

 private:
  void makeDialog(const PrinterChoice& choice, const AskedSettings& asked);

  QtToolkit mToolkit;
  HostPlatform mPlatform;
  std::shared_ptr<FakePrintServer> mServer = std::make_shared<FakePrintServer>();
  std::shared_ptr<FakeComposer> mComposer = std::make_shared<FakeComposer>();
  std::vector<std::string> mPaths = {"/nowhere/labels.pdf"};
  std::unique_ptr<PrintModel> mModel;
  std::unique_ptr<PrintDialog> mDialog;
};

}  // namespace cutline
