// Records of options and of their default choices, as libcups 2.4.2 makes them: ppdClose frees what
// they hold.
#pragma once

#include <cups/ppd.h>

#include "cups/PpdOptionBlock.h"

namespace cutline {

// Fills the empty record of an option in its place. No where there is no memory: it is good for
// ppdClose then.
bool fillOption(ppd_option_t& option, const OptionBlock& block);

// The attribute that names an option's default choice; the caller frees it, or gives it to a PPD's
// records. Null where there is no memory.
ppd_attr_t* newDefault(const ppd_option_t& option);

}  // namespace cutline
