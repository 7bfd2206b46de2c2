// Asks the print server in the background and tells the answers on the dialog's thread.
#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

#include "host/core/PrintModel.h"
#include "host/dialog/Background.h"
#include "host/dialog/PrintServer.h"

namespace cutline {

class ServerClient : public QObject {
  Q_OBJECT

 public:
  explicit ServerClient(std::shared_ptr<PrintServer> server, QObject* parent = nullptr);

  // printersListed, or listingFailed.
  void listPrinters();
  // printerOpened, or openingFailed. The answer to an earlier call that is still on its way is
  // dropped.
  void openPrinter(const Destination& destination);
  bool isOpening() const noexcept { return mIsOpening; }
  // stateKnown; nothing when the server does not answer, or is being asked already.
  void askState(const DestinationName& name);
  // presetSaved or presetFailed.
  void savePreset(const DestinationName& name, const OptionList& options);
  // presetRemoved or presetFailed.
  void removePreset(const DestinationName& name);

 signals:
  void printersListed(const std::vector<cutline::Destination>& destinations);
  void listingFailed(const QString& reason);
  void printerOpened(const cutline::PrinterChoice& choice);
  void openingFailed(const QString& reason);
  void stateKnown(const cutline::Destination& destination);
  void presetSaved(const QString& instance);
  void presetRemoved(const QString& instance);
  void presetFailed(const QString& reason);

 private:
  void takeList(const Result<std::vector<Destination>>& list);
  void takePrinter(int opening, const Result<PrinterChoice>& choice);
  void takeState(const Result<Destination>& destination);

  std::shared_ptr<PrintServer> mServer;
  int mOpenings = 0;
  bool mIsOpening = false;
  bool mIsAskingState = false;
  Background mBackground;
};

}  // namespace cutline
