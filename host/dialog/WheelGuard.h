// The mouse's wheel scrolls what is under the pointer, and changes nothing on its way.
#pragma once

#include <QObject>

class QWidget;

namespace cutline {

// Keeps the wheel from lists, numbers and sliders of a window that do not have the keyboard: what
// lies below them scrolls instead. A wheel never gives them the keyboard, either.
class WheelGuard : public QObject {
  Q_OBJECT

 public:
  // Guards what is in the window, its parent, now or later.
  explicit WheelGuard(QWidget* window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& mWindow;
};

}  // namespace cutline
