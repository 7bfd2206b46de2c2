// Views in memory, with no window behind them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Drawing.h"
#include "platform/ports/View.h"

namespace cutline {

// Frames, flags and the view tree. Holds subviews that are plain views; others are left out.
class PlainView : public virtual View {
 public:
  explicit PlainView(const Rect& frame) : mFrame(frame) {}
  ~PlainView() override;

  Rect frame() const noexcept override { return mFrame; }
  void setFrame(const Rect& frame) noexcept override;
  Autoresizing autoresizing() const noexcept override { return mAutoresizing; }
  void setAutoresizing(Autoresizing autoresizing) noexcept override;
  bool isHidden() const noexcept override { return mHidden; }
  void setHidden(bool hidden) noexcept override { mHidden = hidden; }
  void setNeedsDisplay(bool needsDisplay) noexcept override { mNeedsDisplay = needsDisplay; }
  View* superview() const noexcept override { return mSuperview; }
  std::vector<std::shared_ptr<View>> subviews() const noexcept override { return mSubviews; }
  void addSubview(std::shared_ptr<View> subview) noexcept override;
  void replaceSubview(View* old, std::shared_ptr<View> with) noexcept override;
  std::string accessibilityLabel() const noexcept override { return mAccessibilityLabel; }
  void setAccessibilityLabel(const std::string& label) noexcept override;

  bool needsDisplay() const noexcept { return mNeedsDisplay; }

 private:
  // Takes the view out of the tree that it is in and makes it a subview of this one.
  bool adopt(const std::shared_ptr<View>& subview) noexcept;
  void forget(const View* subview) noexcept;
  void moveSubviews(double growth) noexcept;

  Rect mFrame;
  Autoresizing mAutoresizing = Autoresizing::none;
  bool mHidden = false;
  bool mNeedsDisplay = false;
  PlainView* mSuperview = nullptr;
  std::vector<std::shared_ptr<View>> mSubviews;
  std::string mAccessibilityLabel;
};

// Has its client draw when it is told to.
class PlainCustomView final : public virtual CustomView, public PlainView {
 public:
  PlainCustomView(const Rect& frame, CustomViewClient* client);

  void setClient(CustomViewClient* client) noexcept override { mClient = client; }
  // The view class in memory has nothing of its own to draw.
  void drawSuper(const Rect& dirty, DrawingContext& context) noexcept override;

  // The label that was set, or else what the client says of its drawing.
  std::string accessibilityLabel() const noexcept override;

  // Has the client draw the whole view, unless the view is hidden.
  void draw(DrawingContext& context) noexcept;

 private:
  CustomViewClient* mClient;
};

}  // namespace cutline
