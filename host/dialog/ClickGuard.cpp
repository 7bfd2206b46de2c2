#include "host/dialog/ClickGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace cutline {
namespace {

constexpr int kMomentMilliseconds = 500;  // longer than a slow double click takes

bool isReturn(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

ClickGuard::ClickGuard(QWidget* place) : QObject(place), mPlace(*place) {
  qApp->installEventFilter(this);
}

void ClickGuard::noteExchange() { mMoment.setRemainingTime(kMomentMilliseconds); }

bool ClickGuard::isForPlace(QObject* watched) const {
  const auto* widget = qobject_cast<QWidget*>(watched);
  return widget != nullptr && (widget == &mPlace || mPlace.isAncestorOf(widget));
}

// A Return that is held down counts once, however long it is held: the next job would follow
// otherwise.
bool ClickGuard::isUnmeant(QObject* watched, QEvent* event) const {
  const bool isSoon = !mMoment.hasExpired();
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Shortcut:
      return isSoon && isForPlace(watched);
    case QEvent::KeyPress:
      break;
    default:
      return false;
  }
  const auto* press = static_cast<QKeyEvent*>(event);
  if (isReturn(press->key())) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    return (isSoon || press->isAutoRepeat()) && widget && widget->window() == mPlace.window();
  }
  return isSoon && press->key() == Qt::Key_Space && isForPlace(watched);
}

bool ClickGuard::eventFilter(QObject* watched, QEvent* event) {
  if (!isUnmeant(watched, event)) return false;
  event->accept();
  return true;
}

}  // namespace cutline
