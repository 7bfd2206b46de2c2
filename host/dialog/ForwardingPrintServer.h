// A print server in front of another one, which it passes everything on to that it does not
// override.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "host/dialog/PrintServer.h"

namespace cutline {

class ForwardingPrintServer : public PrintServer {
 public:
  explicit ForwardingPrintServer(std::shared_ptr<PrintServer> server)
      : mServer(std::move(server)) {}

  Result<std::vector<Destination>> destinations() override { return mServer->destinations(); }
  bool answers() override { return mServer->answers(); }
  Result<Destination> find(const DestinationName& name) override { return mServer->find(name); }
  Result<PrinterChoice> open(const Destination& destination) override {
    return mServer->open(destination);
  }
  Result<Done> saveInstance(const DestinationName& name, const OptionList& options) override {
    return mServer->saveInstance(name, options);
  }
  Result<Done> removeInstance(const DestinationName& name) override {
    return mServer->removeInstance(name);
  }
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override {
    return mServer->submit(request, progress);
  }
  Result<JobStatus> status(const DestinationName& destination, int jobId) override {
    return mServer->status(destination, jobId);
  }
  Result<Done> cancel(const DestinationName& destination, int jobId) override {
    return mServer->cancel(destination, jobId);
  }

 private:
  std::shared_ptr<PrintServer> mServer;
};

}  // namespace cutline
