#include "host/dialog/PrintServer.h"

#include "cups/Destinations.h"
#include "host/core/PrinterSelection.h"

namespace cutline {

PrintServer::~PrintServer() = default;

Result<std::vector<Destination>> CupsPrintServer::destinations() {
  return listDestinations(mOptions);
}

Result<Destination> CupsPrintServer::find(const DestinationName& name) {
  return findDestination(mOptions, name);
}

Result<PrinterChoice> CupsPrintServer::open(const Destination& destination) {
  return selectPrinter(mOptions, destination);
}

Result<Done> CupsPrintServer::saveInstance(const DestinationName& name, const OptionList& options) {
  return saveDestinationOptions(mOptions, name, options);
}

Result<Done> CupsPrintServer::removeInstance(const DestinationName& name) {
  return cutline::removeInstance(mOptions, name);
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

}  // namespace cutline
