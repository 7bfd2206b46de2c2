#include "cups/HeldJobSteps.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <functional>

#include "cups/CupsOptions.h"
#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr char kJobs[] = "/jobs/";
constexpr std::size_t kDocumentBlock = 65536;
// Who one is may be asked for first.
constexpr int kMostAsked = 3;

Phrase notChanged() { return Phrase("cups", "the job %1 cannot be changed"); }

Error refusal(Phrase what, int jobId) { return serverError({what, {std::to_string(jobId)}}); }

// Asks until the server knows who asks. The document follows the answer on the connection.
IppMessage askForDocument(http_t* http, int jobId) {
  IppMessage answer;
  for (int tries = 0; !answer && tries < kMostAsked; ++tries) {
    const IppMessage request = newJobRequest(IPP_OP_CUPS_GET_DOCUMENT, jobId);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "document-number", 1);
    const http_status_t sent = cupsSendRequest(http, request.get(), "/", ippLength(request.get()));
    if (sent >= HTTP_STATUS_BAD_REQUEST && sent != HTTP_STATUS_UNAUTHORIZED) break;
    answer.reset(cupsGetResponse(http, "/"));
    const http_status_t status = httpGetStatus(http);
    if (status != HTTP_STATUS_OK && status != HTTP_STATUS_UNAUTHORIZED) break;
  }
  if (answer && ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE) answer.reset();
  return answer;
}

Result<Done> copyDocument(http_t* http, const std::string& document, int to) {
  std::array<char, kDocumentBlock> block{};
  std::size_t size = 0;
  ssize_t count = 0;
  while ((count = cupsReadResponseData(http, block.data(), block.size())) > 0) {
    size += static_cast<std::size_t>(count);
    if (size > kMostDocument) return Error{document + " is too large"};
    if (!writeAll(to, block.data(), static_cast<std::size_t>(count)))
      return Error{document + " cannot be kept: " + std::strerror(errno)};
  }
  const bool isWhole = count == 0 && size > 0 && httpError(http) == 0;
  if (isWhole) return Done{};
  return Error{document + " did not arrive whole: try again"};
}

// What is asked of the server about a job.
struct Step {
  ipp_op_t operation;
  Phrase failure;
  std::function<void(ipp_t*)> complete = {};
  // Nothing is left to do where the server says that the job is in no state for it, or is gone.
  bool isDoneWhereLate = false;
};

bool isLate() {
  const ipp_status_t status = cupsLastError();
  return status == IPP_STATUS_ERROR_NOT_POSSIBLE || status == IPP_STATUS_ERROR_NOT_FOUND;
}

Result<Done> take(const Step& step, const ServerOptions& server, int jobId) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  IppMessage request = newJobRequest(step.operation, jobId);
  if (step.complete) step.complete(request.get());
  if (answerTo(connection->get(), std::move(request), kJobs)) return Done{};
  if (step.isDoneWhereLate && isLate()) return Done{};
  return refusal(step.failure, jobId);
}

void encode(ipp_t* request, const OptionList& options) {
  const CupsOptions list(options);
  cupsEncodeOptions2(request, list.size(), list.data(), IPP_TAG_JOB);
}

}  // namespace

Result<TemporaryFile> fetchJobDocument(const ServerOptions& server, int jobId) {
  auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  Result<TemporaryFile> file = TemporaryFile::make();
  if (!file) return file;
  const IppMessage answer = askForDocument(connection->get(), jobId);
  const std::string document = "the document of the job " + std::to_string(jobId);
  if (!answer) return serverError(document + " cannot be fetched");
  connection->takeTime();
  const Result<Done> copied = copyDocument(connection->get(), document, file->descriptor());
  if (!copied) return copied.error();
  return file;
}

Result<Done> setHeldJobOptions(const ServerOptions& server, int jobId, const OptionList& options) {
  const auto complete = [&](ipp_t* request) {
    OptionList held = options;
    // The server takes sheets only from who makes the job.
    std::erase_if(held, [](const auto& option) { return option.first == "job-sheets"; });
    held.emplace_back("job-hold-until", "indefinite");
    encode(request, held);
  };
  return take({IPP_OP_SET_JOB_ATTRIBUTES, notChanged(), complete}, server, jobId);
}

Result<Done> markJob(const ServerOptions& server, int jobId, const std::string& name,
                     const std::string& value) {
  const auto complete = [&](ipp_t* request) {
    ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.c_str(), nullptr, value.c_str());
  };
  return take({IPP_OP_SET_JOB_ATTRIBUTES, notChanged(), complete}, server, jobId);
}

Result<Done> moveJob(const ServerOptions& server, int jobId, const std::string& printer) {
  const auto complete = [&](ipp_t* request) {
    ippAddString(request, IPP_TAG_JOB, IPP_TAG_URI, "job-printer-uri", nullptr,
                 printerUri(printer).c_str());
  };
  return take(
      {IPP_OP_CUPS_MOVE_JOB, Phrase("cups", "the job %1 cannot be moved to its printer"), complete},
      server, jobId);
}

Result<Done> releaseJob(const ServerOptions& server, int jobId) {
  return take({IPP_OP_RELEASE_JOB, Phrase("cups", "the job %1 cannot be released"), {}, true},
              server, jobId);
}

Result<Done> cancelWaitingJob(const ServerOptions& server, int jobId) {
  return take({IPP_OP_CANCEL_JOB, Phrase("cups", "the job %1 cannot be cancelled"), {}, true},
              server, jobId);
}

}  // namespace cutline
