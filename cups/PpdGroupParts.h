// Joins groups of options that libcups read in parts.
#pragma once

#include <cups/ppd.h>

#include <string_view>
#include <vector>

namespace cutline {

// Puts the options of each part (see EasedPpd) behind those of its group and takes the parts away.
// No where one of the groups is missing, or there is no memory.
bool joinParts(ppd_file_t& ppd, const std::vector<std::string_view>& parts);

}  // namespace cutline
