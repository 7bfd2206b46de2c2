// A part of a text. Both members are counted in UTF-16 units.
#pragma once

#include <cstddef>

namespace cutline {

struct TextRange {
  std::size_t location = 0;
  std::size_t length = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

}  // namespace cutline
