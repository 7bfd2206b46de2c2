#include "plain/PlainToolkit.h"

#include <array>

#include "plain/PlainControls.h"
#include "plain/PlainImage.h"
#include "plain/PlainPopUpButton.h"
#include "plain/PlainTextField.h"
#include "plain/PlainView.h"

namespace cutline {

PlainToolkit::PlainToolkit() = default;

// Controls may live on; nobody hears of their actions then.
PlainToolkit::~PlainToolkit() { mActions->observer = nullptr; }

void PlainToolkit::setActionObserver(ActionObserver* observer) noexcept {
  mActions->observer = observer;
}

std::shared_ptr<View> PlainToolkit::createView(const Rect& frame) noexcept {
  return std::make_shared<PlainView>(frame);
}

std::shared_ptr<Button> PlainToolkit::createButton(const Rect& frame) noexcept {
  return std::make_shared<PlainButton>(frame, mActions);
}

std::shared_ptr<CheckBox> PlainToolkit::createCheckBox(const Rect& frame) noexcept {
  return std::make_shared<PlainCheckBox>(frame, mActions);
}

std::shared_ptr<Label> PlainToolkit::createLabel(const Rect& frame) noexcept {
  return std::make_shared<PlainLabel>(frame, mActions);
}

std::shared_ptr<TextField> PlainToolkit::createTextField(const Rect& frame) noexcept {
  return std::make_shared<PlainTextField>(frame, mActions);
}

std::shared_ptr<Stepper> PlainToolkit::createStepper(const Rect& frame) noexcept {
  return std::make_shared<PlainStepper>(frame, mActions);
}

std::shared_ptr<PopUpButton> PlainToolkit::createPopUpButton(const Rect& frame) noexcept {
  return std::make_shared<PlainPopUpButton>(frame, mActions);
}

std::shared_ptr<CustomView> PlainToolkit::createCustomView(const Rect& frame,
                                                           CustomViewClient* client) noexcept {
  return std::make_shared<PlainCustomView>(frame, client);
}

std::optional<std::string> PlainToolkit::imageFileType(std::size_t index) const noexcept {
  constexpr std::array kTypes = {"svg", "png"};
  return index < kTypes.size() ? std::optional<std::string>(kTypes[index]) : std::nullopt;
}

std::shared_ptr<Image> PlainToolkit::imageWithContentsOfFile(const std::string& path) noexcept {
  return PlainImage::of(path);
}

}  // namespace cutline
