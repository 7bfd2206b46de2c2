#include "qt/QtAlert.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <memory>

#include "platform/ports/Toolkit.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

// An alert without a message of its own says its informative text instead.
void setTexts(QMessageBox& box, const Alert& alert) {
  box.setTextFormat(Qt::PlainText);
  box.setText(toQString(alert.messageText.empty() ? alert.informativeText : alert.messageText));
  if (!alert.messageText.empty()) box.setInformativeText(toQString(alert.informativeText));
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

void runModalAlert(const Alert& alert) noexcept {
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

}  // namespace cutline
