// Which printer, and how it is.
#pragma once

#include <QWidget>
#include <vector>

#include "cups/Destination.h"
#include "host/dialog/NoticeView.h"

class QLabel;

namespace cutline {

class NarrowComboBox;

// How serious a printer's state is for somebody who wants to print now.
Severity severityOfState(const Destination& destination);

// Of an entry in the list of printers: the sign of its state.
inline constexpr int kPrinterIconRole = Qt::UserRole + 2;

class PrinterBar : public QWidget {
  Q_OBJECT

 public:
  explicit PrinterBar(QWidget* parent = nullptr);

  QLabel* caption() const noexcept { return mCaption; }

  // Instances are left out: they are presets of their printer. The default one comes first. A list
  // that the user has open stays as it is, but for the states.
  void setPrinters(const std::vector<Destination>& printers);
  // Selects the printer, adding it where the list lacks it.
  void select(const Destination& printer);
  // The same, and shows its state.
  void setCurrent(const Destination& printer);
  // A PPD file in place of a printer; there is nothing to choose then.
  void setPpdFile(const QString& name);
  void setState(const Destination& printer);
  void setWaiting(const QString& text);
  void setProblem(const QString& text);

 signals:
  void printerChosen(const QString& name);

 private:
  void addPrinter(const Destination& printer);
  void showStateOf(const Destination& printer);
  void showState(Severity severity, const QString& text);

  QLabel* mCaption;
  NarrowComboBox* mPrinters;
  StatusIcon* mIcon;
  QLabel* mState;
};

}  // namespace cutline
