// The real program on a display of its own, and a screen reader that has nothing of it but the
// accessibility bus.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "tests/access/Accessible.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/qt/Display.h"

namespace cutline::test {

class ScreenReaderTest : public EndToEndTest {
 protected:
  ScreenReaderTest() = default;
  ~ScreenReaderTest() override;

  // Starts `cutline -d PRINTER [words] labels.pdf` and waits until its dialog is there with all
  // that it shows. Fails the test when it does not come.
  void startDialog(const char* printer, const QStringList& words = {});
  // How the program ended; -1 when it goes on for twenty seconds.
  int exitStatus();

  Accessible dialog() const;
  // The window that asks for an answer before all others; no object when there is none.
  Accessible question() const;
  // Gives the dialog the keyboard, as a window manager does.
  void activate() const { mDisplay.activate(kTitle); }

  // The shown control of this role and name; waits for it, and fails the test when it does not
  // come.
  Accessible control(AtspiRole role, const std::string& name) const;
  Accessible box(const std::string& name) const { return control(ATSPI_ROLE_CHECK_BOX, name); }
  Accessible count() const { return control(ATSPI_ROLE_TEXT, "Number of labels between cuts"); }
  Accessible stepper() const {
    return control(ATSPI_ROLE_SPIN_BUTTON, "Change the number of labels between cuts");
  }
  Accessible button(const std::string& name) const { return control(ATSPI_ROLE_PUSH_BUTTON, name); }
  // What the panel's preview says.
  std::string picture() const;
  // A line of the summary, by its title; empty when there is none.
  std::string summary(const std::string& title) const;

 private:
  static const QString kTitle;

  Accessible program() const;

  Display mDisplay;
  QProcess mProgram;
};

}  // namespace cutline::test
