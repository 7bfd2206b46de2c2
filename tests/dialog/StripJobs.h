// Jobs for the tests of the strip.
#pragma once

#include <random>

#include "host/dialog/StripContent.h"
#include "tests/support/Pages.h"

namespace cutline::test {

using Dice = std::mt19937;
inline unsigned upTo(Dice& dice, unsigned most) {
  return std::uniform_int_distribution<unsigned>(0, most)(dice);
}

// 24 mm wide and 50 mm long, as points.
inline LabelPage tapeLabel(double length = 141.732, int upright = 90) {
  LabelPage label{68.031, length, 4, 8, 64, length - 8};
  label.upright = upright;
  return label;
}

inline CutSettings tapeSettings() {
  CutSettings settings;
  settings.leader = 8;
  settings.feed = 4;
  return settings;
}

// A document of so many pages, one copy.
inline StripContent jobOf(unsigned pages, const CutSettings& settings = tapeSettings(),
                          const LabelPage& label = tapeLabel()) {
  LabelRun run;
  run.pages = test::pagesUpTo(pages);
  run.labelLength = label.length / 72 * 25.4;
  return {label, CutPlan(settings, run), true};
}

}  // namespace cutline::test
