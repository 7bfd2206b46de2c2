#include "portal/MeantPrinter.h"

#include "cups/Destinations.h"
#include "host/core/CutMeanings.h"
#include "host/core/CutRules.h"
#include "host/core/CutWordsFiles.h"
#include "host/core/PrinterSelection.h"
#include "portal/PortalSettings.h"

namespace cutline::portal {
namespace {

using Found = std::optional<PrinterChoice>;

// The driver of a destination; nothing where there is none, or no such destination.
Found driverOf(const ServerOptions& server, const Result<Destination>& destination) {
  if (!destination) return std::nullopt;
  Result<PrinterChoice> choice = findDriver(server, *destination);
  return choice ? Found(*choice) : std::nullopt;
}

Found namedPrinter(const ServerOptions& server, const std::string& name) {
  if (name.empty() || name.front() == '/') return std::nullopt;
  return driverOf(server, findDestination(server, DestinationName::parse(name)));
}

Found firstLabelPrinter(const ServerOptions& server) {
  const Result<std::vector<Destination>> all = listDestinations(server);
  if (!all) return std::nullopt;
  for (const Destination& each : *all) {
    if (each.name.instance) continue;
    Found found = driverOf(server, each);
    if (found && isLabelPrinter(*found->ppd)) return found;
  }
  return std::nullopt;
}

MeantPrinter meant(const PrinterChoice& printer, bool isNamed, const QVariantMap& settings,
                   const QVariantMap& pageSetup) {
  return {isLabelPrinter(*printer.ppd),
          isNamed ? std::optional(printer.destination.name) : std::nullopt,
          askedOf(settings, pageSetup, *printer.ppd)};
}

}  // namespace

bool isLabelPrinter(const PpdFile& ppd) {
  if (hasCutOptions(ppd)) return true;
  ppd.mark({});
  return !cutMeaningsOf(ppd, cutWordsFor(ppd).words).offers.empty();
}

// The dialog opens with the label printer that was used last, where none is named and the default
// one is for labels.
MeantPrinter findMeantPrinter(const ServerOptions& server, const QVariantMap& settings,
                              const QVariantMap& pageSetup) {
  if (const Found named = namedPrinter(server, printerNamed(settings)))
    return meant(*named, true, settings, pageSetup);
  const Found usual = driverOf(server, findDestination(server, std::nullopt));
  if (usual && isLabelPrinter(*usual->ppd)) return meant(*usual, false, settings, pageSetup);
  if (!isLabelPage(pageSetup)) return {};
  const Found label = firstLabelPrinter(server);
  return label ? meant(*label, true, settings, pageSetup) : MeantPrinter();
}

}  // namespace cutline::portal
