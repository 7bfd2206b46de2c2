#include "cups/PrintJob.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "cups/CupsOptions.h"
#include "cups/DocumentFormat.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr std::size_t kBlockSize = 65536;

struct StateText {
  JobState state;
  ipp_jstate_t ipp;
  bool isFinal;
  std::string_view text;
};

constexpr std::array kStateTexts = std::to_array<StateText>({
    {JobState::pending, IPP_JSTATE_PENDING, false, "Waiting"},
    {JobState::held, IPP_JSTATE_HELD, false, "Held"},
    {JobState::processing, IPP_JSTATE_PROCESSING, false, "Printing"},
    {JobState::stopped, IPP_JSTATE_STOPPED, false, "Stopped"},
    {JobState::canceled, IPP_JSTATE_CANCELED, true, "Cancelled"},
    {JobState::aborted, IPP_JSTATE_ABORTED, true, "Failed"},
    {JobState::completed, IPP_JSTATE_COMPLETED, true, "Printed"},
});

struct ReasonText {
  std::string_view keyword;
  std::string_view text;
};

// The reasons that tell more than the state does.
constexpr std::array kReasonTexts = std::to_array<ReasonText>({
    {"printer-stopped", "the printer is paused"},
    {"printer-stopped-partly", "the printer is partly paused"},
    {"job-incoming", "the document is being received"},
    {"job-hold-until-specified", "until it is released"},
    {"resources-are-not-ready", "the printer needs attention"},
    {"document-format-error", "the document cannot be read"},
    {"unsupported-document-format", "the printer cannot print this kind of document"},
    {"document-unprintable-error", "the document cannot be printed"},
    {"job-canceled-by-operator", "by the operator"},
    {"job-canceled-at-device", "at the printer"},
    {"aborted-by-system", "by the print server"},
});

const StateText& rowOf(JobState state) {
  return *std::ranges::find(kStateTexts, state, &StateText::state);
}

struct FreeIpp {
  void operator()(ipp_t* ipp) const noexcept { ippDelete(ipp); }
};
using IppMessage = std::unique_ptr<ipp_t, FreeIpp>;

struct Document {
  std::ifstream file;
  std::string name;
  std::string format;
  std::uint64_t size = 0;
};

Error unreadable(const std::string& path, const std::string& reason) {
  return {"cannot read the document \"" + path + "\": " + reason};
}

Result<Document> openDocument(const std::string& path) {
  std::error_code problem;
  if (std::filesystem::is_directory(path, problem)) return unreadable(path, "it is a folder");
  Document document{std::ifstream(path, std::ios::binary), "", "", 0};
  if (!document.file) return unreadable(path, std::strerror(errno));
  document.size = std::filesystem::file_size(path, problem);
  if (problem) return unreadable(path, problem.message());
  if (document.size == 0) return unreadable(path, "it is empty");
  std::string start(std::min<std::uint64_t>(kBlockSize, document.size), '\0');
  document.file.read(start.data(), static_cast<std::streamsize>(start.size()));
  document.format =
      documentFormat({start.data(), static_cast<std::size_t>(document.file.gcount())});
  document.file.clear();
  document.file.seekg(0);
  document.name = std::filesystem::path(path).filename();
  return document;
}

// How the sending of a document ended.
enum class Sending { done, givenUp, unreadable, refused };

// Sends the document's blocks; the library sends a request's body in chunks.
Sending sendBlocks(http_t* http, Document& document, const SpoolProgress& progress) {
  std::vector<char> block(kBlockSize);
  std::uint64_t sent = 0;
  while (document.file) {
    document.file.read(block.data(), static_cast<std::streamsize>(block.size()));
    const auto count = static_cast<std::size_t>(document.file.gcount());
    if (count == 0) break;
    if (cupsWriteRequestData(http, block.data(), count) != HTTP_STATUS_CONTINUE) {
      return Sending::refused;
    }
    sent += count;
    if (progress && !progress(sent, document.size)) return Sending::givenUp;
  }
  // Less than was promised: the file was cut or the medium failed while it was read.
  return sent < document.size ? Sending::unreadable : Sending::done;
}

Sending sendDocument(http_t* http, const char* printer, int jobId, Document& document,
                     const SpoolProgress& progress) {
  const http_status_t started =
      cupsStartDocument(http, printer, jobId, document.name.c_str(), document.format.c_str(),
                        /*last_document=*/1);
  if (started != HTTP_STATUS_CONTINUE) return Sending::refused;
  const Sending sending = sendBlocks(http, document, progress);
  if (sending != Sending::done) return sending;
  const bool isTaken = cupsFinishDocument(http, printer) <= IPP_STATUS_OK_EVENTS_COMPLETE;
  return isTaken ? Sending::done : Sending::refused;
}

Error givenUp() { return {"printing was cancelled, nothing was printed"}; }

Error whyNotSent(Sending sending, const PrintRequest& request) {
  switch (sending) {
    case Sending::givenUp:
      return givenUp();
    case Sending::unreadable:
      return unreadable(request.path, "it changed while it was sent; nothing was printed");
    default:
      return serverError("the document \"" + request.path + "\" could not be sent to \"" +
                         request.destination.text() + "\"");
  }
}

