// A label on QLabel.
#pragma once

#include <QLabel>
#include <memory>
#include <string>

#include "platform/ports/Controls.h"
#include "qt/QtTextColor.h"
#include "qt/QtViewOf.h"

namespace cutline {

class QtLabel : public QtControlOf<Label, QLabel> {
 public:
  QtLabel(const Rect& frame, std::shared_ptr<QtActions> actions);
  ~QtLabel() override;

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override;
  TextColor textColor() const noexcept override { return mTextColor.color(); }
  void setTextColor(TextColor color) noexcept override { mTextColor.setColor(widget(), color); }

 private:
  std::string mText;
  QtTextColor mTextColor;
};

}  // namespace cutline
