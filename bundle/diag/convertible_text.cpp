#include "bundle/diag/convertible_text.h"

#include "base/Utf8.h"

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

}  // namespace cutline