// Takes a job back whose document did not arrive. The broken request's connection is closed by
// then, so this is a new one; the first error is what the user hears, with what is left to do.
Error takenBack(const ServerOptions& server, const PrintRequest& request, int jobId, Error error) {
  if (cancelJob(server, request.destination, jobId)) return error;
  const std::string id = request.destination.printer + '-' + std::to_string(jobId);
  return {error.message + "; the job " + id + " may still be there: remove it with cancel " + id};
}

std::string textOf(ipp_t* answer, const char* name, ipp_tag_t tag) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, name, tag);
  const char* text = attribute ? ippGetString(attribute, 0, nullptr) : nullptr;
  return text ? text : "";
}

std::vector<std::string> textsOf(ipp_t* answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, name, IPP_TAG_KEYWORD);
  std::vector<std::string> texts;
  for (int i = 0; attribute && i < ippGetCount(attribute); ++i) {
    texts.emplace_back(ippGetString(attribute, i, nullptr));
  }
  return texts;
}

std::optional<JobStatus> statusOf(ipp_t* answer) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, "job-state", IPP_TAG_ENUM);
  if (!attribute) return std::nullopt;
  const auto* row = std::ranges::find(
      kStateTexts, static_cast<ipp_jstate_t>(ippGetInteger(attribute, 0)), &StateText::ipp);
  if (row == kStateTexts.end()) return std::nullopt;
  return JobStatus{row->state, textOf(answer, "job-printer-state-message", IPP_TAG_TEXT),
                   textsOf(answer, "job-state-reasons")};
}

IppMessage newRequest(ipp_op_t operation, const DestinationName& destination) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", destination.printer.c_str());
  IppMessage request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
  return request;
}

IppMessage jobRequest(const DestinationName& destination, int jobId) {
  constexpr std::array<const char*, 3> kWanted{"job-state", "job-state-reasons",
                                               "job-printer-state-message"};
  IppMessage request = newRequest(IPP_OP_GET_JOB_ATTRIBUTES, destination);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                kWanted.size(), nullptr, kWanted.data());
  return request;
}

// Takes the request and gives the answer; null where the server refuses it.
IppMessage answerTo(http_t* http, IppMessage request) {
  IppMessage answer(cupsDoRequest(http, request.release(), "/"));
  if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) answer.reset();
  return answer;
}

bool isPrinterStopped(http_t* http, const DestinationName& destination) {
  IppMessage request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, destination);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-state");
  const IppMessage answer = answerTo(http, std::move(request));
  ipp_attribute_t* state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
  return state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
}

// The server itself gives a waiting job no reason when its printer is paused.
void addPause(http_t* http, const DestinationName& destination, JobStatus& status) {
  const std::string reason = "printer-stopped";
  if (status.state != JobState::pending) return;
  if (std::ranges::find(status.reasons, reason) != status.reasons.end()) return;
  if (isPrinterStopped(http, destination)) status.reasons.push_back(reason);
}

std::string jobText(const DestinationName& destination, int jobId) {
  return "the job " + destination.printer + '-' + std::to_string(jobId);
}

}  // namespace

bool JobStatus::isFinal() const noexcept { return rowOf(state).isFinal; }

std::string JobStatus::text() const {
  std::string text(rowOf(state).text);
  const char* separator = " - ";
  for (const ReasonText& row : kReasonTexts) {
    if (std::ranges::find(reasons, row.keyword) == reasons.end()) continue;
    text += separator + std::string(row.text);
    separator = ", ";
  }
  return text;
}

Result<int> submitJob(const ServerOptions& server, const PrintRequest& request,
                      const SpoolProgress& progress) {
  auto document = openDocument(request.path);
  if (!document) return document.error();
  if (progress && !progress(0, document->size)) return givenUp();
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();

  const char* printer = request.destination.printer.c_str();
  const CupsOptions options(request.options);
  const int jobId = cupsCreateJob(connection->get(), printer, request.title.c_str(), options.size(),
                                  options.data());
  if (jobId == 0) return serverError("\"" + request.destination.text() + "\" takes no job");

  const Sending sending = sendDocument(connection->get(), printer, jobId, *document, progress);
  if (sending == Sending::done) return jobId;
  Error error = whyNotSent(sending, request);
  connection = Error{};  // hangs up in the middle of the request, so the server drops it
  return takenBack(server, request, jobId, std::move(error));
}

Result<JobStatus> jobStatus(const ServerOptions& server, const DestinationName& destination,
                            int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  const IppMessage answer = answerTo(connection->get(), jobRequest(destination, jobId));
  if (!answer) return serverError("the state of " + jobText(destination, jobId) + " is not known");
  auto status = statusOf(answer.get());
  if (!status) return Error{"the print server told no state of " + jobText(destination, jobId)};
  addPause(connection->get(), destination, *status);
  return *status;
}

Result<Done> cancelJob(const ServerOptions& server, const DestinationName& destination, int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  const ipp_status_t status =
      cupsCancelJob2(connection->get(), destination.printer.c_str(), jobId, /*purge=*/0);
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE) return Done{};
  return serverError(jobText(destination, jobId) + " cannot be cancelled");
}

}  // namespace cutline
