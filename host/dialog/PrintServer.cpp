#include "host/dialog/PrintServer.h"

#include <algorithm>
#include <utility>

#include "cups/AskQueue.h"
#include "cups/Destinations.h"
#include "host/core/PrinterSelection.h"
#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"

namespace cutline {

PrintServer::~PrintServer() = default;

// Ask queues are for programs that have no such dialog: from this one, a job would come back to it.
Result<std::vector<Destination>> CupsPrintServer::destinations() {
  Result<std::vector<Destination>> all = listDestinations(mOptions);
  const Result<std::vector<AskQueue>> queues = askQueues(mOptions);
  if (!all || !queues) return all;
  std::erase_if(*all, [&](const Destination& each) {
    return std::ranges::find(*queues, each.name.printer, &AskQueue::name) != queues->end();
  });
  return all;
}

bool CupsPrintServer::answers() { return serverAnswers(mOptions); }

Result<Destination> CupsPrintServer::find(const DestinationName& name) {
  return findDestination(mOptions, name);
}

Result<PrinterChoice> CupsPrintServer::open(const Destination& destination) {
  return selectPrinter(mOptions, destination);
}

Result<Done> CupsPrintServer::saveInstance(const DestinationName& name, const OptionList& options) {
  return saveDestinationOptions(name, options);
}

Result<Done> CupsPrintServer::removeInstance(const DestinationName& name) {
  return cutline::removeInstance(name);
}

Result<int> CupsPrintServer::submit(const PrintRequest& request, const SpoolProgress& progress) {
  return submitJob(mOptions, request, progress);
}

Result<JobStatus> CupsPrintServer::status(const DestinationName& destination, int jobId) {
  return jobStatus(mOptions, destination, jobId);
}

Result<Done> CupsPrintServer::cancel(const DestinationName& destination, int jobId) {
  return cancelJob(mOptions, destination, jobId);
}

ServerClient::ServerClient(std::shared_ptr<PrintServer> server, QObject* parent)
    : QObject(parent), mServer(std::move(server)) {}

void ServerClient::listPrinters() {
  mQuestions.start([this, server = mServer]() -> Background::Delivery {
    return [this, list = server->destinations()] { takeList(list); };
  });
}

void ServerClient::takeList(const Result<std::vector<Destination>>& list) {
  if (!list) {
    emit listingFailed(asLine(list.error().sentence));
    return;
  }
  emit printersListed(*list);
}

void ServerClient::openPrinter(const Destination& destination) {
  mIsOpening = true;
  mQuestions.start([this, server = mServer, destination,
                    opening = ++mOpenings]() -> Background::Delivery {
    return [this, opening, choice = server->open(destination)] { takePrinter(opening, choice); };
  });
}

void ServerClient::takePrinter(int opening, const Result<PrinterChoice>& choice) {
  if (opening != mOpenings) return;
  mIsOpening = false;
  if (!choice) {
    emit openingFailed(asLine(choice.error().sentence));
    return;
  }
  emit printerOpened(*choice);
}

void ServerClient::readAgain(const Destination& destination) {
  if (std::exchange(mIsReading, true)) return;
  mQuestions.start([this, server = mServer, destination]() -> Background::Delivery {
    return [this, choice = server->open(destination)] {
      mIsReading = false;
      if (choice) emit printerRead(*choice);
    };
  });
}

void ServerClient::askState(const DestinationName& name) {
  if (std::exchange(mIsAskingState, true)) return noteWaiting();
  mWaits = 0;
  mQuestions.start([this, server = mServer, name]() -> Background::Delivery {
    Result<Destination> destination = server->find(name);
    const bool isGone = !destination && !server->answers();
    // It may have come back since it was asked.
    if (!destination && !isGone) destination = server->find(name);
    return [this, destination, isGone] { takeState(destination, isGone); };
  });
}

// Most servers answer in milliseconds, and some now and then in seconds.
void ServerClient::noteWaiting() {
  constexpr int kMostWaits = 3;
  if (++mWaits >= kMostWaits) return noteAnswer(false);
  if (!mIsServerGone) emit serverSlow();
}

void ServerClient::noteAnswer(bool isThere) {
  if (mIsServerGone == !isThere) return;
  mIsServerGone = !isThere;
  if (isThere) return emit serverBack();
  emit serverGone();
}

void ServerClient::takeState(const Result<Destination>& destination, bool isGone) {
  mIsAskingState = false;
  noteAnswer(!isGone);
  if (isGone) return;
  if (!destination) return emit stateFailed(asLine(destination.error().sentence));
  emit stateKnown(*destination);
}

void ServerClient::savePreset(const DestinationName& name, const OptionList& options) {
  mPresets.start([this, server = mServer, name, options]() -> Background::Delivery {
    return [this, name, saved = server->saveInstance(name, options)] {
      if (!saved) return emit presetFailed(asLine(saved.error().sentence));
      emit presetSaved(toQString(name.instance.value_or("")));
    };
  });
}

void ServerClient::removePreset(const DestinationName& name) {
  mPresets.start([this, server = mServer, name]() -> Background::Delivery {
    return [this, name, removed = server->removeInstance(name)] {
      if (!removed) return emit presetFailed(asLine(removed.error().sentence));
      emit presetRemoved(toQString(name.instance.value_or("")));
    };
  });
}

}  // namespace cutline
