#include "tests/portal/PortalTest.h"

#include "tests/support/qt/waiting.h"

namespace cutline::test {

PortalTest::PortalTest() {
  EXPECT_TRUE(waitForDialogs(0));
  otherDialog().calls.clear();
}

PortalTest::~PortalTest() {
  if (!HasFailure()) return;
  for (const Accessible& each : dialogs()) ADD_FAILURE() << describeTree(each);
}

std::vector<Accessible> PortalTest::dialogs() {
  std::vector<Accessible> found;
  for (const Accessible& program : desktop().children())
    for (const Accessible& each : program.children())
      if (each.role() == ATSPI_ROLE_DIALOG && each.is(ATSPI_STATE_SHOWING)) found.push_back(each);
  return found;
}

bool PortalTest::waitForDialogs(std::size_t count) {
  return waitUntil([count] { return dialogs().size() == count; });
}

Accessible PortalTest::dialogWith(const std::string& button) {
  Accessible found;
  EXPECT_TRUE(waitUntil([&] {
    for (const Accessible& each : dialogs())
      if (find(each, ATSPI_ROLE_PUSH_BUTTON, button).isUsable()) found = each;
    return bool(found);
  })) << "no dialog has a button "
      << button;
  return found;
}

Accessible PortalTest::control(const Accessible& dialog, AtspiRole role, const std::string& name) {
  Accessible found;
  EXPECT_TRUE(waitUntil([&] {
    found = find(dialog, role, name);
    return bool(found);
  })) << "nothing is called "
      << name;
  return found;
}

void PortalTest::press(const Accessible& dialog, const std::string& button) {
  EXPECT_TRUE(control(dialog, ATSPI_ROLE_PUSH_BUTTON, button).press());
}

}  // namespace cutline::test
