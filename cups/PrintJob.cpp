#include "cups/PrintJob.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Visible.h"
#include "cups/CupsOptions.h"
#include "cups/DocumentFile.h"
#include "cups/IppMessage.h"
#include "cups/SendingMark.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr std::size_t kBlockSize = 65536;
// Who one is may be asked for only when the whole document is there.
constexpr int kMostSendings = 3;

// The ends after which the server may have the job.
constexpr Phrase kMayBeLeft =
    Phrase("cups", "%1; the job %2 may still be there: remove it with cancel %2");
constexpr Phrase kMayHaveArrived =
    Phrase("cups",
           "%1; it may have arrived all the same: look at the jobs of \"%2\" before you print it "
           "again");

// How the sending of a document ended.
enum class Sending { done, givenUp, unreadable, refused, broken, incomplete };

// A job that is to be, and how much of its document is on the way.
struct Outgoing {
  const PrintRequest& request;
  const SpoolProgress& progress;
  DocumentFile document;
  std::string mark = newSendingMark();
  std::uint64_t sent = 0;
  int jobId = 0;

  // The server may have made the job of it, whether or not it said so.
  bool isAllSent() const { return sent == document.size; }
  bool goesOn() const { return !progress || progress(sent, document.size); }
  std::string resource() const { return "/printers/" + request.destination.printer; }
};

// libcups makes the format of "raw" itself; a document that is sent raw has no other one.
OptionList optionsWithFormat(const Outgoing& job) {
  OptionList options = job.request.options;
  const bool isRaw = std::ranges::any_of(options, [](const auto& o) { return o.first == "raw"; });
  if (!isRaw) options.emplace_back("document-format", job.document.format);
  return options;
}

// The names of files are bytes of any kind.
std::string sendable(const std::string& name) { return isPlainLine(name) ? name : visible(name); }

// The request that brings its document along: the server makes the job of all of it or not at all,
// wherever this program or the way to the server ends.
IppMessage printRequest(const Outgoing& job) {
  IppMessage message = newPrinterRequest(IPP_OP_PRINT_JOB, job.request.destination.printer);
  const auto add = [&](const char* name, const std::string& value) {
    ippAddString(message.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, name, nullptr, value.c_str());
  };
  add("requesting-user-name", cupsUser());
  add("job-name", sendable(job.request.title));
  add("document-name", job.document.name);
  const CupsOptions options(optionsWithFormat(job));
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB})
    cupsEncodeOptions2(message.get(), options.size(), options.data(), group);
  addSendingMark(message.get(), job.mark);
  cupsEncodeOptions2(message.get(), options.size(), options.data(), IPP_TAG_SUBSCRIPTION);
  return message;
}

// No more than was promised, also where the file has grown since. With the last byte the server
// makes the job, so that one waits until nobody has given up by then.
std::uint64_t nextBlock(const Outgoing& job) {
  const std::uint64_t rest = job.document.size - job.sent;
  return std::min<std::uint64_t>(kBlockSize, std::max<std::uint64_t>(rest - 1, 1));
}

Sending sendBlocks(http_t* http, Outgoing& job) {
  std::vector<char> block(kBlockSize);
  while (!job.isAllSent()) {
    job.document.stream.read(block.data(), static_cast<std::streamsize>(nextBlock(job)));
    const auto count = static_cast<std::size_t>(job.document.stream.gcount());
    if (count == 0) return Sending::unreadable;
    if (cupsWriteRequestData(http, block.data(), count) != HTTP_STATUS_CONTINUE)
      return Sending::broken;
    job.sent += count;
    if (!job.goesOn()) return Sending::givenUp;
  }
  return Sending::done;
}

// Works around libcups 2.4.2: where the connection breaks it tells the status of an earlier
// request, so the answer itself is looked at.
Sending takeAnswer(http_t* http, Outgoing& job) {
  const IppMessage answer(cupsGetResponse(http, job.resource().c_str()));
  if (!answer || httpGetStatus(http) != HTTP_STATUS_OK) return Sending::broken;
  if (ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE) return Sending::refused;
  job.jobId = ippNumber(answer.get(), "job-id").value_or(0);
  return job.jobId > 0 ? Sending::done : Sending::broken;
}

// The length is told beforehand, so that the server knows a part from the whole.
Sending sendOnce(ServerConnection& connection, Outgoing& job) {
  const IppMessage message = printRequest(job);
  job.sent = 0;
  job.document.stream.clear();
  job.document.stream.seekg(0);
  const http_status_t started =
      cupsSendRequest(connection.get(), message.get(), job.resource().c_str(),
                      ippLength(message.get()) + job.document.size);
  if (started != HTTP_STATUS_CONTINUE) return Sending::broken;
  connection.takeTime();
  const Sending sending = sendBlocks(connection.get(), job);
  if (sending == Sending::givenUp || sending == Sending::unreadable) return sending;
  connection.limitTime();
  // Who refuses a document may hang up on it without having read it; the answer says why.
  return takeAnswer(connection.get(), job);
}

