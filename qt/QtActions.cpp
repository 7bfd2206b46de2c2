#include "qt/QtActions.h"

#include <QObject>
#include <QPointer>

#include "platform/ports/Toolkit.h"
#include "qt/QtViewCore.h"

namespace cutline {

void QtActions::run(QtViewCore& sender, const ActionHandler& action) noexcept {
  if (!action) return;
  run(sender, std::function<void()>([action, view = &sender.view()] { action(view); }));
}

void QtActions::run(QtViewCore& sender, const std::function<void()>& handler) noexcept {
  if (!handler || mSilenced > 0) return;
  const std::function<void()> kept = handler;
  View& view = sender.view();
  const QPointer<QObject> alive = sender.connectionContext();
  const Running running(*this);
  kept();
  if (alive && mObserver) mObserver->actionDidFinish(view);
}

}  // namespace cutline
