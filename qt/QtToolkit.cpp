#include "qt/QtToolkit.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include "qt/QtActions.h"
#include "qt/QtAlert.h"
#include "qt/QtButton.h"
#include "qt/QtCheckBox.h"
#include "qt/QtCustomView.h"
#include "qt/QtImage.h"
#include "qt/QtLabel.h"
#include "qt/QtPopUpButton.h"
#include "qt/QtStepper.h"
#include "qt/QtTabOrder.h"
#include "qt/QtTextField.h"
#include "qt/QtView.h"
#include "qt/accessibility.h"

namespace cutline {

QtToolkit::QtToolkit() : mActions(std::make_shared<QtActions>()) { makeAccessible(); }

QtToolkit::~QtToolkit() { mActions->setObserver(nullptr); }

std::shared_ptr<View> QtToolkit::createView(const Rect& frame) noexcept {
  return std::make_shared<QtView>(frame, mActions);
}

std::shared_ptr<Button> QtToolkit::createButton(const Rect& frame) noexcept {
  return std::make_shared<QtButton>(frame, mActions);
}

std::shared_ptr<CheckBox> QtToolkit::createCheckBox(const Rect& frame) noexcept {
  return std::make_shared<QtCheckBox>(frame, mActions);
}

std::shared_ptr<Label> QtToolkit::createLabel(const Rect& frame) noexcept {
  return std::make_shared<QtLabel>(frame, mActions);
}

std::shared_ptr<TextField> QtToolkit::createTextField(const Rect& frame) noexcept {
  return std::make_shared<QtTextField>(frame, mActions);
}

std::shared_ptr<Stepper> QtToolkit::createStepper(const Rect& frame) noexcept {
  return std::make_shared<QtStepper>(frame, mActions);
}

std::shared_ptr<PopUpButton> QtToolkit::createPopUpButton(const Rect& frame) noexcept {
  return std::make_shared<QtPopUpButton>(frame, mActions);
}

std::shared_ptr<CustomView> QtToolkit::createCustomView(const Rect& frame,
                                                        CustomViewClient* client) noexcept {
  return std::make_shared<QtCustomView>(frame, client, mActions);
}

std::shared_ptr<Image> QtToolkit::imageWithContentsOfFile(const std::string& path) noexcept {
  if (!QtPicture::isPictureFile(path)) return nullptr;
  return std::make_shared<QtImage>(path);
}

void QtToolkit::runModal(const Alert& alert) noexcept { runModalAlert(alert); }

void QtToolkit::beep() noexcept { QApplication::beep(); }

bool QtToolkit::hasKeyWindow() const noexcept { return QApplication::activeWindow() != nullptr; }

Rect QtToolkit::keyWindowFrame() const noexcept {
  const QWidget* const window = QApplication::activeWindow();
  if (!window) return {};
  const QRect frame = window->frameGeometry();
  const double screenHeight = window->screen()->geometry().height();
  return {{static_cast<double>(frame.x()), screenHeight - frame.y() - frame.height()},
          {static_cast<double>(frame.width()), static_cast<double>(frame.height())}};
}

void QtToolkit::setActionObserver(ActionObserver* observer) noexcept {
  mActions->setObserver(observer);
}

QWidget* QtToolkit::widgetOf(View& view) noexcept {
  const QtViewCore* const core = QtViewCore::of(&view);
  return core ? core->widget() : nullptr;
}

void QtToolkit::orderTabs(View& root) noexcept { orderTabsUnder(root); }

}  // namespace cutline
