// Puts options that were kept from libcups back among those of their group.
#pragma once

#include <cups/ppd.h>

#include <optional>
#include <vector>

#include "cups/EasedPpd.h"

namespace cutline {

// Gives the groups the options that were left out, in their places, and the PPD's sorted list of
// options, too. Answers those, sorted so. Nothing where a group is missing or has other options
// than it should have, or there is no memory; what is left then is good for ppdClose alone.
std::optional<std::vector<ppd_option_t*>> putBackOptions(ppd_file_t& ppd, EasedPpd& eased);

}  // namespace cutline
