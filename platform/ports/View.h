// A rectangle in the window's view tree. Implemented by each toolkit adapter (plain/, qt/).
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Geometry.h"

namespace cutline {

// How a view answers a change of its superview's size. Only the two forms that panels use.
enum class Autoresizing {
  none,        // keeps its y-up origin (views made in code)
  minYMargin,  // keeps its distance to the superview's top (controls of an interface file)
};

class View {
 public:
  View() = default;
  View(const View&) = delete;
  View& operator=(const View&) = delete;
  virtual ~View();

  // The frame is in the superview's coordinates, y growing upwards from its lower edge.
  virtual Rect frame() const noexcept = 0;
  virtual void setFrame(const Rect& frame) noexcept = 0;
  void setFrameOrigin(const Point& origin) noexcept;  // setFrameOrigin:
  void setFrameSize(const Size& size) noexcept;       // setFrameSize:

  virtual Autoresizing autoresizing() const noexcept = 0;
  virtual void setAutoresizing(Autoresizing autoresizing) noexcept = 0;

  // Hidden and enabled are independent flags; hiding a view hides its subviews with it but does
  // not change their own flag.
  virtual bool isHidden() const noexcept = 0;
  virtual void setHidden(bool hidden) noexcept = 0;

  // Marks the view for redrawing soon; drawing never happens inside this call.
  virtual void setNeedsDisplay(bool needsDisplay) noexcept = 0;

  // Null for a view in no tree. A superview owns its subviews; the pointer is borrowed.
  virtual View* superview() const noexcept = 0;
  virtual std::vector<std::shared_ptr<View>> subviews() const noexcept = 0;
  virtual void addSubview(std::shared_ptr<View> subview) noexcept = 0;
  // replaceSubview:with:  Puts `with` at the place of `old` in the order of subviews; `old` leaves
  // the tree. Does nothing when `old` is not a subview of this view.
  virtual void replaceSubview(View* old, std::shared_ptr<View> with) noexcept = 0;

  // What assistive technology says of the view; empty means the toolkit's own choice.
  virtual std::string accessibilityLabel() const noexcept = 0;
  virtual void setAccessibilityLabel(const std::string& label) noexcept = 0;
};

}  // namespace cutline
