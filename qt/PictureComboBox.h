// The native widget of a pop-up button: a combo box whose entries have a picture and words. The
// closed button shows the current entry's picture small with its words beside it, the list shows
// the pictures larger. A picture is read when it is painted, not before.
#pragma once

#include <QComboBox>
#include <QString>
#include <memory>

namespace cutline {

class QtPicture;

class PictureComboBox : public QComboBox {
 public:
  PictureComboBox();

  // `picture` null: words only. `words` are what assistive technology says of the entry; they are
  // seen too while `title` is empty.
  void addEntry(const QString& title, const QString& words,
                const std::shared_ptr<QtPicture>& picture);

  void showPopup() override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int rowWidth() const;

  bool mListPrepared = false;
};

}  // namespace cutline
