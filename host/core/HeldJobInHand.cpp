#include "host/core/HeldJobInHand.h"

#include <functional>

#include "base/Numbers.h"
#include "base/UserLock.h"
#include "cups/HeldJobSteps.h"
#include "cups/PpdFile.h"
#include "host/core/HeldJobPrinting.h"
#include "host/core/JobLayout.h"
#include "host/core/OptionSpelling.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

// Two windows about one job could print it twice.
Result<FileDescriptor> lock(const ServerOptions& server, int job) {
  const std::size_t place = std::hash<std::string>()(server.server.value_or(""));
  const std::string number = std::to_string(job);
  Result<FileDescriptor> held = takeUserLock("job-" + number + '-' + std::to_string(place));
  if (!held || *held) return held;
  return Error{"the job " + number + " is open in another window"};
}

bool isOurs(const PpdFile& ppd, const OptionList::value_type& option) {
  const bool isKnown = ppd.hasOption(option.first) || isLayoutOption(option.first);
  return isKnown && static_cast<bool>(checkOptions(ppd, {option}));
}

// What the dialog can show of what the job says. The rest stays on the job.
AskedSettings settingsOf(const HeldJob& job, const PpdFile& ppd) {
  AskedSettings asked;
  OptionList options;
  for (const auto& [name, value] : job.options) {
    if (name == "copies") asked.copies = numberIn<int>(value);
    if (name == "page-ranges") asked.pageRanges = value;
    options.emplace_back(name == "media" ? "PageSize" : name, value);
  }
  for (const auto& option : spelledFor(ppd, options))
    if (isOurs(ppd, option)) asked.options.push_back(option);
  return asked;
}

}  // namespace

Result<std::shared_ptr<HeldJobInHand>> HeldJobInHand::take(CommandLine& line) {
  Result<FileDescriptor> locked = lock(line.server, *line.heldJobId);
  if (!locked) return locked.error();
  const Result<HeldJob> job = heldJob(line.server, *line.heldJobId);
  if (!job) return job.error();
  CupsHeldJobServer server(line.server);
  const Result<bool> settled = settleHeldJob(server, *job);
  if (!settled) return settled.error();
  if (*settled) return std::shared_ptr<HeldJobInHand>();
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::fetch(line.server, job->printer);
  if (!ppd) return ppd.error();
  Result<TemporaryFile> document = fetchJobDocument(line.server, job->id);
  if (!document) return document.error();
  line.heldJob = std::make_shared<const HeldJob>(*job);
  line.destination = DestinationName{job->printer, std::nullopt};
  line.files = {document->path()};
  if (!line.title) line.title = job->title;
  line.asked = settingsOf(*job, **ppd);
  line.isOnce = true;
  return std::shared_ptr<HeldJobInHand>(
      new HeldJobInHand(std::move(*locked), std::move(*document)));
}

}  // namespace cutline
