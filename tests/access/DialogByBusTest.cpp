// What is around the panel.
#include "tests/access/EventLog.h"
#include "tests/access/ScreenReaderTest.h"
#include "tests/support/TemporaryBundle.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

constexpr const char* kDescriptionChange = "object:property-change:accessible-description";

class DialogByBus : public ScreenReaderTest {};

TEST_F(DialogByBus, WhatTakesTheKeyboardHasAName) {
  startDialog("tape24");
  ASSERT_TRUE(box("More printer options").press());
  control(ATSPI_ROLE_LABEL, "Darkness:");
  int controls = 0;
  for (const Accessible& each : allOf(dialog())) {
    if (!each.is(ATSPI_STATE_FOCUSABLE) || !each.is(ATSPI_STATE_SHOWING)) continue;
    const std::string name = each.name();
    EXPECT_FALSE(name.empty()) << describeTree(each);
    for (const char* forPrograms : {"RS_", "AHCM", "EveryEnd", "SPMR", "CTMR"})
      EXPECT_EQ(name.find(forPrograms), std::string::npos) << name;
    ++controls;
  }
  EXPECT_GT(controls, 30);
}

TEST_F(DialogByBus, ThePreviewSaysWhichLabelItShows) {
  startDialog("roll62");
  const Accessible preview = control(ATSPI_ROLE_IMAGE, "Preview of the labels");
  EXPECT_TRUE(waitUntil([&] {
    return preview.description().find("\nLabel 1 of 12 ") != std::string::npos;
  })) << preview.description();
  const EventLog described(kDescriptionChange);
  ASSERT_TRUE(button("Next label").press());
  EXPECT_TRUE(waitUntil([&] {
    return preview.description().find("\nLabel 2 of 12 ") != std::string::npos;
  })) << preview.description();
  EXPECT_TRUE(waitUntil([&] { return described.sourcesWith(ATSPI_ROLE_IMAGE).size() == 1; }));
}

TEST_F(DialogByBus, SpeaksTheUsersLanguage) {
  const ScopedEnvironment german(languageEnvironment({{"LANG", "de_DE.UTF-8"}}));
  startDialog("tape24");
  control(ATSPI_ROLE_IMAGE, "Automatischer Schnitt ein, ohne Halbschnitt, nicht spiegelverkehrt");
  control(ATSPI_ROLE_PUSH_BUTTON, "12 Etiketten drucken");
}

}  // namespace
}  // namespace cutline::test
