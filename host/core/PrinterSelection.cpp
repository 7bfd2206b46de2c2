#include "host/core/PrinterSelection.h"

#include "cups/Destinations.h"
#include "cups/ServerConnection.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

Result<PrinterChoice> readPpd(const std::string& path) {
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(path);
  if (!ppd) return ppd.error();
  Destination destination;
  destination.info = (*ppd)->attribute("NickName");
  return PrinterChoice{destination, *ppd};
}

Result<PrinterChoice> choiceOf(const Destination& destination,
                               const Result<std::shared_ptr<PpdFile>>& ppd) {
  if (!ppd) return ppd.error();
  return PrinterChoice{destination, *ppd};
}

Result<PrinterChoice> askedForDevice(Result<PrinterChoice> choice) {
  if (choice) choice->destination.device = askDevice(choice->destination.deviceURI);
  return choice;
}

// Both are asked for on one connection, which takes as long to make as either.
Result<PrinterChoice> findPrinter(const CommandLine& commandLine) {
  if (commandLine.ppdPath) return readPpd(*commandLine.ppdPath);
  const auto connection = ServerConnection::open(commandLine.server);
  if (!connection) return connection.error();
  const Result<Destination> destination = findDestinationOn(*connection, commandLine.destination);
  if (!destination) return destination.error();
  return askedForDevice(
      choiceOf(*destination, PpdFile::fetchOn(*connection, destination->name.printer)));
}

}  // namespace

Result<PrinterChoice> findDriver(const ServerOptions& server, const Destination& destination) {
  return choiceOf(destination, PpdFile::fetch(server, destination.name.printer));
}

Result<PrinterChoice> selectPrinter(const ServerOptions& server, const Destination& destination) {
  return askedForDevice(findDriver(server, destination));
}

Result<PrinterChoice> selectPrinter(const CommandLine& commandLine) {
  Result<PrinterChoice> choice = findPrinter(commandLine);
  if (!choice) return choice;
  const Result<Done> checked = checkOptions(*choice->ppd, commandLine.asked.options);
  if (!checked) return checked.error();
  return choice;
}

}  // namespace cutline
