// What the dialog asks of the print server. Every call may block for long: never on the thread that
// draws. Calls may run on several threads at once.
#pragma once

#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/PrintJob.h"
#include "cups/ServerOptions.h"
#include "host/core/PrintModel.h"

namespace cutline {

class PrintServer {
 public:
  PrintServer() = default;
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  virtual ~PrintServer();

  virtual Result<std::vector<Destination>> destinations() = 0;
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

}  // namespace cutline
