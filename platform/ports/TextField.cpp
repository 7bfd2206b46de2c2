#include "platform/ports/TextField.h"

#include <algorithm>

#include "base/Numbers.h"

namespace cutline {

TextField::~TextField() = default;

int TextField::intValue() const noexcept { return leadingInteger(stringValue()); }

TextRange selectionAfterCorrection(std::size_t editedLength, std::size_t caret,
                                   std::size_t correctedLength) noexcept {
  if (editedLength == 0) return {0, correctedLength};
  const std::size_t fromEnd = editedLength - std::min(caret, editedLength);
  return {correctedLength - std::min(fromEnd, correctedLength), 0};
}

}  // namespace cutline
