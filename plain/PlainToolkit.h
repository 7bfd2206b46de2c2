// The toolkit without a window: controls in memory; alerts and beeps are kept for the one who asks.
// The command line runs panels on it, and tests look at it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plain/PlainControls.h"
#include "platform/ports/Toolkit.h"

namespace cutline {

class PlainToolkit : public Toolkit {
 public:
  PlainToolkit();
  ~PlainToolkit() override;

  std::shared_ptr<View> createView(const Rect& frame) noexcept override;
  std::shared_ptr<Button> createButton(const Rect& frame) noexcept override;
  std::shared_ptr<CheckBox> createCheckBox(const Rect& frame) noexcept override;
  std::shared_ptr<Label> createLabel(const Rect& frame) noexcept override;
  std::shared_ptr<TextField> createTextField(const Rect& frame) noexcept override;
  std::shared_ptr<Stepper> createStepper(const Rect& frame) noexcept override;
  std::shared_ptr<PopUpButton> createPopUpButton(const Rect& frame) noexcept override;
  std::shared_ptr<CustomView> createCustomView(const Rect& frame,
                                               CustomViewClient* client) noexcept override;
  std::optional<std::string> imageFileType(std::size_t index) const noexcept override;
  std::shared_ptr<Image> imageWithContentsOfFile(const std::string& path) noexcept override;

  // Keeps the alert and comes back at once.
  void runModal(const Alert& alert) noexcept override { mAlerts.push_back(alert); }
  void beep() noexcept override { ++mBeepCount; }
  bool hasKeyWindow() const noexcept override { return mKeyWindowFrame.has_value(); }
  Rect keyWindowFrame() const noexcept override { return mKeyWindowFrame.value_or(Rect{}); }
  void setActionObserver(ActionObserver* observer) noexcept override;

  // The alerts since the start or the last clearAlerts, oldest first.
  const std::vector<Alert>& alerts() const noexcept { return mAlerts; }
  void clearAlerts() noexcept { mAlerts.clear(); }
  int beepCount() const noexcept { return mBeepCount; }
  // There is no key window until one is set.
  void setKeyWindowFrame(const std::optional<Rect>& frame) noexcept { mKeyWindowFrame = frame; }

 private:
  std::shared_ptr<PlainActions> mActions = std::make_shared<PlainActions>();
  std::vector<Alert> mAlerts;
  int mBeepCount = 0;
  std::optional<Rect> mKeyWindowFrame;
};

}  // namespace cutline
