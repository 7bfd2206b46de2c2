// One message to the platform's system log.
#pragma once

#include <string_view>

#include "bundle/diag/FormatArguments.h"

namespace cutline {

// Nothing happens on a platform that has no system log.
void logMessage(std::string_view format, FormatArguments arguments);

}  // namespace cutline
