#include "cups/JobStatus.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

struct StateText {
  JobState state;
  ipp_jstate_t ipp;
  bool isFinal;
  Phrase text;
};

constexpr std::array kStateTexts = std::to_array<StateText>({
    {JobState::pending, IPP_JSTATE_PENDING, false, Phrase("cups", "Waiting")},
    {JobState::held, IPP_JSTATE_HELD, false, Phrase("cups", "Held")},
    {JobState::processing, IPP_JSTATE_PROCESSING, false, Phrase("cups", "Printing")},
    {JobState::stopped, IPP_JSTATE_STOPPED, false, Phrase("cups", "Stopped")},
    {JobState::canceled, IPP_JSTATE_CANCELED, true, Phrase("cups", "Cancelled")},
    {JobState::aborted, IPP_JSTATE_ABORTED, true, Phrase("cups", "Failed")},
    {JobState::completed, IPP_JSTATE_COMPLETED, true, Phrase("cups", "Printed")},
});

struct JobReason {
  std::string_view keyword;
  Phrase text;
};

// The reasons that tell more than the state does.
constexpr std::array kJobReasons = std::to_array<JobReason>({
    {"printer-stopped", Phrase("cups", "the printer is paused")},
    {"printer-stopped-partly", Phrase("cups", "the printer is partly paused")},
    {"job-incoming", Phrase("cups", "the document is being received")},
    {"job-hold-until-specified", Phrase("cups", "until it is released")},
    {"resources-are-not-ready", Phrase("cups", "the printer needs attention")},
    {"document-format-error", Phrase("cups", "the document cannot be read")},
    {"unsupported-document-format",
     Phrase("cups", "the printer cannot print this kind of document")},
    {"document-unprintable-error", Phrase("cups", "the document cannot be printed")},
    {"job-canceled-by-operator", Phrase("cups", "by the operator")},
    {"job-canceled-at-device", Phrase("cups", "at the printer")},
    {"aborted-by-system", Phrase("cups", "by the print server")},
});

std::vector<Sentence> remarksOf(const std::vector<std::string>& reasons) {
  std::vector<Sentence> remarks;
  for (const JobReason& row : kJobReasons) {
    if (std::ranges::find(reasons, row.keyword) != reasons.end()) remarks.push_back(row.text);
  }
  return remarks;
}

const StateText& rowOf(JobState state) {
  return *std::ranges::find(kStateTexts, state, &StateText::state);
}

// The larger of the server's two counts. They follow what the filters tell, which all that make
// pages do.
std::optional<int> pagesOf(ipp_t* answer) {
  std::optional<int> pages;
  for (const char* name : {"job-impressions-completed", "job-media-sheets-completed"}) {
    if (const auto count = ippNumber(answer, name)) pages = std::max(pages.value_or(0), *count);
  }
  return pages;
}

std::optional<JobStatus> statusOf(ipp_t* answer) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, "job-state", IPP_TAG_ENUM);
  if (!attribute) return std::nullopt;
  const auto* row = std::ranges::find(
      kStateTexts, static_cast<ipp_jstate_t>(ippGetInteger(attribute, 0)), &StateText::ipp);
  if (row == kStateTexts.end()) return std::nullopt;
  return JobStatus{row->state, ippText(answer, "job-printer-state-message", IPP_TAG_TEXT),
                   ippKeywords(answer, "job-state-reasons"), pagesOf(answer),
                   ippNumber(answer, "job-k-octets")};
}

IppMessage jobRequest(const DestinationName& destination, int jobId) {
  constexpr std::array kWanted{"job-state",
                               "job-state-reasons",
                               "job-printer-state-message",
                               "job-impressions-completed",
                               "job-media-sheets-completed",
                               "job-k-octets"};
  IppMessage request = newPrinterRequest(IPP_OP_GET_JOB_ATTRIBUTES, destination.printer);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                kWanted.size(), nullptr, kWanted.data());
  return request;
}

bool isPrinterStopped(http_t* http, const DestinationName& destination) {
  IppMessage request = newPrinterRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, destination.printer);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-state");
  const IppMessage answer = answerTo(http, std::move(request));
  ipp_attribute_t* state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
  return state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
}

// Works around the server of CUPS 2.4.2, which gives a waiting job no reason when its printer is
// paused.
void addPause(http_t* http, const DestinationName& destination, JobStatus& status) {
  const std::string reason = "printer-stopped";
  if (status.state != JobState::pending) return;
  if (std::ranges::find(status.reasons, reason) != status.reasons.end()) return;
  if (isPrinterStopped(http, destination)) status.reasons.push_back(reason);
}

}  // namespace

bool JobStatus::isFinal() const noexcept { return rowOf(state).isFinal; }

bool JobStatus::saysMoreThanItsState() const { return !remarksOf(reasons).empty(); }

Sentence JobStatus::text() const { return withRemarks(rowOf(state).text, remarksOf(reasons)); }

std::optional<int> kilobytesAtServer(const ServerConnection& connection,
                                     const DestinationName& destination, int jobId) {
  const IppMessage answer = answerTo(connection.get(), jobRequest(destination, jobId));
  return answer ? ippNumber(answer.get(), "job-k-octets") : std::nullopt;
}

Result<JobStatus> jobStatus(const ServerOptions& server, const DestinationName& destination,
                            int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  const IppMessage answer = answerTo(connection->get(), jobRequest(destination, jobId));
  if (!answer)
    return serverError(
        {Phrase("cups", "the state of the job %1 is not known"), {jobName(destination, jobId)}});
  auto status = statusOf(answer.get());
  if (!status)
    return Error{Sentence(Phrase("cups", "the print server told no state of the job %1"),
                          {jobName(destination, jobId)})};
  addPause(connection->get(), destination, *status);
  return *status;
}

std::optional<JobState> jobState(const ServerOptions& server, int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return std::nullopt;
  const IppMessage answer =
      answerTo(connection->get(), newJobRequest(IPP_OP_GET_JOB_ATTRIBUTES, jobId));
  const auto status = answer ? statusOf(answer.get()) : std::nullopt;
  return status ? std::optional(status->state) : std::nullopt;
}

std::string jobName(const DestinationName& destination, int jobId) {
  return destination.printer + '-' + std::to_string(jobId);
}

}  // namespace cutline
