#include "cups/Destinations.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include "base/Lists.h"
#include "base/Numbers.h"
#include "cups/CupsOptions.h"
#include "cups/IppMessage.h"
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

// What the server said last.
bool isNotFound() { return cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND; }

std::string valueOf(const cups_dest_t& dest, const char* name) {
  const char* value = cupsGetOption(name, dest.num_options, dest.options);
  return value ? value : "";
}

PrinterState stateOf(int value) {
  constexpr std::array kStates{PrinterState::idle, PrinterState::processing, PrinterState::stopped};
  const bool isKnown = value >= IPP_PSTATE_IDLE && value <= IPP_PSTATE_STOPPED;
  return isKnown ? kStates[static_cast<std::size_t>(value - IPP_PSTATE_IDLE)]
                 : PrinterState::unknown;
}

std::vector<std::string> reasonsOf(std::vector<std::string> reasons) {
  std::erase_if(reasons,
                [](const std::string& reason) { return reason.empty() || reason == "none"; });
  return reasons;
}

Destination destinationOf(const cups_dest_t& dest) {
  Destination destination;
  destination.name.printer = dest.name;
  if (dest.instance) destination.name.instance = dest.instance;
  destination.isDefault = dest.is_default != 0;
  destination.info = valueOf(dest, "printer-info");
  destination.deviceURI = valueOf(dest, "device-uri");
  destination.state = stateOf(numberIn<int>(valueOf(dest, "printer-state")).value_or(0));
  destination.acceptsJobs = valueOf(dest, "printer-is-accepting-jobs") != "false";
  destination.stateReasons = reasonsOf(partsBetweenCommas(valueOf(dest, "printer-state-reasons")));
  destination.stateSince = numberIn<int>(valueOf(dest, "printer-state-change-time")).value_or(0);
  destination.savedOptions = savedOptionsFor(destination.name).value_or(OptionList{});
  return destination;
}

struct DefaultVariable {
  const char* name;
  std::string_view nobodys;  // what programs of old set it to, whatever the printers are called
};

constexpr std::array kDefaultVariables =
    std::to_array<DefaultVariable>({{"LPDEST", ""}, {"PRINTER", "lp"}});

// A name for the default printer that counts before the server's, and where it stands.
struct ChosenDefault {
  DestinationName name;
  std::string place;
};

// In the order of libcups, which asks on a connection of its own, that waits for minutes, where the
// printer cannot be found.
std::optional<ChosenDefault> chosenDefault() {
  for (const DefaultVariable& variable : kDefaultVariables) {
    const char* value = std::getenv(variable.name);
    if (value && *value && value != variable.nobodys)
      return ChosenDefault{DestinationName::parse(value), variable.name};
  }
  if (const auto saved = savedDefault()) return ChosenDefault{*saved, "lpoptions"};
  return std::nullopt;
}

std::optional<DestinationName> defaultName(http_t* http) {
  if (const auto chosen = chosenDefault()) return chosen->name;
  const IppMessage answer = answerTo(http, newServerRequest(IPP_OP_CUPS_GET_DEFAULT));
  const std::string name = ippText(answer.get(), "printer-name", IPP_TAG_NAME);
  return name.empty() ? std::nullopt : std::optional<DestinationName>({name, std::nullopt});
}

// Works around libcups 2.4.2: cupsGetDests2 lists no default at all once the user's file of options
// exists and names none.
void markDefault(http_t* http, std::vector<Destination>& list) {
  const auto name = defaultName(http);
  for (Destination& destination : list) destination.isDefault = name && destination.name == *name;
}

Result<std::vector<Destination>> listOn(http_t* http) {
  cups_dest_t* dests = nullptr;
  const int count = cupsGetDests2(http, &dests);
  const DestinationArray array(count, dests);
  // A server without any queue answers "not found".
  if (count == 0 && cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE && !isNotFound()) {
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

// Without asking again a server that keeps silent, or does not tell.
Error notFound(const std::string& printer) {
  return serverError({Phrase("cups", "no printer \"%1\""), {printer}});
}

// With where an unknown printer is named.
Error noDefault(http_t* http, const std::optional<ChosenDefault>& chosen) {
  const auto list = listOn(http);
  if (!list) return list.error();
  if (!chosen) {
    return Sentence(Phrase("cups",
                           "there is no default printer: name one with -d; the print server at "
                           "\"%1\": %2"),
                    {serverText(), knownPrinters(*list)});
  }
  return Sentence(Phrase("cups",
                         "there is no default printer (%1): name one with -d; the print server at "
                         "\"%2\": %3"),
                  {chosen->place + '=' + chosen->name.text(), serverText(), knownPrinters(*list)});
}

Error unknownInstance(const DestinationName& name) {
  const std::vector<std::string> instances = savedInstances(name.printer);
  const Sentence saved = instances.empty()
                             ? Phrase("cups", "none are saved")
                             : Sentence(Phrase("cups", "saved are %1"), {listed(instances)});
  return Sentence(Phrase("cups", "the printer \"%1\" has no saved settings \"%2\": %3"),
                  {name.printer, *name.instance, saved});
}

IppMessage askedFor(http_t* http, const std::string& printer) {
  constexpr std::array kWanted{"printer-name",
                               "printer-info",
                               "device-uri",
                               "printer-state",
                               "printer-state-reasons",
                               "printer-is-accepting-jobs",
                               "printer-state-message",
                               "printer-state-change-time",
                               "printer-config-change-time"};
  IppMessage request = newPrinterRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printer);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                kWanted.size(), nullptr, kWanted.data());
  return answerTo(http, std::move(request));
}

