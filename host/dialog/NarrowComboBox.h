// A list that asks for the room of so many letters, however long its entries are.
#pragma once

#include <QComboBox>

class QAbstractItemDelegate;

namespace cutline {

// As Qt's own with AdjustToMinimumContentsLengthWithIcon, whose entries' list is made at once for
// that, with all its parts: this one makes it when it is opened.
class NarrowComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit NarrowComboBox(int letters, QWidget* parent = nullptr);

  // What draws the entries; the list takes it over.
  void setRows(QAbstractItemDelegate* rows);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void showPopup() override;

 private:
  int mLetters;
  QAbstractItemDelegate* mRows = nullptr;  // until the list is opened
};

}  // namespace cutline
