// The options of a PPD whose reading can be changed without changing what is read: those that are
// opened once, are closed again, and are named nowhere else.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "cups/PpdStatements.h"

namespace cutline {

inline constexpr std::size_t kNoStatement = static_cast<std::size_t>(-1);

struct PlainOption {
  std::string_view keyword;
  std::size_t first = 0, last = 0;  // of its statements, by number: OpenUI and CloseUI
  // The statement that says its default choice and nothing else, and that choice; kNoStatement
  // where there is none, or more than one, or libcups makes more of it.
  std::size_t defaultAt = kNoStatement;
  std::string_view defaultChoice;
};

// The plain options among the statements, in their order.
std::vector<PlainOption> plainOptions(const std::vector<PpdStatement>& statements);

}  // namespace cutline
