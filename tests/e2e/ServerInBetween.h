// The print server as the dialog asks it, for tests that come in between: they override what they
// meddle with.
#pragma once

#include <functional>

#include "host/dialog/PrintServer.h"

namespace cutline::test {

class ServerInBetween : public PrintServer {
 public:
  Result<std::vector<Destination>> destinations() override { return mServer.destinations(); }
  bool answers() override { return mServer.answers(); }
  Result<Destination> find(const DestinationName& name) override { return mServer.find(name); }
  Result<PrinterChoice> open(const Destination& destination) override {
    return mServer.open(destination);
  }
  Result<Done> saveInstance(const DestinationName& name, const OptionList& options) override {
    return mServer.saveInstance(name, options);
  }
  Result<Done> removeInstance(const DestinationName& name) override {
    return mServer.removeInstance(name);
  }
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override {
    return mServer.submit(request, progress);
  }
  Result<JobStatus> status(const DestinationName& destination, int jobId) override {
    return mServer.status(destination, jobId);
  }
  Result<Done> cancel(const DestinationName& destination, int jobId) override {
    return mServer.cancel(destination, jobId);
  }

 private:
  CupsPrintServer mServer{ServerOptions()};
};

// Asks again and again on a thread without an event loop, for twenty seconds at most.
void waitInBackground(const std::function<bool()>& condition);

}  // namespace cutline::test
