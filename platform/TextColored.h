// The ability to take a text colour. Implemented by the text fields and labels of each toolkit
// adapter; found with dynamic_cast by code that holds some control.
#pragma once

namespace cutline {

enum class TextColor { controlText, disabledControlText };

class TextColored {
 public:
  virtual ~TextColored();
  virtual TextColor textColor() const noexcept = 0;
  virtual void setTextColor(TextColor color) noexcept = 0;
};

}  // namespace cutline
