// The options of a PPD of which it is clear where they begin and end: those that are opened once,
// and closed again.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "cups/PpdStatements.h"

namespace cutline {

struct PlainOption {
  std::string_view keyword;
  // Its statements, by number, from OpenUI, or the default choice right before it, to CloseUI.
  std::size_t first = 0, last = 0;
  bool isNamedElsewhere = false;  // another statement says something of it, too
  bool isOpenedTwice = false;     // never of those that are answered
};

// The plain options among the statements, in their order.
std::vector<PlainOption> plainOptions(const std::vector<PpdStatement>& statements);

}  // namespace cutline
