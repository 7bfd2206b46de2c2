// What was asked for beside the printer, on the command line.
#pragma once

#include <optional>
#include <string>

#include "cups/Destination.h"

namespace cutline {

struct AskedSettings {
  OptionList options;                     // -o; PPD options and others; laid over the saved options
  std::optional<int> copies;              // 1 or more; the saved ones, or 1, when absent
  std::optional<std::string> pageRanges;  // "1-4,7", as in IPP; the saved ones, or all, when absent
};

}  // namespace cutline