// Works around libcups 2.4.2: where the server has no such printer cupsGetNamedDest looks for one
// in the network, which has no PPD, over a connection that waits for minutes.
std::optional<Destination> askForPrinter(http_t* http, const std::string& printer) {
  const IppMessage answer = askedFor(http, printer);
  if (!answer) return std::nullopt;
  const std::string name = ippText(answer.get(), "printer-name", IPP_TAG_NAME);
  ipp_attribute_t* accepts =
      ippFindAttribute(answer.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
  Destination destination;
  destination.name.printer = name.empty() ? printer : name;
  destination.info = ippText(answer.get(), "printer-info", IPP_TAG_TEXT);
  destination.deviceURI = ippText(answer.get(), "device-uri", IPP_TAG_URI);
  destination.state = stateOf(ippNumber(answer.get(), "printer-state", IPP_TAG_ENUM).value_or(0));
  destination.acceptsJobs = !accepts || ippGetBoolean(accepts, 0);
  destination.stateReasons = reasonsOf(ippKeywords(answer.get(), "printer-state-reasons"));
  destination.stateMessage = ippText(answer.get(), "printer-state-message", IPP_TAG_TEXT);
  destination.stateSince = ippNumber(answer.get(), "printer-state-change-time").value_or(0);
  destination.setUpSince = ippNumber(answer.get(), "printer-config-change-time").value_or(0);
  destination.savedOptions = savedOptionsFor(destination.name).value_or(OptionList{});
  return destination;
}

Result<Destination> withInstance(Destination destination, const DestinationName& name) {
  if (!name.instance) return destination;
  if (!savedOptionsFor(name)) return unknownInstance(name);
  destination.name.instance = spelledAsSaved(name).instance;
  destination.savedOptions = savedOptionsFor(destination.name).value_or(OptionList{});
  return destination;
}

Result<Destination> findNamed(http_t* http, const DestinationName& name) {
  const auto destination = askForPrinter(http, name.printer);
  if (destination) return withInstance(*destination, name);
  return isNotFound() ? unknownPrinter(http, name.printer) : notFound(name.printer);
}

Result<Destination> findDefault(http_t* http) {
  const auto name = defaultName(http);
  auto destination = name ? askForPrinter(http, name->printer) : std::nullopt;
  if (!destination && isNotFound()) return noDefault(http, chosenDefault());
  if (!destination) return serverError(Phrase("cups", "no default printer"));
  destination->isDefault = true;
  return withInstance(*destination, *name);
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
  return findDestinationOn(*connection, name);
}

Result<Destination> findDestinationOn(const ServerConnection& connection,
                                      const std::optional<DestinationName>& name) {
  return name ? findNamed(connection.get(), *name) : findDefault(connection.get());
}

bool serverAnswers(const ServerOptions& server) {
  const auto connection = ServerConnection::open(server);
  return connection && connection->isAnswered();
}

Result<Done> saveDestinationOptions(const DestinationName& name, const OptionList& options) {
  return saveEntry(name, options);
}

Result<Done> removeInstance(const DestinationName& name) {
  if (!name.instance) {
    return Error{
        Sentence(Phrase("cups", "\"%1\" is a printer, not saved settings"), {name.printer})};
  }
  if (!savedOptionsFor(name)) return unknownInstance(name);
  if (const auto removed = removeEntry(name); !removed) return removed;
  if (!savedOptionsFor(name)) return Done{};
  return Error{
      Sentence(Phrase("cups",
                      "the settings \"%1\" are the administrator's: only lpoptions as root "
                      "removes them"),
               {name.text()})};
}

}  // namespace cutline
