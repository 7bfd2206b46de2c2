// What the panel does on its own is heard, and what it refuses is refused here, too.
#include <algorithm>

#include "tests/access/EventLog.h"
#include "tests/access/ScreenReaderTest.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

constexpr const char* kNameChange = "object:property-change:accessible-name";
constexpr const char* kShown = "object:state-changed:showing";

class PanelByBus : public ScreenReaderTest {
 protected:
  void press(const Accessible& box) {
    const bool before = box.is(ATSPI_STATE_CHECKED);
    ASSERT_TRUE(box.press());
    ASSERT_TRUE(waitUntil([&] { return box.is(ATSPI_STATE_CHECKED) != before; }));
  }
  // The lines of the notices.
  std::vector<std::string> alerts() const {
    std::vector<std::string> lines;
    for (const Accessible& each : allOf(dialog()))
      if (each.role() == ATSPI_ROLE_ALERT && each.is(ATSPI_STATE_SHOWING))
        lines.push_back(each.name());
    return lines;
  }
};

TEST_F(PanelByBus, SpecialTapeGreysWhatItRulesOutAndSaysWhatIsSent) {
  startDialog("tape24");
  const Accessible halfCut = box("Half cut between labels");
  const Accessible every = box("Cut automatically after every");
  const Accessible number = count();
  const Accessible arrows = stepper();
  for (const Accessible& each : {halfCut, every, number, arrows}) EXPECT_TRUE(each.isUsable());
  const EventLog shown(kShown);
  press(box("Special tape (never cut)"));
  EXPECT_TRUE(waitUntil([&] { return !halfCut.isUsable(); }));
  for (const Accessible& each : {halfCut, every, number, arrows}) {
    EXPECT_FALSE(each.is(ATSPI_STATE_ENABLED)) << each.name();
    EXPECT_FALSE(each.is(ATSPI_STATE_SENSITIVE)) << each.name();
  }
  EXPECT_TRUE(box("Mirror printing").isUsable());
  EXPECT_EQ(picture(), "Special tape, not cut, not mirrored");
  const std::vector<std::string> heard = {
      "Cut automatically: sent as \"Off\" because special tape is on.",
      "Cut after the last label: sent as \"On\", but nothing is cut while special tape is on."};
  EXPECT_TRUE(waitUntil([&] { return alerts() == heard; }));
  EXPECT_TRUE(waitUntil([&] { return shown.sourcesWith(ATSPI_ROLE_ALERT) == heard; }))
      << "announced";
  press(box("Special tape (never cut)"));
  EXPECT_TRUE(waitUntil([&] { return halfCut.isUsable(); }));
  EXPECT_TRUE(alerts().empty());
}

TEST_F(PanelByBus, AGreyedControlTakesNothing) {
  startDialog("tape24");
  const Accessible number = count();
  const Accessible arrows = stepper();
  press(box("Cut automatically after every"));
  EXPECT_TRUE(waitUntil([&] { return !number.isUsable(); }));
  arrows.setValue(7);
  number.setText("8");
  box("Special tape (never cut)").press();
  EXPECT_TRUE(waitUntil([&] { return !box("Half cut between labels").isUsable(); }));
  EXPECT_FALSE(box("Half cut between labels").press());
  EXPECT_EQ(arrows.value(), 1);
  EXPECT_EQ(number.text(), "1");
  EXPECT_EQ(summary("Half cut between labels"), "No");
}

TEST_F(PanelByBus, WhatIsNoNumberBecomesOne) {
  startDialog("tape24");
  const Accessible number = count();
  ASSERT_TRUE(number.setText("4"));
  EXPECT_TRUE(waitUntil([&] { return stepper().value() == 4; }));
  ASSERT_TRUE(number.setText("abc"));
  EXPECT_TRUE(waitUntil([&] { return number.text() == "1"; })) << number.text();
  EXPECT_EQ(stepper().value(), 1);
  ASSERT_TRUE(number.setText("250"));
  EXPECT_TRUE(waitUntil([&] { return number.text() == "99"; })) << number.text();
  EXPECT_EQ(summary("Cut automatically after every"), "99 label(s)");
}

