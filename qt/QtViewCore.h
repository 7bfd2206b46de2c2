// What every Qt adapter of a view has in common: the native widget, the y-up frame, the place in
// the view tree, the hidden flag and the accessible name. The adapters of the ports forward to it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/ports/View.h"

namespace cutline {

class QtActions;
class QtViewCore;

// Every view of this toolkit; found with dynamic_cast from a View.
class QtBacked {
 public:
  virtual ~QtBacked();
  virtual QtViewCore& core() noexcept = 0;
};

class QtViewCore {
 public:
  // `view` is the adapter that has this core. The widget belongs to the core, until a widget that
  // it was put into deletes it; from then on the view keeps its state and shows nothing.
  QtViewCore(View& view, QWidget* widget, const Rect& frame, std::shared_ptr<QtActions> actions);
  QtViewCore(const QtViewCore&) = delete;
  QtViewCore& operator=(const QtViewCore&) = delete;
  ~QtViewCore();

  View& view() const noexcept { return mView; }
  // Null once Qt has deleted it.
  QWidget* widget() const noexcept { return mWidget.data(); }
  QtActions& actions() const noexcept { return *mActions; }
  // The context of connections to the adapter: goes before anything else of the view.
  QObject* connectionContext() const noexcept { return mConnectionContext.get(); }

  Rect frame() const noexcept { return mFrame; }
  void setFrame(const Rect& frame) noexcept;
  // In points: a widget in a lower frame is given this height, around the middle of the frame, so
  // that text is not cut off when the user's font is larger than the panel's designer thought.
  void setMinimumHeight(double height) noexcept;

  Autoresizing autoresizing() const noexcept { return mAutoresizing; }
  void setAutoresizing(Autoresizing autoresizing) noexcept { mAutoresizing = autoresizing; }

  bool isHidden() const noexcept { return mHidden; }
  void setHidden(bool hidden) noexcept;
  void setNeedsDisplay(bool needsDisplay) noexcept;

  View* superview() const noexcept;
  const std::vector<std::shared_ptr<View>>& subviews() const noexcept { return mSubviews; }
  void addSubview(std::shared_ptr<View> subview) noexcept;
  void replaceSubview(View* old, std::shared_ptr<View> with) noexcept;

  std::string accessibilityLabel() const noexcept { return mAccessibilityLabel; }
  void setAccessibilityLabel(const std::string& label) noexcept;

  // The core behind a view; null when another toolkit made it.
  static QtViewCore* of(View* view) noexcept;

 private:
  void place() noexcept;
  Rect frameOfWidget() const noexcept;
  void replaceSubviews(double heightChange) noexcept;
  void showAsFlagged() noexcept;
  bool mayTake(View* subview) const noexcept;
  std::size_t indexOf(const View* subview) const noexcept;
  void insert(std::shared_ptr<View> subview, std::size_t index) noexcept;
  void remove(std::size_t index) noexcept;
  void leaveTree() noexcept;
  void releaseSubviews() noexcept;

  View& mView;
  QPointer<QWidget> mWidget;
  std::shared_ptr<QtActions> mActions;
  std::unique_ptr<QObject> mConnectionContext;
  Rect mFrame;
  double mMinimumHeight = 0;
  Autoresizing mAutoresizing = Autoresizing::none;
  bool mHidden = false;
  QtViewCore* mSuperview = nullptr;
  std::vector<std::shared_ptr<View>> mSubviews;
  std::string mAccessibilityLabel;
};

}  // namespace cutline
