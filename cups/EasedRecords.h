// Opens PPDs with many options, whose contents are made easy for libcups before it reads them.
#pragma once

#include <cstddef>
#include <string_view>

#include "cups/EasedPpd.h"

struct ppd_file_s;

namespace cutline {

// Reads a PPD with many options: what comes out is what ppdOpenFd makes of the contents, in a
// fraction of the time. Null where there are few options, or libcups refuses the contents: to be
// given to ppdOpenFd as they are. ppdClose takes it.
ppd_file_s* openEased(std::string_view contents, std::size_t fewOptions = kFewOptions);

}  // namespace cutline
