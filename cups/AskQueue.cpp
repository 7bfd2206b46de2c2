#include "cups/AskQueue.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>

#include "base/TemporaryFile.h"
#include "cups/HeldJobs.h"
#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"
#include "cups/ServerFile.h"

namespace cutline {

namespace {

constexpr char kAdministration[] = "/admin/";
constexpr std::size_t kMostPpd = std::size_t{16} << 20U;
// The server drops what it is sent there: what waits on a queue is never sent from it.
constexpr char kNowhere[] = "file:///dev/null";
constexpr char kSuffix[] = "_ask";
// An option of a queue's jobs is an attribute of the queue under this name.
const std::string kAskForAttribute = std::string(kAskForOption) + "-default";

// What the server tells of a queue.
struct Queue {
  AskQueue ask;  // without a printer where it is none
  std::vector<std::string> allowed, denied;
};

std::vector<std::string> names(ipp_t* answer, const char* attribute) {
  ipp_attribute_t* found = ippFindAttribute(answer, attribute, IPP_TAG_NAME);
  std::vector<std::string> all;
  for (int i = 0; found && i < ippGetCount(found); ++i)
    all.emplace_back(ippGetString(found, i, nullptr));
  return all;
}

// Nothing where there is no such queue.
Result<std::optional<Queue>> findQueue(http_t* http, const std::string& name) {
  IppMessage request = newPrinterRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, name);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "all");
  const IppMessage answer = answerTo(http, std::move(request));
  if (!answer && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) return std::optional<Queue>();
  if (!answer) return serverError({Phrase("cups", "no printer \"%1\""), {name}});
  return std::optional<Queue>({{ippText(answer.get(), "printer-name", IPP_TAG_NAME),
                                ippText(answer.get(), kAskForAttribute.c_str(), IPP_TAG_NAME),
                                ippNumber(answer.get(), "queued-job-count").value_or(0)},
                               names(answer.get(), "requesting-user-name-allowed"),
                               names(answer.get(), "requesting-user-name-denied")});
}

std::string inQuotes(const std::string& name) { return '"' + name + '"'; }

Error noPrinter(const std::string& printer) {
  return {"the print server at \"" + serverText() + "\" has no printer " + inQuotes(printer)};
}

Error isTaken(const std::string& name) {
  return {"the name " + inQuotes(name) + " is taken by another printer: rename that one first"};
}

Error isAskQueue(const AskQueue& queue) {
  return {inQuotes(queue.name) + " is an ask queue itself: name its printer " +
          inQuotes(queue.printer)};
}

// What the server answers to somebody who may not do this.
constexpr std::array kForbidden{IPP_STATUS_ERROR_FORBIDDEN, IPP_STATUS_ERROR_NOT_AUTHENTICATED,
                                IPP_STATUS_ERROR_NOT_AUTHORIZED,
                                IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED};

Error refused(const std::string& what) {
  if (std::ranges::find(kForbidden, cupsLastError()) == kForbidden.end()) return serverError(what);
  return {what + ": only administrators of the print server may do that; ask one, or use sudo"};
}

Result<TemporaryFile> fetchPpd(http_t* http, const std::string& printer) {
  const std::string name = "the driver description of " + inQuotes(printer);
  const Result<ServerFile> file =
      fetchServerFile(http, "/printers/" + printer + ".ppd", kMostPpd, name);
  if (!file) return file.error();
  if (file->status != HTTP_STATUS_OK)
    return Error{inQuotes(printer) + " has no driver description, so there is nothing to ask for"};
  Result<TemporaryFile> kept = TemporaryFile::make();
  if (kept && !writeAll(kept->descriptor(), file->contents.data(), file->contents.size()))
    return Error{name + " cannot be kept: " + std::strerror(errno)};
  return kept;
}

void addText(ipp_t* request, ipp_tag_t tag, const char* name, const std::string& value) {
  ippAddString(request, IPP_TAG_PRINTER, tag, name, nullptr, value.c_str());
}

void addNames(ipp_t* request, const char* name, const std::vector<std::string>& values) {
  if (values.empty()) return;
  std::vector<const char*> texts;
  texts.reserve(values.size());
  for (const std::string& value : values) texts.push_back(value.c_str());
  ippAddStrings(request, IPP_TAG_PRINTER, IPP_TAG_NAME, name, static_cast<int>(texts.size()),
                nullptr, texts.data());
}

