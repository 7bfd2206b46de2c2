#include "host/dialog/NarrowComboBox.h"

#include <QAbstractItemDelegate>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <algorithm>
#include <utility>

namespace cutline {

namespace {

// As Qt has it for lists of all kinds; beside letters it keeps room for an icon.
constexpr int kLeastHeight = 14;
constexpr int kAir = 2;
constexpr int kGapOfIcon = 4;

}  // namespace

NarrowComboBox::NarrowComboBox(int letters, QWidget* parent)
    : QComboBox(parent), mLetters(letters) {}

void NarrowComboBox::setRows(QAbstractItemDelegate* rows) {
  rows->setParent(this);
  mRows = rows;
}

QSize NarrowComboBox::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int letters = mLetters * metrics.horizontalAdvance(QLatin1Char('X'));
  const int placeholder = metrics.boundingRect(placeholderText()).width();
  const QSize icon = iconSize();
  const QSize content(std::max(letters + icon.width() + kGapOfIcon, placeholder),
                      std::max({metrics.height(), kLeastHeight, icon.height()}) + kAir);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

void NarrowComboBox::showPopup() {
  if (mRows != nullptr) setItemDelegate(std::exchange(mRows, nullptr));
  QComboBox::showPopup();
}

}  // namespace cutline
