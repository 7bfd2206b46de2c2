// A single-line editable text field. Implemented by each toolkit adapter.
#pragma once

#include <functional>
#include <string>

#include "platform/Control.h"
#include "platform/TextColored.h"

namespace cutline {

class TextField : public virtual Control, public TextColored {
 public:
  ~TextField() override;

  // UTF-8. Setting equal text changes nothing (no lost selection, no lost undo) and neither
  // setter reports a text change.
  virtual std::string stringValue() const noexcept = 0;
  virtual void setStringValue(const std::string& text) noexcept = 0;

  // The leading integer of the text, after blanks and an optional sign; 0 when there is none;
  // clamped to 32 bits.
  int intValue() const noexcept;

  // Called after every change that the user makes to the text. Must not throw.
  virtual void setTextDidChange(std::function<void()> handler) noexcept = 0;
};

}  // namespace cutline
