// What the tests of the portal share: the dialogs that are on the screen, and their controls.
#pragma once

#include <string>
#include <vector>

#include "tests/access/Accessible.h"
#include "tests/portal/Application.h"
#include "tests/portal/PortalSession.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

class PortalTest : public EndToEndTest {
 protected:
  PortalTest();
  ~PortalTest() override;

  // Our dialogs on the screen.
  static std::vector<Accessible> dialogs();
  static bool waitForDialogs(std::size_t count);
  // Waits for the one dialog that has a button of this name, and answers the dialog. Fails the test
  // where none comes.
  static Accessible dialogWith(const std::string& button);
  static Accessible control(const Accessible& dialog, AtspiRole role, const std::string& name);
  static void press(const Accessible& dialog, const std::string& button);
  static OtherDialog& otherDialog() { return PortalSession::current().otherDialog(); }
};

}  // namespace cutline::test
