#include "host/dialog/StripTexts.h"

namespace cutline {
namespace {

// More than are seen at a time.
constexpr qsizetype kMostTexts = 512;

}  // namespace

void StripTexts::setFont(const QFont& font) {
  if (font == mFont) return;
  mFont = font;
  mTexts.clear();
}

double StripTexts::width(const QString& text) { return laidOut(text).size().width(); }

void StripTexts::draw(QPainter& painter, QPointF topLeft, const QString& text) {
  painter.setFont(mFont);
  painter.drawStaticText(topLeft, laidOut(text));
}

const QStaticText& StripTexts::laidOut(const QString& text) {
  const auto found = mTexts.constFind(text);
  if (found != mTexts.cend()) return *found;
  if (mTexts.size() >= kMostTexts) mTexts.clear();
  QStaticText laidOut(text);
  laidOut.setTextFormat(Qt::PlainText);
  laidOut.prepare({}, mFont);
  return *mTexts.insert(text, laidOut);
}

}  // namespace cutline
