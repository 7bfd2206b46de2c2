// A choice by picture: the rows of its list, and the combo box.
#pragma once

#include <QComboBox>
#include <QModelIndex>
#include <QString>
#include <QStyledItemDelegate>
#include <memory>

namespace cutline {

class QtPicture;

// Where a model of entries keeps each one's picture.
inline constexpr int kPictureRole = Qt::UserRole + 1;

// What is seen of an entry: its title, or its words in place of an empty title.
QString visibleText(const QModelIndex& entry);
std::shared_ptr<QtPicture> pictureOf(const QModelIndex& entry);

// An entry as a row of the opened list.
class PictureRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // The width that shows all of the text in one line.
  static int widthOf(const QModelIndex& entry, const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

// The native widget of a pop-up button: a combo box whose entries have a picture and words. The
// closed button shows the current entry's picture small with its words beside it, the list shows
// the pictures larger. A picture is read when it is painted, not before.
class PictureComboBox : public QComboBox {
 public:
  PictureComboBox();

  // `picture` null: words only. `words` are what assistive technology says of the entry; they are
  // seen too while `title` is empty.
  void addEntry(const QString& title, const QString& words,
                const std::shared_ptr<QtPicture>& picture);
  void setEntry(int index, const QString& title, const QString& words,
                const std::shared_ptr<QtPicture>& picture);

  void showPopup() override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  // What the closed button says.
  QString shownText() const;
  int rowWidth() const;

  bool mListPrepared = false;
};

}  // namespace cutline
