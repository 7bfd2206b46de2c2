// What a text field shows for a value, and which edits of the user it takes (the toolkit's
// NSFormatter). Implemented by bundles; called by a toolkit's text field, on the main thread.
#pragma once

#include <optional>
#include <string>

#include "platform/ports/TextField.h"

namespace cutline {

class Formatter {
 public:
  Formatter() = default;
  Formatter(const Formatter&) = delete;
  Formatter& operator=(const Formatter&) = delete;
  virtual ~Formatter();

  // isPartialStringValid:proposedSelectedRange:originalString:originalSelectedRange:errorDescription:
  // True when the edit that leads from the original text to the proposed one may stand. The
  // original range is the selection that the edit was made at; the proposed one is the selection
  // after it. The caller undoes a refused edit whole, and looks at nothing that was written through
  // the pointers. Any pointer may be null; the proposed text may be absent.
  virtual bool isPartialStringValid(std::optional<std::u16string>* partialString,
                                    TextRange* proposedSelectedRange,
                                    const std::u16string& originalString,
                                    TextRange originalSelectedRange,
                                    std::u16string* errorDescription) noexcept = 0;

  // stringForObjectValue:  UTF-8: what the field shows for a value that is a text; nothing when
  // the formatter cannot show it.
  virtual std::optional<std::string> stringForObjectValue(const std::string& object) noexcept = 0;

  // getObjectValue:forString:errorDescription:  The value that a shown text stands for. False, with
  // a description, when it stands for none. Any pointer may be null; the text may be absent.
  virtual bool getObjectValue(std::optional<std::string>* object,
                              const std::optional<std::string>& string,
                              std::string* errorDescription) noexcept = 0;
};

// What a field with this formatter, or with none, shows for a text: its value as the formatter
// shows it, and the text itself where it stands for no value or the formatter cannot show that.
std::string displayedText(Formatter* formatter, const std::string& text) noexcept;

}  // namespace cutline
