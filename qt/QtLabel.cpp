#include "qt/QtLabel.h"

#include "qt/QtText.h"

namespace cutline {

QtLabel::QtLabel(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new QLabel, frame, std::move(actions)),
      mTextColor(*widget(), QPalette::WindowText) {
  // Texts of a PPD are never markup.
  widget()->setTextFormat(Qt::PlainText);
}

void QtLabel::setStringValue(const std::string& text) noexcept {
  mText = text;
  if (widget()) widget()->setText(toQString(text));
}

}  // namespace cutline
