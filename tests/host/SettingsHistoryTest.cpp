// Undo and redo, step by step.
#include <gtest/gtest.h>

#include "host/core/SettingsHistory.h"

namespace cutline {
namespace {

Settings with(const std::string& copies) { return {{{"copies", copies}}, {}, ""}; }

TEST(SettingsHistory, GoesBackAndForth) {
  SettingsHistory history;
  history.start(with("1"));
  EXPECT_FALSE(history.canUndo());
  history.note(with("2"));
  history.note(with("3"));
  EXPECT_EQ(history.undo(), with("2"));
  EXPECT_EQ(history.undo(), with("1"));
  EXPECT_FALSE(history.canUndo());
  EXPECT_EQ(history.redo(), with("2"));
  EXPECT_TRUE(history.canRedo());
}

TEST(SettingsHistory, WhatIsTheSameIsNoStep) {
  SettingsHistory history;
  history.note(with("1"));
  history.note(with("1"));
  EXPECT_FALSE(history.canUndo());
}

TEST(SettingsHistory, ANewStepEndsWhatWasUndone) {
  SettingsHistory history;
  for (const char* copies : {"1", "2", "3"}) history.note(with(copies));
  history.undo();
  history.note(with("9"));
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.undo(), with("2"));
}

TEST(SettingsHistory, WhatChangesByItselfBelongsToTheStepBefore) {
  SettingsHistory history;
  history.note(with("1"));
  history.note(with("2"));
  history.amend(with("4"));
  EXPECT_EQ(history.undo(), with("1"));
  EXPECT_EQ(history.redo(), with("4"));
}

TEST(SettingsHistory, ForgetsTheOldestStepsOfMany) {
  SettingsHistory history;
  for (int copies = 0; copies < 1000; ++copies) history.note(with(std::to_string(copies)));
  int steps = 0;
  while (history.canUndo()) {
    history.undo();
    ++steps;
  }
  EXPECT_EQ(steps, 199);
}

}  // namespace
}  // namespace cutline
