#include "host/dialog/PrinterBar.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kIconGap = 6;

QString titleOf(const Destination& printer) {
  const QString name = toQString(printer.name.printer);
  const QString info = toQString(printer.info);
  return info.isEmpty() || info == name ? name : name + QStringLiteral(" \u2013 ") + info;
}

}  // namespace

Severity severityOfState(const Destination& destination) {
  if (destination.state == PrinterState::stopped || !destination.acceptsJobs) {
    return Severity::error;
  }
  if (!destination.stateReasons.empty()) return Severity::warning;
  return destination.state == PrinterState::unknown ? Severity::info : Severity::good;
}

PrinterBar::PrinterBar(QWidget* parent)
    : QWidget(parent),
      mCaption(new QLabel(tr("&Printer:"), this)),
      mPrinters(new QComboBox(this)),
      mIcon(new StatusIcon(Severity::info, this)),
      mState(new QLabel(this)) {
  mPrinters->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  mPrinters->setMinimumContentsLength(12);
  mPrinters->setAccessibleName(tr("Printer"));
  mCaption->setBuddy(mPrinters);
  mState->setTextFormat(Qt::PlainText);
  mState->setWordWrap(true);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(1, 1);
  grid->addWidget(mCaption, 0, 0);
  grid->addWidget(mPrinters, 0, 1);
  auto* state = new QHBoxLayout;
  state->setSpacing(kIconGap);
  state->addWidget(mIcon, 0, Qt::AlignTop);
  state->addWidget(mState, 1);
  grid->addLayout(state, 1, 1);
  connect(mPrinters, &QComboBox::activated, this,
          [this](int index) { emit printerChosen(mPrinters->itemData(index).toString()); });
}

void PrinterBar::addPrinter(const Destination& printer) {
  mPrinters->addItem(titleOf(printer), toQString(printer.name.printer));
}

void PrinterBar::setPrinters(const std::vector<Destination>& printers) {
  const QString current = mPrinters->currentData().toString();
  mPrinters->clear();
  for (const Destination& printer : printers) {
    if (!printer.name.instance) addPrinter(printer);
  }
  mPrinters->setCurrentIndex(mPrinters->findData(current));
}

void PrinterBar::setCurrent(const Destination& printer) {
  const QString name = toQString(printer.name.printer);
  if (mPrinters->findData(name) < 0) addPrinter(printer);
  mPrinters->setCurrentIndex(mPrinters->findData(name));
  setState(printer);
}

void PrinterBar::setPpdFile(const QString& name) {
  mPrinters->clear();
  mPrinters->addItem(name);
  mPrinters->setEnabled(false);
  showState(Severity::info, tr("PPD file, no printer"));
}

void PrinterBar::setState(const Destination& printer) {
  showState(severityOfState(printer), translated(printer.stateText()));
}

void PrinterBar::setWaiting(const QString& text) { showState(Severity::info, text); }

void PrinterBar::showState(Severity severity, const QString& text) {
  mIcon->setSeverity(severity);
  mState->setText(text);
  tellAccessibleDescription(*mPrinters, text);
}

}  // namespace cutline
