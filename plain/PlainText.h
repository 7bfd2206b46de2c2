// The text and its colour, shared by the label and the text field in memory.
#pragma once

#include <string>

#include "plain/PlainControl.h"
#include "platform/ports/Controls.h"

namespace cutline {

// `Port` is Label or TextField.
template <typename Port>
class PlainText : public virtual Port, public PlainControl {
 public:
  using PlainControl::PlainControl;

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override { mText = text; }
  TextColor textColor() const noexcept override { return mColor; }
  void setTextColor(TextColor color) noexcept override { mColor = color; }

 private:
  std::string mText;
  TextColor mColor = TextColor::controlText;
};

}  // namespace cutline
