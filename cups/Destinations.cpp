#include "cups/Destinations.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <memory>
#include <utility>

#include "base/Lists.h"
#include "cups/CupsOptions.h"
#include "cups/SavedOptions.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

// Owns a destination array of libcups.
class DestinationArray {
 public:
  DestinationArray(int size, cups_dest_t* dests) : mSize(size), mDests(dests) {}
  ~DestinationArray() { cupsFreeDests(mSize, mDests); }
  DestinationArray(const DestinationArray&) = delete;
  DestinationArray& operator=(const DestinationArray&) = delete;
  const cups_dest_t* begin() const noexcept { return mDests; }
  const cups_dest_t* end() const noexcept { return mDests + mSize; }

 private:
  int mSize;
  cups_dest_t* mDests;
};

std::string valueOf(const cups_dest_t& dest, const char* name) {
  const char* value = cupsGetOption(name, dest.num_options, dest.options);
  return value ? value : "";
}

PrinterState stateOf(const std::string& value) {
  constexpr std::array kStates{PrinterState::idle, PrinterState::processing, PrinterState::stopped};
  const bool isKnown = value.size() == 1 && value[0] >= '3' && value[0] <= '5';
  return isKnown ? kStates[value[0] - '3'] : PrinterState::unknown;
}

std::vector<std::string> reasonsOf(const std::string& value) {
  std::vector<std::string> reasons;
  for (std::string& reason : partsBetweenCommas(value))
    if (!reason.empty() && reason != "none") reasons.push_back(std::move(reason));
  return reasons;
}

Destination destinationOf(const cups_dest_t& dest) {
  Destination destination;
  destination.name.printer = dest.name;
  if (dest.instance) destination.name.instance = dest.instance;
  destination.isDefault = dest.is_default != 0;
  destination.info = valueOf(dest, "printer-info");
  destination.deviceURI = valueOf(dest, "device-uri");
  destination.state = stateOf(valueOf(dest, "printer-state"));
  destination.acceptsJobs = valueOf(dest, "printer-is-accepting-jobs") != "false";
  destination.stateReasons = reasonsOf(valueOf(dest, "printer-state-reasons"));
  destination.savedOptions = savedOptionsFor(destination.name).value_or(OptionList{});
  return destination;
}

// Works around libcups 2.4.2: cupsGetDests2 lists no default at all once the user's file of options
// exists and names none; it still finds the server's default when it is asked for that alone.
void markDefault(http_t* http, std::vector<Destination>& list) {
  cups_dest_t* dest = cupsGetNamedDest(http, nullptr, nullptr);
  if (!dest) return;
  const DestinationArray owner(1, dest);
  const DestinationName name = destinationOf(*dest).name;
  for (Destination& destination : list) destination.isDefault = destination.name == name;
}

Result<std::vector<Destination>> listOn(http_t* http) {
  cups_dest_t* dests = nullptr;
  const int count = cupsGetDests2(http, &dests);
  const DestinationArray array(count, dests);
  // A server without any queue answers "not found".
  if (count == 0 && cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
      cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND) {
    return serverError(Phrase("cups", "the printers cannot be listed"));
  }
  std::vector<Destination> list;
  for (const cups_dest_t& dest : array) list.push_back(destinationOf(dest));
  if (std::ranges::none_of(list, &Destination::isDefault)) markDefault(http, list);
  return list;
}

// What follows a colon in an error: the names that would have been right.
Sentence knownPrinters(const std::vector<Destination>& list) {
  std::vector<std::string> names;
  names.reserve(list.size());
  for (const Destination& destination : list) names.push_back(destination.name.text());
  if (names.empty()) return Phrase("cups", "it has no printers");
  return {Phrase("cups", "it has %1"), {listed(names)}};
}

Error unknownPrinter(http_t* http, const std::string& printer) {
  const auto list = listOn(http);
  if (!list) return list.error();
  return Sentence(Phrase("cups", "the print server at \"%1\" has no printer \"%2\": %3"),
                  {serverText(), printer, knownPrinters(*list)});
}

