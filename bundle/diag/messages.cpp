#include "bundle/diag/messages.h"

#include "base/Utf8.h"
#include "bundle/format/SafeFormat.h"
#include "platform/ports/Platform.h"
#include "platform/ports/System.h"

namespace cutline {

std::string convertibleText(std::string_view text) {
  std::string converted;
  converted.reserve(text.size());
  while (!text.empty()) {
    const std::string_view before = text;
    const bool isConvertible = takeCharacter(text) >= 0;
    converted.append(isConvertible ? before.substr(0, before.size() - text.size()) : "?");
  }
  return converted;
}

std::string formattedMessage(std::string_view format, FormatArguments arguments) {
  return convertibleText(safeFormat(format, arguments));
}

void logMessage(std::string_view format, FormatArguments arguments) {
  SystemLog* log = currentPlatform().systemLog;
  if (log) log->log(formattedMessage(format, arguments));
}

}  // namespace cutline
