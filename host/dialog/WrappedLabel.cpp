#include "host/dialog/WrappedLabel.h"

namespace cutline {

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

int WrappedLabel::heightForWidth(int width) const {
  if (mText != text() || mFont != font()) {
    mText = text();
    mFont = font();
    mHeights.clear();
  }
  const auto known = mHeights.constFind(width);
  if (known != mHeights.cend()) return *known;
  return *mHeights.insert(width, QLabel::heightForWidth(width));
}

}  // namespace cutline
