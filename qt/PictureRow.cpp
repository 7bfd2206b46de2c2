#include "qt/PictureRow.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "qt/QtPicture.h"

namespace cutline {

namespace {

constexpr QSize kPictureSize(132, 42);
constexpr int kMargin = 6;   // around the picture and around the text
constexpr int kPadding = 3;  // between a picture and the edge of its plate
constexpr double kCorner = 3;
constexpr double kDisabledOpacity = 0.4;

int textLeft(const QModelIndex& entry) {
  return pictureOf(entry) ? kMargin + kPictureSize.width() + 2 * kMargin : kMargin;
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem& option) {
  return option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
}

// The pictures are made for a window's ground, not for the colour of a selection: the selected row
// keeps a plate of that ground under its picture.
void drawPicture(QPainter& painter, const QStyleOptionViewItem& option, QtPicture& picture) {
  const QRectF room(option.rect.x() + kMargin,
                    option.rect.center().y() - kPictureSize.height() / 2.0 + 0.5,
                    kPictureSize.width(), kPictureSize.height());
  if (option.state & QStyle::State_Selected) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.base());
    painter.drawRoundedRect(room.adjusted(-kPadding, -kPadding, kPadding, kPadding), kCorner,
                            kCorner);
  }
  if (!(option.state & QStyle::State_Enabled)) painter.setOpacity(kDisabledOpacity);
  picture.draw(painter, picture.fittedInto(room));
  painter.setOpacity(1);
}

void drawText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& entry) {
  const bool selected = option.state & QStyle::State_Selected;
  painter.setFont(option.font);
  painter.setPen(
      option.palette.color(groupOf(option), selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect room = option.rect.adjusted(textLeft(entry), 0, -kMargin, 0);
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, visibleText(entry));
}

}  // namespace

QString visibleText(const QModelIndex& entry) {
  const QString title = entry.data(Qt::DisplayRole).toString();
  return title.isEmpty() ? entry.data(Qt::AccessibleTextRole).toString() : title;
}

std::shared_ptr<QtPicture> pictureOf(const QModelIndex& entry) {
  return entry.data(kPictureRole).value<std::shared_ptr<QtPicture>>();
}

int PictureRow::widthOf(const QModelIndex& entry, const QFontMetrics& metrics) {
  return textLeft(entry) + metrics.horizontalAdvance(visibleText(entry)) + kMargin;
}

void PictureRow::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  QStyleOptionViewItem row(option);
  row.showDecorationSelected = true;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const QStyle* const style = row.widget ? row.widget->style() : QApplication::style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
  if (const auto picture = pictureOf(index)) drawPicture(*painter, row, *picture);
  drawText(*painter, row, index);
  painter->restore();
}

QSize PictureRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int textHeight = option.fontMetrics.height() + kMargin;
  const int pictureHeight = pictureOf(index) ? kPictureSize.height() + 2 * kMargin : 0;
  return {widthOf(index, option.fontMetrics), std::max(textHeight, pictureHeight)};
}

}  // namespace cutline
