#include "host/core/HeldJobPrinting.h"

#include <array>
#include <functional>

#include "cups/HeldJobSteps.h"

namespace cutline {

namespace {

constexpr int kMostTries = 3;

// For steps that do nothing more when they were done before: where the answer got lost, they are
// asked for again.
Result<Done> again(const std::function<Result<Done>()>& step) {
  Result<Done> done = step();
  for (int tries = 1; !done && tries < kMostTries; ++tries) done = step();
  return done;
}

bool isNotPrinted(JobState state) {
  return state == JobState::canceled || state == JobState::aborted;
}

// The waiting job only takes up room from then on; where it cannot be cancelled now it is when it
// is settled.
void letPrint(HeldJobServer& server, int printed, int waiting) {
  if (again([&] { return server.release(printed); })) server.cancel(waiting);
}

}  // namespace

HeldJobServer::~HeldJobServer() = default;

Result<Done> CupsHeldJobServer::setOptions(int job, const OptionList& options) {
  return setHeldJobOptions(mOptions, job, options);
}

Result<Done> CupsHeldJobServer::mark(int job, const std::string& name, const std::string& value) {
  return markJob(mOptions, job, name, value);
}

Result<Done> CupsHeldJobServer::move(int job, const std::string& printer) {
  return moveJob(mOptions, job, printer);
}

Result<Done> CupsHeldJobServer::release(int job) { return releaseJob(mOptions, job); }

Result<Done> CupsHeldJobServer::cancel(int job) { return cancelWaitingJob(mOptions, job); }

Result<int> CupsHeldJobServer::submit(const PrintRequest& request, const SpoolProgress& progress) {
  return submitJob(mOptions, request, progress);
}

std::optional<JobState> CupsHeldJobServer::state(int job) { return jobState(mOptions, job); }

Result<std::vector<int>> CupsHeldJobServer::inPlaceOf(int job) {
  return jobsInPlaceOf(mOptions, job);
}

Result<Done> printHeldJob(HeldJobServer& server, const HeldJob& job, const OptionList& options) {
  if (auto done = again([&] { return server.setOptions(job.id, options); }); !done) return done;
  if (auto done = again([&] { return server.move(job.id, job.printer); }); !done) return done;
  return again([&] { return server.release(job.id); });
}

Result<int> printInPlace(HeldJobServer& server, const HeldJob& job, const PrintRequest& request,
                         const SpoolProgress& progress) {
  PrintRequest waiting = request;
  waiting.options.emplace_back("job-hold-until", "indefinite");
  waiting.options.emplace_back(kInPlaceOfOption, std::to_string(job.id));
  const Result<int> sent = server.submit(waiting, progress);
  if (!sent) return sent;
  const auto marked =
      again([&] { return server.mark(job.id, kPrintedByOption, std::to_string(*sent)); });
  if (!marked) {
    server.cancel(*sent);
    return marked.error();
  }
  letPrint(server, *sent, job.id);
  return sent;
}

Result<bool> settleHeldJob(HeldJobServer& server, const HeldJob& job) {
  const Result<std::vector<int>> others = server.inPlaceOf(job.id);
  if (!others) return others.error();
  for (const int other : *others)
    if (other != job.printedBy) server.cancel(other);
  if (!job.printedBy) return false;
  const std::optional<JobState> state = server.state(*job.printedBy);
  if (!state || isNotPrinted(*state)) return false;
  letPrint(server, *job.printedBy, job.id);
  return true;
}

}  // namespace cutline
