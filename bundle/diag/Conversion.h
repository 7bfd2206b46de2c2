// One conversion of a format, as in "%-08.3lx", taken apart.
#pragma once

#include <optional>
#include <string_view>

#include "bundle/diag/ArgumentReader.h"

namespace cutline {

struct Conversion {
  bool leftAligned = false;  // "-"
  bool signAlways = false;   // "+"
  bool signBlank = false;    // " "
  bool alternative = false;  // "#"
  bool zeroPadded = false;   // "0"
  int width = 0;             // in characters
  std::optional<int> precision;
  int bits = 32;              // of an integer, by its length modifier
  char type = '\0';           // the letter; NUL where the format ends before it
  std::string_view spelling;  // as it stands in the format
};

// Takes the conversion at the start of the format, which is a "%", off the format. The arguments
// are asked for a width or precision of "*"; one that is no integer counts as not given.
Conversion readConversion(std::string_view& format, ArgumentReader& arguments) noexcept;

}  // namespace cutline