TEST_F(PanelByBus, ThePanelsPresetsAreChosenFrom) {
  startDialog("tapeb");
  const std::string before = "Cutting preset: Automatic cut";
  const Accessible presets = control(ATSPI_ROLE_COMBO_BOX, before);
  ASSERT_TRUE(presets.perform("Increase"));
  EXPECT_TRUE(waitUntil([&] { return presets.name() != before; })) << presets.name();
  EXPECT_EQ(presets.name(), "Cutting preset: Auto cut, chain");
  EXPECT_TRUE(box("Chain printing (saves tape)").is(ATSPI_STATE_CHECKED));
  EXPECT_EQ(picture(), "Auto cut on, no half cut, chain printing, not mirrored");
  ASSERT_TRUE(presets.perform("Decrease"));
  EXPECT_TRUE(waitUntil([&] { return presets.name() == before; })) << presets.name();
}

TEST_F(PanelByBus, TheWarningOfHeatShrinkTubeIsReadAndDismissed) {
  startDialog("tape24");
  const Accessible paper = control(ATSPI_ROLE_COMBO_BOX, "Tape 24 mm, label 50 mm");
  const std::string tube = "Heat-shrink tube 24 x 50 mm";
  for (std::string name = paper.name(); name != tube; name = paper.name()) {
    ASSERT_TRUE(paper.perform("Increase"));
    ASSERT_TRUE(waitUntil([&] { return paper.name() != name; })) << name;
  }
  const Accessible every = box("Cut automatically after every");
  EXPECT_FALSE(every.is(ATSPI_STATE_CHECKED));
  ASSERT_TRUE(every.press()) << "whoever asks must not wait for the answer to the warning";
  Accessible warning;
  ASSERT_TRUE(waitUntil([&] {
    warning = question();
    return bool(warning);
  }));
  const std::string text =
      "The paper is heat-shrink tube. Cutting tube automatically can jam the cutter. Turn "
      "automatic cutting off and cut the tube by hand.";
  EXPECT_TRUE(find(warning, ATSPI_ROLE_LABEL, text)) << describeTree(warning);
  ASSERT_TRUE(find(warning, ATSPI_ROLE_PUSH_BUTTON, "OK").press());
  EXPECT_TRUE(waitUntil([&] { return !question(); }));
  EXPECT_TRUE(every.is(ATSPI_STATE_CHECKED)) << "the warning only warns";
}

TEST_F(PanelByBus, EveryControlTakesTheKeyboardInTurn) {
  startDialog("tape24");
  activate();
  for (const Accessible& each : allOf(dialog())) {
    const bool takesKeys = each.is(ATSPI_STATE_FOCUSABLE) && each.is(ATSPI_STATE_SHOWING) &&
                           each.isUsable() && each.role() != ATSPI_ROLE_LIST_ITEM;
    if (!takesKeys) continue;
    EXPECT_TRUE(each.grabFocus()) << each.roleName() << each.name();
    EXPECT_TRUE(waitUntil([&] { return each.is(ATSPI_STATE_FOCUSED); })) << each.name();
  }
}

TEST_F(PanelByBus, APictureThatChangesIsAnnouncedOnce) {
  startDialog("tape24");
  const EventLog renamed(kNameChange);
  press(box("Half cut between labels"));
  EXPECT_TRUE(waitUntil([&] { return !renamed.sourcesWith(ATSPI_ROLE_IMAGE).empty(); }));
  press(box("Cut after the last label"));  // no picture of a tape shows it
  press(box("Mirror printing"));
  EXPECT_TRUE(waitUntil([&] { return renamed.sourcesWith(ATSPI_ROLE_IMAGE).size() == 2; }));
  EXPECT_EQ(renamed.sourcesWith(ATSPI_ROLE_IMAGE).front(),
            "Auto cut on, half cut between labels, mirrored");
}

}  // namespace
}  // namespace cutline::test
