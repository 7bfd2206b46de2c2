// Posts "NSViewDidUpdateTrackingAreasNotification" from a root view when the window that it stands
// in was resized or laid out anew. A panel waits for it while the window is still too small.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace cutline {

class QtViewCore;

class QtWindowWatcher : public QObject {
 public:
  explicit QtWindowWatcher(QtViewCore& view);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watchWindow();
  void post() const;

  QtViewCore& mView;
  QPointer<QWidget> mWindow;
};

}  // namespace cutline
