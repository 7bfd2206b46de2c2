// A line of static text. Implemented by each toolkit adapter.
#pragma once

#include <string>

#include "platform/Control.h"
#include "platform/TextColored.h"

namespace cutline {

class Label : public virtual Control, public TextColored {
 public:
  ~Label() override;
  virtual std::string stringValue() const noexcept = 0;
  virtual void setStringValue(const std::string& text) noexcept = 0;
};

}  // namespace cutline
