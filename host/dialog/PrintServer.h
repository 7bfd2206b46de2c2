// What the dialog asks of the print server, and how it asks without waiting.
#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/PrintJob.h"
#include "cups/ServerOptions.h"
#include "host/core/PrintValues.h"
#include "host/dialog/Background.h"

namespace cutline {

// What the dialog asks of the print server. Every call may block for long: never on the thread that
// draws. Calls may run on several threads at once.
class PrintServer {
 public:
  PrintServer() = default;
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  virtual ~PrintServer();

  virtual Result<std::vector<Destination>> destinations() = 0;
  // Whether there is a server at all.
  virtual bool answers() = 0;
  virtual Result<Destination> find(const DestinationName& name) = 0;
  // With the destination's PPD.
  virtual Result<PrinterChoice> open(const Destination& destination) = 0;

  virtual Result<Done> saveInstance(const DestinationName& name, const OptionList& options) = 0;
  virtual Result<Done> removeInstance(const DestinationName& name) = 0;

  virtual Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) = 0;
  virtual Result<JobStatus> status(const DestinationName& destination, int jobId) = 0;
  virtual Result<Done> cancel(const DestinationName& destination, int jobId) = 0;
};

class CupsPrintServer final : public PrintServer {
 public:
  explicit CupsPrintServer(ServerOptions options) : mOptions(std::move(options)) {}

  Result<std::vector<Destination>> destinations() override;
  bool answers() override;
  Result<Destination> find(const DestinationName& name) override;
  Result<PrinterChoice> open(const Destination& destination) override;
  Result<Done> saveInstance(const DestinationName& name, const OptionList& options) override;
  Result<Done> removeInstance(const DestinationName& name) override;
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override;
  Result<JobStatus> status(const DestinationName& destination, int jobId) override;
  Result<Done> cancel(const DestinationName& destination, int jobId) override;

 private:
  ServerOptions mOptions;
};

// Asks the print server in the background and tells the answers on the dialog's thread.
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
  // printerRead; nothing when that fails. Nothing is to be opened.
  void readAgain(const Destination& destination);
  // stateKnown, or stateFailed where the server says that there is no such printer. Where it says
  // nothing serverGone, once, until it answers again, which is told by serverBack. While it is
  // still being asked from an earlier call serverSlow, and after some calls more serverGone, too.
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
  void printerRead(const cutline::PrinterChoice& choice);
  void stateKnown(const cutline::Destination& destination);
  void stateFailed(const QString& reason);
  void serverSlow();
  void serverGone();
  void serverBack();
  void presetSaved(const QString& instance);
  void presetRemoved(const QString& instance);
  void presetFailed(const QString& reason);

 private:
  void takeList(const Result<std::vector<Destination>>& list);
  void takePrinter(int opening, const Result<PrinterChoice>& choice);
  void takeState(const Result<Destination>& destination, bool isGone);
  void noteAnswer(bool isThere);
  void noteWaiting();

  std::shared_ptr<PrintServer> mServer;
  int mOpenings = 0;
  bool mIsOpening = false;
  bool mIsReading = false;
  bool mIsAskingState = false;
  int mWaits = 0;  // calls that came while the server was being asked
  bool mIsServerGone = false;
  Background mQuestions{kPatienceWithAnswers};
  Background mPresets;
};

}  // namespace cutline
