// The print dialog in this process, on a real print server, and a user's hands and eyes.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <memory>
#include <string>

#include "host/core/CommandLine.h"
#include "host/core/HostPlatform.h"
#include "host/core/PrintModel.h"
#include "host/dialog/PrintDialog.h"
#include "platform/ports/Controls.h"
#include "qt/QtToolkit.h"
#include "tests/support/PrintedJob.h"
#include "tests/support/qt/waiting.h"

class QComboBox;
class QPushButton;

namespace cutline::test {

// A click in the middle of what takes it.
void click(QWidget* widget);
// Puts the text in place of what a field holds, key by key.
void type(QWidget* field, const QString& text);
// Walks through the list with the keyboard. `data` is what the entry stands for.
void choose(QComboBox* list, const QString& data);

class DialogOnServer {
 public:
  // What `cutline -d PRINTER FILE` shows. `print` stands for the server where a test has to come in
  // between. Throws where the printer cannot be opened.
  explicit DialogOnServer(const CommandLine& line, std::shared_ptr<PrintServer> print = nullptr);
  explicit DialogOnServer(const std::string& printer);
  ~DialogOnServer();

  PrintDialog& dialog() { return *mDialog; }
  PrintModel& model() { return *mModel; }

  // The panel's shown check box for an option; null when there is none.
  CheckBox* checkBox(const std::string& keyword);
  QWidget* box(const std::string& keyword);
  // The shown control of this kind and accessible name.
  template <class Widget>
  Widget* named(const char* accessibleName) {
    for (Widget* widget : mDialog->findChildren<Widget*>()) {
      if (widget->accessibleName() == QLatin1String(accessibleName)) return widget;
    }
    ADD_FAILURE() << "no control is called " << accessibleName;
    return nullptr;
  }
  // Clicks the button that says so, once the dialog takes clicks; "&" marks its key.
  void press(const char* text);

  // Whatever was clicked before, a click counts again.
  static void waitForClicks();
  bool canPrint() const;
  // Its text tells how many labels there are.
  QPushButton* printButton() const;
  // Clicks Print, waits until the labels are out, and closes the dialog.
  void print();
  bool waitForClose();

  // A label on the screen has the text, at once or within the time that waitUntil gives.
  bool shows(const QString& part) const;
  bool willShow(const QString& part) const;
  Choices sent() const;
  // The summary as it is on the screen.
  Choices summary() const;
  // Which of the bundle's pictures the panel's preview shows.
  std::string picture();

 private:
  QtToolkit mToolkit;
  HostPlatform mPlatform;
  std::unique_ptr<PrintModel> mModel;
  std::unique_ptr<PrintDialog> mDialog;
};

// The command line `cutline -d PRINTER labels.pdf`.
CommandLine dialogOn(const std::string& printer);

}  // namespace cutline::test
