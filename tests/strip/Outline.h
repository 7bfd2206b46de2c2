// A plan as a line of letters: ~ leader or feed, L label, | full cut, : half cut, + cut mark.
#pragma once

#include <string>

#include "strip/CutPlan.h"
#include "tests/support/Pages.h"

namespace cutline::test {

inline std::string outlineOf(const CutPlan& plan) {
  static constexpr std::string_view kLetters = "~L~:|+";
  std::string outline;
  plan.forEachEvent(
      [&](const StripEvent& event) { outline += kLetters[static_cast<std::size_t>(event.kind)]; });
  return outline;
}

// A document of so many pages.
inline LabelRun runOf(unsigned pages, std::optional<double> length = 50) {
  LabelRun run;
  run.pages = test::pagesUpTo(pages);
  run.labelLength = length;
  return run;
}

}  // namespace cutline::test
