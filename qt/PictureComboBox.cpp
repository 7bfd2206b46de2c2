#include "qt/PictureComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>
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
void drawRowPicture(QPainter& painter, const QStyleOptionViewItem& option, QtPicture& picture) {
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

void drawRowText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& entry) {
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
  if (const auto picture = pictureOf(index)) drawRowPicture(*painter, row, *picture);
  drawRowText(*painter, row, index);
  painter->restore();
}

QSize PictureRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int textHeight = option.fontMetrics.height() + kMargin;
  const int pictureHeight = pictureOf(index) ? kPictureSize.height() + 2 * kMargin : 0;
  return {widthOf(index, option.fontMetrics), std::max(textHeight, pictureHeight)};
}

namespace {

constexpr int kGap = 6;          // between the closed button's picture and its words
constexpr int kWidestRow = 420;  // longer words take a second line
constexpr int kVisibleRows = 8;

QRect contentOf(const PictureComboBox& box, const QStyleOptionComboBox& option) {
  return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                     &box);
}

// The room that the picture leaves for the words.
QRect drawClosedPicture(QPainter& painter, QtPicture& picture, const QRect& content, bool enabled) {
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
  setEntry(count() - 1, title, words, picture);
}

void PictureComboBox::setEntry(int index, const QString& title, const QString& words,
                               const std::shared_ptr<QtPicture>& picture) {
  setItemText(index, title);
  setItemData(index, words, Qt::AccessibleTextRole);
  setItemData(index, QVariant::fromValue(picture), kPictureRole);
}

QString PictureComboBox::shownText() const {
  const QModelIndex current = model()->index(currentIndex(), modelColumn());
  return current.isValid() ? visibleText(current) : placeholderText();
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
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shownText(), this);
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
  if (picture) room = drawClosedPicture(painter, *picture, room, isEnabled());
  const QString text = fontMetrics().elidedText(shownText(), Qt::ElideRight, room.width());
  painter.drawItemText(room, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), text,
                       QPalette::ButtonText);
}

// Scrolling the panel under the pointer must not choose in passing.
void PictureComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) return QComboBox::wheelEvent(event);
  event->ignore();
}

}  // namespace cutline
