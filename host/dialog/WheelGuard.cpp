#include "host/dialog/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace cutline {
namespace {

bool takesWheel(const QWidget& widget) {
  if (qobject_cast<const QScrollBar*>(&widget) != nullptr) return false;
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSlider*>(&widget) != nullptr;
}

// Qt gives the keyboard to what the wheel is over before anybody is asked.
void keepFocusFromWheel(QWidget& widget) {
  if (widget.focusPolicy() == Qt::WheelFocus) widget.setFocusPolicy(Qt::StrongFocus);
}

}  // namespace

WheelGuard::WheelGuard(QWidget* window) : QObject(window), mWindow(*window) {
  qApp->installEventFilter(this);
}

// What is refused goes on to the parents, as what a widget has no use for.
bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  const bool isWheel = event->type() == QEvent::Wheel;
  if (!isWheel && event->type() != QEvent::Polish) return false;
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || widget->window() != &mWindow || !takesWheel(*widget)) return false;
  keepFocusFromWheel(*widget);
  if (!isWheel || widget->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace cutline
