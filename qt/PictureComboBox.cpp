#include "qt/PictureComboBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "qt/PictureRow.h"
#include "qt/QtPicture.h"

namespace cutline {

namespace {

constexpr int kGap = 6;          // between the closed button's picture and its words
constexpr int kWidestRow = 420;  // longer words take a second line
constexpr int kVisibleRows = 8;
constexpr double kDisabledOpacity = 0.4;

QRect contentOf(const PictureComboBox& box, const QStyleOptionComboBox& option) {
  return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                     &box);
}

// The room that the picture leaves for the words.
QRect drawPicture(QPainter& painter, QtPicture& picture, const QRect& content, bool enabled) {
  const QSizeF size = picture.size();
  if (size.isEmpty()) return content;
  const QSizeF fitted = size.scaled(content.size(), Qt::KeepAspectRatio);
  const QRectF room(content.topLeft(), QSizeF(fitted.width(), content.height()));
  painter.setOpacity(enabled ? 1 : kDisabledOpacity);
  picture.draw(painter, picture.fittedInto(room));
  painter.setOpacity(1);
  return content.adjusted(qRound(fitted.width()) + kGap, 0, 0, 0);
}

}  // namespace

PictureComboBox::PictureComboBox() {
  setFocusPolicy(Qt::StrongFocus);
  setMaxVisibleItems(kVisibleRows);
}

void PictureComboBox::addEntry(const QString& title, const QString& words,
                               const std::shared_ptr<QtPicture>& picture) {
  addItem(title);
  const int index = count() - 1;
  setItemData(index, words, Qt::AccessibleTextRole);
  setItemData(index, QVariant::fromValue(picture), kPictureRole);
}

int PictureComboBox::rowWidth() const {
  int widest = 0;
  for (int row = 0; row < count(); ++row) {
    const QModelIndex entry = model()->index(row, modelColumn());
    widest = std::max(widest, PictureRow::widthOf(entry, fontMetrics()));
  }
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return std::min(widest, kWidestRow) + scrollBar + kGap;
}

// The list and its rows cost time and are often never opened.
void PictureComboBox::showPopup() {
  if (!mListPrepared) view()->setItemDelegate(new PictureRow(view()));
  mListPrepared = true;
  view()->setMinimumWidth(rowWidth());
  QComboBox::showPopup();
}

bool PictureComboBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QComboBox::event(event);
  const QModelIndex current = model()->index(currentIndex(), modelColumn());
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), visibleText(current), this);
  return true;
}

void PictureComboBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  const QModelIndex current = model()->index(currentIndex(), modelColumn());
  const auto picture = pictureOf(current);
  QRect room = contentOf(*this, option).adjusted(1, 0, -1, 0);
  if (picture) room = drawPicture(painter, *picture, room, isEnabled());
  const QString text = fontMetrics().elidedText(visibleText(current), Qt::ElideRight, room.width());
  painter.drawItemText(room, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), text,
                       QPalette::ButtonText);
}

// Scrolling the panel under the pointer must not choose in passing.
void PictureComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) return QComboBox::wheelEvent(event);
  event->ignore();
}

}  // namespace cutline
