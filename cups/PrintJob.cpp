#include "cups/PrintJob.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/Visible.h"
#include "cups/CupsOptions.h"
#include "cups/DocumentFile.h"
#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr std::size_t kBlockSize = 65536;

// How the sending of a document ended.
enum class Sending { done, givenUp, unreadable, refused, incomplete };

// Sends the document's blocks; the library sends a request's body in chunks.
Sending sendBlocks(http_t* http, DocumentFile& document, const SpoolProgress& progress) {
  std::vector<char> block(kBlockSize);
  std::uint64_t sent = 0;
  while (document.stream) {
    document.stream.read(block.data(), static_cast<std::streamsize>(block.size()));
    const auto count = static_cast<std::size_t>(document.stream.gcount());
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

// Works around libcups 2.4.2: cupsFinishDocument answers with the status of an earlier request
// where the connection breaks, so the answer itself is looked at.
bool isTaken(http_t* http, const std::string& printer) {
  const IppMessage answer(cupsGetResponse(http, ("/printers/" + printer).c_str()));
  return answer && httpGetStatus(http) == HTTP_STATUS_OK &&
         ippGetStatusCode(answer.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

Sending sendDocument(http_t* http, const char* printer, int jobId, DocumentFile& document,
                     const SpoolProgress& progress) {
  const http_status_t started =
      cupsStartDocument(http, printer, jobId, document.name.c_str(), document.format.c_str(),
                        /*last_document=*/1);
  if (started != HTTP_STATUS_CONTINUE) return Sending::refused;
  const Sending sending = sendBlocks(http, document, progress);
  if (sending != Sending::done) return sending;
  return isTaken(http, printer) ? Sending::done : Sending::refused;
}

// Asks the server what it has of the document. A server that does not tell, or has forgotten the
// job already, is believed: it said that it has taken it.
Sending arrived(const ServerOptions& server, const PrintRequest& request, int jobId,
                std::uint64_t size) {
  constexpr std::uint64_t kKilobyte = 1024;
  const auto status = jobStatus(server, request.destination, jobId);
  if (!status || !status->kilobytes) return Sending::done;
  const bool isWhole = *status->kilobytes * kKilobyte >= size;
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
    default:
      return serverError({Phrase("cups", "the document \"%1\" could not be sent to \"%2\""),
                          {request.path, request.destination.text()}});
  }
}

// Takes a job back whose document did not arrive. The broken request's connection is closed by
// then, so this is a new one; the first error is what the user hears, with what is left to do.
Error takenBack(const ServerOptions& server, const PrintRequest& request, int jobId,
                const Error& error) {
  if (cancelJob(server, request.destination, jobId)) return error;
  const std::string id = jobName(request.destination, jobId);
  return Sentence(Phrase("cups", "%1; the job %2 may still be there: remove it with cancel %2"),
                  {error.sentence, id});
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

// The names of files are bytes of any kind.
std::string sendable(const std::string& name) { return isPlainLine(name) ? name : visible(name); }

}  // namespace

Result<int> submitJob(const ServerOptions& server, const PrintRequest& request,
                      const SpoolProgress& progress) {
  if (auto why = whyNotSendable(request.options)) return *std::move(why);
  auto document = DocumentFile::open(request.path);
  if (!document) return document.error();
  document->name = sendable(request.documentName.empty() ? document->name : request.documentName);
  if (progress && !progress(0, document->size)) return givenUp();
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();

  const char* printer = request.destination.printer.c_str();
  const CupsOptions options(request.options);
  const std::string title = sendable(request.title);
  const int jobId =
      cupsCreateJob(connection->get(), printer, title.c_str(), options.size(), options.data());
  connection->takeTime();
  if (jobId == 0)
    return serverError({Phrase("cups", "\"%1\" takes no job"), {request.destination.text()}});

  Sending sending = sendDocument(connection->get(), printer, jobId, *document, progress);
  if (sending == Sending::done) sending = arrived(server, request, jobId, document->size);
  if (sending == Sending::done) return jobId;
  const Error error = whyNotSent(sending, request);
  connection = Error{};  // hangs up in the middle of the request, so the server drops it
  return takenBack(server, request, jobId, error);
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
