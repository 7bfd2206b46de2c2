// The user-interface toolkit on Qt Widgets. A QApplication lives as long as the toolkit and
// whatever it made.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Toolkit.h"

class QWidget;

namespace cutline {

class QtActions;

class QtToolkit : public Toolkit {
 public:
  QtToolkit();
  ~QtToolkit() override;

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
  void runModal(const Alert& alert) noexcept override;
  void beep() noexcept override;
  bool hasKeyWindow() const noexcept override;
  Rect keyWindowFrame() const noexcept override;
  void setActionObserver(ActionObserver* observer) noexcept override;

  // The native widget of a view, for the host to put a root view into its window; null when another
  // toolkit made the view or Qt has deleted the widget. The view keeps the ownership: the widget
  // goes with it, whatever layout it stands in, and deleting the window first does no harm.
  static QWidget* widgetOf(View& view) noexcept;

  // Makes the tab key visit the shown controls under `root` as they are read: column by column,
  // each from top to bottom. To be called again after every new layout.
  static void orderTabs(View& root) noexcept;

 private:
  std::shared_ptr<QtActions> mActions;
};

}  // namespace cutline
