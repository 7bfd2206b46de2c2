// The user-interface toolkit: makes controls and images, warns, beeps. Implemented by plain/ (in
// memory) and qt/ (Qt Widgets). All calls on the main thread.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/Geometry.h"

namespace cutline {

class Button;
class CheckBox;
class CustomView;
class CustomViewClient;
class Image;
class Label;
class PopUpButton;
class Stepper;
class TextField;
class View;

struct Alert {
  std::string messageText;
  std::string informativeText;
  std::vector<std::string> buttonTitles;
};

// Told by the toolkit after an action of a control has run to its end, and likewise after a text
// field has reported a change that the user made. Implemented by the host, which saves the panels'
// values then.
class ActionObserver {
 public:
  virtual ~ActionObserver();
  virtual void actionDidFinish(View& sender) noexcept = 0;
};

class Toolkit {
 public:
  Toolkit() = default;
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;
  virtual ~Toolkit();

  // Each answers a new control in no view tree, or null when the toolkit cannot make one.
  virtual std::shared_ptr<View> createView(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<Button> createButton(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<CheckBox> createCheckBox(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<Label> createLabel(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<TextField> createTextField(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<Stepper> createStepper(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<PopUpButton> createPopUpButton(const Rect& frame) noexcept = 0;
  virtual std::shared_ptr<CustomView> createCustomView(const Rect& frame,
                                                       CustomViewClient* client) noexcept = 0;

  // imageFileTypes  The kinds of picture files that the toolkit reads, by their suffix in lower
  // case and without a dot; vector pictures first. Asked one by one, because a toolkit may have to
  // load code to know its rare ones; nothing behind the last.
  virtual std::optional<std::string> imageFileType(std::size_t index) const noexcept = 0;
  // initWithContentsOfFile:  Null when there is no such file, or it is larger than any picture of a
  // bundle. It is read when it is first needed: an image of what is no picture has no size then,
  // and draws nothing.
  virtual std::shared_ptr<Image> imageWithContentsOfFile(const std::string& path) noexcept = 0;

  // Shows the alert and comes back when it has been closed.
  virtual void runModal(const Alert& alert) noexcept = 0;
  virtual void beep() noexcept = 0;

  // The frame of the window that takes the keyboard, on the screen; null without such a window.
  // Two questions, because the window may vanish between them.
  virtual bool hasKeyWindow() const noexcept = 0;
  virtual Rect keyWindowFrame() const noexcept = 0;  // an empty rectangle when there is none

  // Borrowed; null removes it.
  virtual void setActionObserver(ActionObserver* observer) noexcept = 0;
};

}  // namespace cutline
