// A text with its selection, as a text field holds it at one moment. Positions in UTF-16 units.
#pragma once

#include <QString>
#include <algorithm>

#include "platform/ports/TextField.h"

namespace cutline {

struct EditedText {
  QString text;
  int anchor = 0;  // where the selection began; equal to the caret without one
  int caret = 0;

  TextRange selection() const noexcept {
    const auto [first, last] = std::minmax(anchor, caret);
    return {static_cast<std::size_t>(first), static_cast<std::size_t>(last - first)};
  }

  friend bool operator==(const EditedText&, const EditedText&) = default;
};

}  // namespace cutline
