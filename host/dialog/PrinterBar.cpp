#include "host/dialog/PrinterBar.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyledItemDelegate>
#include <algorithm>

#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NarrowComboBox.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kIconGap = 6;
constexpr int kPrinterLetters = 12;
constexpr int kMostRows = 16;  // of the open list; it has a scroll bar for more
constexpr int kStateRole = Qt::UserRole + 1;

// The open list says each printer's state; the closed one has a line for it below.
class StateDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text += QStringLiteral(" \u00b7 ") + index.data(kStateRole).toString();
    option->icon = index.data(kPrinterIconRole).value<QIcon>();
    option->features |= QStyleOptionViewItem::HasDecoration;
    const int side = option->fontMetrics.height();
    option->decorationSize = {side, side};
  }
};

// What there is to choose from, in the order in which it is listed.
std::vector<Destination> listable(std::vector<Destination> printers) {
  std::erase_if(printers, [](const Destination& each) { return each.name.instance.has_value(); });
  std::stable_partition(printers.begin(), printers.end(),
                        [](const Destination& each) { return each.isDefault; });
  return printers;
}

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
      mPrinters(new NarrowComboBox(kPrinterLetters, this)),
      mIcon(new StatusIcon(Severity::info, this)),
      mState(new QLabel(this)) {
  mPrinters->setAccessibleName(tr("Printer"));
  mPrinters->setPlaceholderText(tr("Choose a printer"));
  mPrinters->setMaxVisibleItems(kMostRows);
  mPrinters->setRows(new StateDelegate(mPrinters));
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
  showStateOf(printer);
}

void PrinterBar::showStateOf(const Destination& printer) {
  const int index = mPrinters->findData(toQString(printer.name.printer));
  if (index < 0) return;
  const QString state = translated(printer.stateText());
  mPrinters->setItemData(index, state, kStateRole);
  mPrinters->setItemData(index, titleOf(printer) + QStringLiteral(", ") + state,
                         Qt::AccessibleTextRole);
  mPrinters->setItemData(index, iconOf(severityOfState(printer), fontMetrics().height()),
                         kPrinterIconRole);
}

void PrinterBar::setPrinters(const std::vector<Destination>& printers) {
  const std::vector<Destination> listed = listable(printers);
  if (mPrinters->view()->isVisible()) {
    for (const Destination& printer : listed) showStateOf(printer);
    return;
  }
  const QString current = mPrinters->currentData().toString();
  mPrinters->clear();
  for (const Destination& printer : listed) addPrinter(printer);
  // The list's window was made for a few, and would leave the bar out.
  mPrinters->view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mPrinters->setCurrentIndex(mPrinters->findData(current));
}

void PrinterBar::select(const Destination& printer) {
  const QString name = toQString(printer.name.printer);
  if (mPrinters->findData(name) < 0) addPrinter(printer);
  mPrinters->setCurrentIndex(mPrinters->findData(name));
}

void PrinterBar::setCurrent(const Destination& printer) {
  select(printer);
  setState(printer);
}

void PrinterBar::setPpdFile(const QString& name) {
  mPrinters->clear();
  mPrinters->addItem(name);
  mPrinters->setCurrentIndex(0);
  mPrinters->setEnabled(false);
  showState(Severity::info, tr("PPD file, no printer"));
}

void PrinterBar::setState(const Destination& printer) {
  showStateOf(printer);
  showState(severityOfState(printer), translated(printer.stateText()));
}

void PrinterBar::setWaiting(const QString& text) { showState(Severity::info, text); }

void PrinterBar::setProblem(const QString& text) { showState(Severity::error, text); }

void PrinterBar::showState(Severity severity, const QString& text) {
  mIcon->setSeverity(severity);
  mState->setText(text);
  tellAccessibleDescription(*mPrinters, text);
}

}  // namespace cutline