Error noDefault(http_t* http) {
  // libcups says so where an environment variable or a saved default names an unknown printer.
  const std::string reason =
      cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND ? cupsLastErrorString() : "";
  const auto list = listOn(http);
  if (!list) return list.error();
  if (reason.empty()) {
    return Sentence(Phrase("cups",
                           "there is no default printer: name one with -d; the print server at "
                           "\"%1\": %2"),
                    {serverText(), knownPrinters(*list)});
  }
  return Sentence(Phrase("cups",
                         "there is no default printer (%1): name one with -d; the print server at "
                         "\"%2\": %3"),
                  {reason, serverText(), knownPrinters(*list)});
}

Error unknownInstance(const DestinationName& name) {
  const std::vector<std::string> instances = savedInstances(name.printer);
  const Sentence saved = instances.empty()
                             ? Phrase("cups", "none are saved")
                             : Sentence(Phrase("cups", "saved are %1"), {listed(instances)});
  return Sentence(Phrase("cups", "the printer \"%1\" has no saved settings \"%2\": %3"),
                  {name.printer, *name.instance, saved});
}

Result<Destination> findNamed(http_t* http, const DestinationName& name) {
  const char* printer = name.printer.c_str();
  cups_dest_t* dest = cupsGetNamedDest(http, printer, nullptr);
  if (!dest) return unknownPrinter(http, name.printer);
  const DestinationArray owner(1, dest);
  // Works around libcups 2.4.2: cupsGetNamedDest makes up an instance that nobody saved.
  if (name.instance && !savedOptionsFor(name)) return unknownInstance(name);
  Destination destination = destinationOf(*dest);
  if (!name.instance) return destination;
  destination.name.instance = spelledAsSaved(name).instance;
  destination.savedOptions = savedOptionsFor(destination.name).value_or(OptionList{});
  return destination;
}

Result<Destination> findDefault(http_t* http) {
  cups_dest_t* dest = cupsGetNamedDest(http, nullptr, nullptr);
  if (!dest) return noDefault(http);
  const DestinationArray owner(1, dest);
  Destination destination = destinationOf(*dest);
  destination.isDefault = true;
  return destination;
}

bool hasEntry(const std::vector<SavedEntry>& entries, const DestinationName& name) {
  return std::ranges::any_of(entries,
                             [&](const SavedEntry& entry) { return isSame(entry.name, name); });
}

}  // namespace

Result<std::vector<Destination>> listDestinations(const ServerOptions& server) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  return listOn(connection->get());
}

Result<Destination> findDestination(const ServerOptions& server,
                                    const std::optional<DestinationName>& name) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  return name ? findNamed(connection->get(), *name) : findDefault(connection->get());
}

Result<Done> saveDestinationOptions(const ServerOptions& server, const DestinationName& name,
                                    const OptionList& options) {
  if (const auto why = whyNotSaved(name, options)) return *why;
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  std::vector<SavedEntry> entries = readSavedEntries(userOptionsPath());
  replaceEntry(entries, name, options);
  if (const auto problem = writeSavedEntries(connection->get(), entries)) return *problem;
  if (!name.instance || hasEntry(readSavedEntries(userOptionsPath()), name)) return Done{};
  return Error{Sentence(Phrase("cups",
                               "settings that are all the print server's own defaults cannot be "
                               "saved as \"%1\": choose one that differs"),
                        {name.text()})};
}

Result<Done> removeInstance(const ServerOptions& server, const DestinationName& name) {
  if (!name.instance) {
    return Error{
        Sentence(Phrase("cups", "\"%1\" is a printer, not saved settings"), {name.printer})};
  }
  if (!savedOptionsFor(name)) return unknownInstance(name);
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  std::vector<SavedEntry> entries = readSavedEntries(userOptionsPath());
  std::erase_if(entries, [&](const SavedEntry& entry) { return isSame(entry.name, name); });
  if (const auto problem = writeSavedEntries(connection->get(), entries)) return *problem;
  if (!savedOptionsFor(name)) return Done{};
  return Error{
      Sentence(Phrase("cups",
                      "the settings \"%1\" are the administrator's: only lpoptions as root "
                      "removes them"),
               {name.text()})};
}

}  // namespace cutline