Sending send(ServerConnection& connection, Outgoing& job) {
  Sending sending = Sending::broken;
  for (int tries = 0; tries < kMostSendings && sending == Sending::broken; ++tries) {
    sending = sendOnce(connection, job);
    if (httpGetStatus(connection.get()) != HTTP_STATUS_UNAUTHORIZED) break;
  }
  return sending;
}

// The way of the document may end with its answer.
std::optional<int> kilobytesOf(const ServerOptions& server, const ServerConnection& connection,
                               const Outgoing& job) {
  const DestinationName& name = job.request.destination;
  if (const auto told = kilobytesAtServer(connection, name, job.jobId)) return told;
  const auto status = jobStatus(server, name, job.jobId);
  return status ? status->kilobytes : std::nullopt;
}

// Asks the server what it has of the document. A server that does not tell, or has forgotten the
// job already, is believed: it said that it has taken it.
Sending arrived(const ServerOptions& server, const ServerConnection& connection,
                const Outgoing& job) {
  constexpr std::uint64_t kKilobyte = 1024;
  const auto kilobytes = kilobytesOf(server, connection, job);
  if (!kilobytes) return Sending::done;
  const bool isWhole = *kilobytes * kKilobyte >= job.document.size;
  return isWhole ? Sending::done : Sending::incomplete;
}

Error givenUp() { return Sentence(Phrase("cups", "printing was cancelled, nothing was printed")); }

Error whyNotSent(Sending sending, const PrintRequest& request) {
  switch (sending) {
    case Sending::givenUp:
      return givenUp();
    case Sending::unreadable:
      return unreadable(request.path,
                        Phrase("cups", "it changed while it was sent; nothing was printed"));
    case Sending::incomplete:
      return Sentence(
          Phrase("cups", "the document \"%1\" did not reach \"%2\" whole: print it again"),
          {request.path, request.destination.text()});
    case Sending::refused:
      return serverError({Phrase("cups", "\"%1\" takes no job"), {request.destination.text()}});
    default:
      return serverError({Phrase("cups", "the document \"%1\" could not be sent to \"%2\""),
                          {request.path, request.destination.text()}});
  }
}

// The first error is what the user hears, with what is left to do.
Error takenBack(const ServerOptions& server, const Outgoing& job, const Error& error) {
  if (cancelJob(server, job.request.destination, job.jobId)) return error;
  const std::string id = jobName(job.request.destination, job.jobId);
  return Sentence(kMayBeLeft, {error.sentence, id});
}

// A job that was given up, or whose answer got lost, may be there all the same. Printed once more
// it would come out twice, so the server is asked.
Result<int> settled(const ServerOptions& server, Outgoing& job, Sending sending,
                    const Error& error) {
  const auto found = jobWithMark(server, job.mark);
  if (!found) {
    return Error{Sentence(kMayHaveArrived, {error.sentence, job.request.destination.text()})};
  }
  if (!*found) return error;
  job.jobId = **found;
  if (sending == Sending::givenUp) return takenBack(server, job, error);
  return job.jobId;
}

// Presets, drivers and other programs can say anything.
std::optional<Error> whyNotSendable(const OptionList& options) {
  const auto bad = std::ranges::find_if_not(options, [](const auto& option) {
    return isPlainLine(option.first) && isPlainLine(option.second);
  });
  if (bad == options.end()) return std::nullopt;
  return Sentence(Phrase("cups", "the option %1 has control characters; nothing was printed"),
                  {bad->first});
}

}  // namespace

Result<int> submitJob(const ServerOptions& server, const PrintRequest& request,
                      const SpoolProgress& progress) {
  if (auto why = whyNotSendable(request.options)) return *std::move(why);
  auto document = DocumentFile::open(request.path);
  if (!document) return document.error();
  document->name = sendable(request.documentName.empty() ? document->name : request.documentName);
  Outgoing job{request, progress, std::move(*document)};
  if (!job.goesOn()) return givenUp();
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();

  Sending sending = send(*connection, job);
  if (sending == Sending::done) sending = arrived(server, *connection, job);
  if (sending == Sending::done) return job.jobId;
  const Error error = whyNotSent(sending, request);
  connection = Error{};  // hangs up in the middle of the request, so the server drops it
  if (sending == Sending::incomplete) return takenBack(server, job, error);
  if (sending == Sending::refused || !job.isAllSent()) return error;
  return settled(server, job, sending, error);
}

bool leavesJobInDoubt(const Error& error) {
  const auto& phrase = error.sentence.phrase();
  if (!phrase) return false;
  const std::string_view source = phrase->source;
  return source == kMayBeLeft.source || source == kMayHaveArrived.source;
}

Result<Done> cancelJob(const ServerOptions& server, const DestinationName& destination, int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  const ipp_status_t status =
      cupsCancelJob2(connection->get(), destination.printer.c_str(), jobId, /*purge=*/0);
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE) return Done{};
  return serverError(
      {Phrase("cups", "the job %1 cannot be cancelled"), {jobName(destination, jobId)}});
}

}  // namespace cutline
