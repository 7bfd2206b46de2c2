#include "qt/QtToolkit.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

#include "platform/lib/ResourceFile.h"
#include "qt/QtActions.h"
#include "qt/QtControls.h"
#include "qt/QtCustomView.h"
#include "qt/QtPicture.h"
#include "qt/QtPopUpButton.h"
#include "qt/QtStepper.h"
#include "qt/QtText.h"
#include "qt/QtTextField.h"
#include "qt/QtView.h"
#include "qt/accessibility.h"

namespace cutline {

namespace {

// An alert without a message of its own says its informative text instead.
void setTexts(QMessageBox& box, const Alert& alert) {
  box.setText(toQString(alert.messageText.empty() ? alert.informativeText : alert.messageText));
  if (!alert.messageText.empty()) box.setInformativeText(toQString(alert.informativeText));
  for (QLabel* label : box.findChildren<QLabel*>()) showTextsAsTheyAre(*label);
}

// The first button is the default one; the last one is what closing the box means.
void addButtons(QMessageBox& box, const Alert& alert) {
  for (const std::string& title : alert.buttonTitles) {
    QPushButton* const button =
        box.addButton(withoutMnemonics(toQString(title)), QMessageBox::AcceptRole);
    if (!box.defaultButton()) box.setDefaultButton(button);
    box.setEscapeButton(button);
  }
}

}  // namespace

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

std::optional<std::string> QtToolkit::imageFileType(std::size_t index) const noexcept {
  return pictureFileType(index);
}

std::shared_ptr<Image> QtToolkit::imageWithContentsOfFile(const std::string& path) noexcept {
  return isResourceFile(path) ? std::make_shared<QtImage>(path) : nullptr;
}

void QtToolkit::runModal(const Alert& alert) noexcept {
  QWidget* const window = QApplication::activeWindow();
  // The window may be deleted while the box is open, and the box with it.
  const QPointer<QMessageBox> box(std::make_unique<QMessageBox>(window).release());
  box->setIcon(QMessageBox::Warning);
  box->setWindowModality(Qt::ApplicationModal);
  box->setWindowTitle(window ? window->windowTitle() : QApplication::applicationDisplayName());
  setTexts(*box, alert);
  addButtons(*box, alert);
  box->exec();
  delete box.data();
}

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

}  // namespace cutline
