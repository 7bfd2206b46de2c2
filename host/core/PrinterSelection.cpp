#include "host/core/PrinterSelection.h"

#include "cups/Destinations.h"
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

Result<PrinterChoice> findPrinter(const CommandLine& commandLine) {
  if (commandLine.ppdPath) return readPpd(*commandLine.ppdPath);
  const Result<Destination> destination =
      findDestination(commandLine.server, commandLine.destination);
  if (!destination) return destination.error();
  return selectPrinter(commandLine.server, *destination);
}

}  // namespace

Result<PrinterChoice> findDriver(const ServerOptions& server, const Destination& destination) {
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::fetch(server, destination.name.printer);
  if (!ppd) return ppd.error();
  return PrinterChoice{destination, *ppd};
}

Result<PrinterChoice> selectPrinter(const ServerOptions& server, const Destination& destination) {
  Result<PrinterChoice> choice = findDriver(server, destination);
  if (choice) choice->destination.device = askDevice(destination.deviceURI);
  return choice;
}

Result<PrinterChoice> selectPrinter(const CommandLine& commandLine) {
  Result<PrinterChoice> choice = findPrinter(commandLine);
  if (!choice) return choice;
  const Result<Done> checked = checkOptions(*choice->ppd, commandLine.asked.options);
  if (!checked) return checked.error();
  return choice;
}

}  // namespace cutline
