// The views of this toolkit: what their adapters share, and the plain one.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports/Controls.h"
#include "platform/ports/View.h"
#include "qt/QtActions.h"
#include "qt/QtViewCore.h"

namespace cutline {

// The shared part of the adapters: each port's adapter derives from one of these templates, which
// answer the View and Control operations of the port by forwarding to the core.
template <class Port, class Widget>
class QtViewOf : public Port, public QtBacked {
 public:
  QtViewCore& core() noexcept override { return mCore; }

  Rect frame() const noexcept override { return mCore.frame(); }
  void setFrame(const Rect& frame) noexcept override { mCore.setFrame(frame); }
  Autoresizing autoresizing() const noexcept override { return mCore.autoresizing(); }
  void setAutoresizing(Autoresizing autoresizing) noexcept override {
    mCore.setAutoresizing(autoresizing);
  }
  bool isHidden() const noexcept override { return mCore.isHidden(); }
  void setHidden(bool hidden) noexcept override { mCore.setHidden(hidden); }
  void setNeedsDisplay(bool needsDisplay) noexcept override { mCore.setNeedsDisplay(needsDisplay); }
  View* superview() const noexcept override { return mCore.superview(); }
  std::vector<std::shared_ptr<View>> subviews() const noexcept override { return mCore.subviews(); }
  void addSubview(std::shared_ptr<View> subview) noexcept override {
    mCore.addSubview(std::move(subview));
  }
  void replaceSubview(View* old, std::shared_ptr<View> with) noexcept override {
    mCore.replaceSubview(old, std::move(with));
  }
  std::string accessibilityLabel() const noexcept override { return mCore.accessibilityLabel(); }
  void setAccessibilityLabel(const std::string& label) noexcept override {
    mCore.setAccessibilityLabel(label);
  }

 protected:
  QtViewOf(Widget* widget, const Rect& frame, std::shared_ptr<QtActions> actions)
      : mCore(*this, widget, frame, std::move(actions)) {}

  // Null once Qt has deleted it.
  Widget* widget() const noexcept { return static_cast<Widget*>(mCore.widget()); }

 private:
  QtViewCore mCore;
};

template <class Port, class Widget>
class QtControlOf : public QtViewOf<Port, Widget> {
 public:
  bool isEnabled() const noexcept override { return mEnabled; }
  void setEnabled(bool enabled) noexcept override {
    const QtActions::Silence silence(this->core().actions());
    mEnabled = enabled;
    if (this->widget()) this->widget()->setEnabled(enabled);
  }
  void setAction(ActionHandler action) noexcept override { mAction = std::move(action); }

 protected:
  using QtViewOf<Port, Widget>::QtViewOf;

  void runAction() noexcept { this->core().actions().run(this->core(), mAction); }

 private:
  ActionHandler mAction;
  bool mEnabled = true;
};

// Posts "NSViewDidUpdateTrackingAreasNotification" from a root view when the window that it stands
// in was resized or laid out anew. A panel waits for it while the window is still too small.
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

// A view on an empty QWidget. As the root of a tree it reports what its window does.
class QtView : public QtViewOf<View, QWidget> {
 public:
  QtView(const Rect& frame, std::shared_ptr<QtActions> actions);

 private:
  QtWindowWatcher mWindowWatcher;
};

}  // namespace cutline
