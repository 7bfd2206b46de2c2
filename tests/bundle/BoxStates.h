// Every combination of what check boxes can look like.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/ports/Controls.h"

namespace cutline::test {

struct BoxState {
  int state;
  bool hidden;
};

// The only one of these that counts as on stands first.
inline constexpr BoxState kBoxStates[] = {{CheckBox::kOn, false},
                                          {CheckBox::kOff, false},
                                          {CheckBox::kMixed, false},
                                          {CheckBox::kOn, true}};
inline constexpr std::size_t kBoxStateCount = 4;

constexpr std::size_t combinationsOf(std::size_t boxCount) noexcept {
  return boxCount == 0 ? 1 : kBoxStateCount * combinationsOf(boxCount - 1);
}

// Puts the boxes into the combination with this number; answers which of them count as on.
inline std::vector<bool> applyBoxStates(std::size_t code, const std::vector<CheckBox*>& boxes) {
  std::vector<bool> on;
  for (CheckBox* box : boxes) {
    const BoxState& state = kBoxStates[code % kBoxStateCount];
    box->setState(state.state);
    box->setHidden(state.hidden);
    on.push_back(&state == &kBoxStates[0]);
    code /= kBoxStateCount;
  }
  return on;
}

}  // namespace cutline::test
