// Draws an entry of a choice by picture, as a row of the opened list and as the closed button's
// content.
#pragma once

#include <QModelIndex>
#include <QStyledItemDelegate>
#include <memory>

namespace cutline {

class QtPicture;

// Where a model of entries keeps each one's picture.
inline constexpr int kPictureRole = Qt::UserRole + 1;

// What is seen of an entry: its title, or its words in place of an empty title.
QString visibleText(const QModelIndex& entry);
std::shared_ptr<QtPicture> pictureOf(const QModelIndex& entry);

class PictureRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // The width that shows all of the text in one line.
  static int widthOf(const QModelIndex& entry, const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace cutline
