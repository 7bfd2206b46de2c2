#include "platform/SystemLog.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
SystemLog::~SystemLog() = default;

}  // namespace cutline