// It is paused, too: what a program asks not to hold, or somebody releases there, waits all the
// same, and is not lost.
IppMessage newQueueRequest(const Queue& printer, const std::string& name) {
  IppMessage request = newPrinterRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, name);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  addText(request.get(), IPP_TAG_URI, "device-uri", kNowhere);
  addText(request.get(), IPP_TAG_TEXT, "printer-info", printer.ask.name + " (ask)");
  addText(request.get(), IPP_TAG_NAME, "job-hold-until-default", "indefinite");
  addText(request.get(), IPP_TAG_NAME, kAskForAttribute.c_str(), printer.ask.name);
  addNames(request.get(), "requesting-user-name-allowed", printer.allowed);
  if (printer.allowed.empty())
    addNames(request.get(), "requesting-user-name-denied", printer.denied);
  ippAddBoolean(request.get(), IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
  ippAddBoolean(request.get(), IPP_TAG_PRINTER, "printer-is-shared", 0);
  ippAddInteger(request.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_STOPPED);
  addText(request.get(), IPP_TAG_TEXT, "printer-state-message", "Asks before it prints");
  return request;
}

Result<AskQueue> makeQueue(http_t* http, const Queue& printer, const std::string& name) {
  const Result<TemporaryFile> ppd = fetchPpd(http, printer.ask.name);
  if (!ppd) return ppd.error();
  const IppMessage answer(cupsDoFileRequest(http, newQueueRequest(printer, name).release(),
                                            kAdministration, ppd->path().c_str()));
  if (!answer || cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
    return refused("the ask queue " + inQuotes(name) + " cannot be made");
  return AskQueue{name, printer.ask.name, 0};
}

}  // namespace

Result<AskQueue> addAskQueue(const ServerOptions& server, const std::string& printer) {
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  http_t* http = connection->get();
  const auto found = findQueue(http, printer);
  if (!found) return found.error();
  if (!*found) return noPrinter(printer);
  if (!(*found)->ask.printer.empty()) return isAskQueue((*found)->ask);
  const std::string name = (*found)->ask.name + kSuffix;
  const auto taken = findQueue(http, name);
  if (!taken) return taken.error();
  if (*taken && (*taken)->ask.printer != (*found)->ask.name) return isTaken(name);
  connection->takeTime();  // somebody may type a password
  return makeQueue(http, **found, name);
}

Result<AskQueue> removeAskQueue(const ServerOptions& server, const std::string& name) {
  const Result<std::vector<AskQueue>> all = askQueues(server);
  if (!all) return all.error();
  const auto found = std::ranges::find_if(
      *all, [&](const AskQueue& queue) { return queue.name == name || queue.printer == name; });
  if (found == all->end()) return Error{inQuotes(name) + " has no ask queue"};
  if (found->jobs > 0)
    return Error{"jobs still wait on " + inQuotes(found->name) + " (" +
                 std::to_string(found->jobs) +
                 "): print or cancel them first, or they would be lost"};
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  connection->takeTime();
  IppMessage request = newPrinterRequest(IPP_OP_CUPS_DELETE_PRINTER, found->name);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  if (answerTo(connection->get(), std::move(request), kAdministration)) return *found;
  return refused("the ask queue " + inQuotes(found->name) + " cannot be taken away");
}

bool mayBeAskQueue(const std::string& name) noexcept { return name.ends_with(kSuffix); }

Result<std::vector<AskQueue>> askQueues(const ServerOptions& server) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  IppMessage request = newServerRequest(IPP_OP_CUPS_GET_PRINTERS);
  const std::array wanted{"printer-name", kAskForAttribute.c_str(), "queued-job-count"};
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                wanted.size(), nullptr, wanted.data());
  const IppMessage answer = answerTo(connection->get(), std::move(request));
  // A server without any queue answers "not found".
  if (!answer && cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND)
    return serverError(Phrase("cups", "the printers cannot be listed"));
  std::vector<AskQueue> queues;
  AskQueue current;
  const auto finish = [&] {
    if (!current.printer.empty()) queues.push_back(current);
    current = {};
  };
  ipp_t* all = answer.get();
  for (ipp_attribute_t* each = all ? ippFirstAttribute(all) : nullptr; each;
       each = ippNextAttribute(all)) {
    const char* name = ippGetName(each);
    if (name == nullptr || ippGetGroupTag(each) != IPP_TAG_PRINTER) {
      finish();
      continue;
    }
    const std::string attribute = name;
    if (attribute == "printer-name") current.name = ippGetString(each, 0, nullptr);
    if (attribute == kAskForAttribute) current.printer = ippGetString(each, 0, nullptr);
    if (attribute == "queued-job-count") current.jobs = ippGetInteger(each, 0);
  }
  finish();
  std::ranges::sort(queues, {}, &AskQueue::name);
  return queues;
}

}  // namespace cutline
