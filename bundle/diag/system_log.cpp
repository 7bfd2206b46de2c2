#include "bundle/diag/system_log.h"

#include "bundle/diag/SafeFormat.h"
#include "bundle/diag/convertible_text.h"
#include "platform/ports/Platform.h"
#include "platform/ports/System.h"

namespace cutline {

void logMessage(std::string_view format, FormatArguments arguments) {
  SystemLog* log = currentPlatform().systemLog;
  if (log) log->log(convertibleText(safeFormat(format, arguments)));
}

}  // namespace cutline
