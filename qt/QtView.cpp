#include "qt/QtView.h"

#include <QEvent>

#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "qt/QtViewCore.h"

namespace cutline {

QtWindowWatcher::QtWindowWatcher(QtViewCore& view) : mView(view) {
  mView.widget()->installEventFilter(this);
}

bool QtWindowWatcher::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  // In Qt 6.4.2 a widget gets no word when a parent of its parent moves to another window, but it
  // is shown anew there.
  if (watched == mView.widget() && (type == QEvent::Show || type == QEvent::ParentChange)) {
    watchWindow();
  }
  if (watched == mWindow && (type == QEvent::Resize || type == QEvent::LayoutRequest)) post();
  return false;
}

void QtWindowWatcher::watchWindow() {
  QWidget* const window = mView.widget()->window();
  if (window == mWindow) return;
  if (mWindow && mWindow != mView.widget()) mWindow->removeEventFilter(this);
  mWindow = window;
  if (mWindow != mView.widget()) mWindow->installEventFilter(this);
}

// A subview has no news of its own: nobody waits for it.
void QtWindowWatcher::post() const {
  if (mView.superview()) return;
  NotificationCenter* const center = currentPlatform().notificationCenter;
  (center ? *center : NotificationCenter::defaultCenter())
      .postNotificationName("NSViewDidUpdateTrackingAreasNotification",
                            static_cast<const void*>(&mView.view()));
}

QtView::QtView(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtViewOf(new QWidget, frame, std::move(actions)), mWindowWatcher(core()) {}

}  // namespace cutline
