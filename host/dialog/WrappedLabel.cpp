#include "host/dialog/WrappedLabel.h"

#include <QEvent>

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

LabelRoom::LabelRoom(QWidget* parent) : QWidget(parent), mLabel(new WrappedLabel(this)) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void LabelRoom::setText(const QString& text) {
  if (text == mLabel->text()) return;
  mLabel->setText(text);
  askForHeight();
}

QSize LabelRoom::sizeHint() const { return {0, mLabel->fontMetrics().height()}; }

QSize LabelRoom::minimumSizeHint() const { return sizeHint(); }

// The label's wish to be laid out, as of another font, comes here.
bool LabelRoom::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) askForHeight();
  return QWidget::event(event);
}

void LabelRoom::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  mLabel->setGeometry(rect());
}

void LabelRoom::askForHeight() {
  if (heightForWidth(width()) != height()) updateGeometry();
}

}  // namespace cutline
