// How several copies are ordered, in the options of a job.
#pragma once

#include <array>

#include "base/OptionList.h"

namespace cutline {

// The options that say it.
inline constexpr std::array kCollationOptions =
    std::to_array<const char*>({"collate", "multiple-document-handling"});

// Whether these options have the print system print the whole document once a copy. Without them
// each page comes as often as there are copies.
bool collates(const OptionList& options);

// Replaces whatever they say of it.
void setCollation(bool isCollated, OptionList& options);

}  // namespace cutline
