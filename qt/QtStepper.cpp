#include "qt/QtStepper.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>

namespace cutline {

namespace {

class ArrowsSpinBox : public QSpinBox {
 public:
  ArrowsSpinBox() {
    lineEdit()->hide();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    painter.setClipRect(arrowsOf(option));
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
  }

  // The text is hidden, so typing must not change it.
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool steps = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown;
    if (steps) return QSpinBox::keyPressEvent(event);
    event->ignore();
  }

  // Scrolling the panel under the pointer must not change a value in passing.
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) return QSpinBox::wheelEvent(event);
    event->ignore();
  }

 private:
  // What is left of the spin box when the edge of the text's part is cut off.
  QRect arrowsOf(const QStyleOptionSpinBox& option) const {
    const int left =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this).left();
    return rect().adjusted(left, 0, 0, 0);
  }
};

}  // namespace

QtStepper::QtStepper(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new ArrowsSpinBox, frame, std::move(actions)) {
  widget()->setRange(mMinValue, mMaxValue);
  QObject::connect(widget(), &QSpinBox::valueChanged, core().connectionContext(),
                   [this](int value) { userDidStep(value); });
}

void QtStepper::setRange(int minValue, int maxValue) noexcept {
  mMinValue = minValue;
  mMaxValue = std::max(minValue, maxValue);
  if (widget()) {
    const QSignalBlocker quiet(widget());
    widget()->setRange(mMinValue, mMaxValue);
  }
  setIntValue(mValue);
}

void QtStepper::setIntValue(int value) noexcept {
  mValue = std::clamp(value, mMinValue, mMaxValue);
  if (!widget()) return;
  const QSignalBlocker quiet(widget());
  widget()->setValue(mValue);
}

// Through assistive technology Qt 6.4.2 steps a greyed spin box, too.
void QtStepper::userDidStep(int value) noexcept {
  if (!widget()->isEnabled()) return setIntValue(mValue);
  mValue = value;
  runAction();
}

}  // namespace cutline
