#include "host/dialog/HeldJobPrintServer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/core/JobLayout.h"

namespace cutline {

namespace {

// Less than half a dot of the finest printers on either side, in points: programs write the sizes
// of their pages in whole points.
constexpr double kSame = 0.5;

bool isAlike(double one, double other) { return std::abs(one - other) <= kSame; }

bool isOwn(const ComposedPage& page, const LabelPage& label) {
  return page.size.isStated && page.turn == 0 && isAlike(page.size.width, label.width) &&
         isAlike(page.size.height, label.length) &&
         isAlike(page.scale * label.length, label.length);
}

bool isPdf(const HeldJob& job) {
  const OptionList::value_type wanted("document-format", "application/pdf");
  return std::ranges::find(job.options, wanted) != job.options.end();
}

bool hasName(const OptionList& options, const std::string& name) {
  return std::ranges::find(options, name, &OptionList::value_type::first) != options.end();
}

// Something on the job would lay the document out otherwise, and nothing that is put on it takes
// that back.
bool isLaidOutBy(const HeldJob& job, const OptionList& sent) {
  return std::ranges::any_of(job.options, [&](const OptionList::value_type& option) {
    const std::string& name = option.first;
    const bool acts = isLayoutOption(name) || isForeignLayoutOption(name) || name == "media-col";
    return acts && !hasName(sent, name);
  });
}

// The server reads either name of the paper.
OptionList withMedia(const HeldJob& job, OptionList options) {
  const auto size = std::ranges::find(options, "PageSize", &OptionList::value_type::first);
  if (size != options.end() && hasName(job.options, "media"))
    options.emplace_back("media", std::string(size->second));
  return options;
}

// The same with a name for people in the place of another one.
Sentence renamed(const Sentence& sentence, const std::string& from, const std::string& to) {
  if (!sentence.phrase()) return sentence.verbatim() == from ? Sentence(to) : sentence;
  std::vector<Sentence> arguments;
  for (const Sentence& each : sentence.arguments()) arguments.push_back(renamed(each, from, to));
  return {*sentence.phrase(), std::move(arguments)};
}

}  // namespace

bool areOwnPages(const CompositionRequest& request, const CompositionReport& report) {
  const bool isAll = static_cast<int>(report.pages.size()) == report.documentPages &&
                     !request.pages.isReversed && !report.isPartial;
  return isAll && !request.isMirrored && !request.lengthBounds &&
         std::ranges::all_of(report.pages,
                             [&](const ComposedPage& page) { return isOwn(page, report.label); });
}

HeldJobPrintServer::HeldJobPrintServer(std::shared_ptr<PrintServer> server,
                                       std::shared_ptr<HeldJobServer> jobs, HeldJob job)
    : ForwardingPrintServer(std::move(server)), mJobs(std::move(jobs)), mJob(std::move(job)) {}

DocumentTools HeldJobPrintServer::watched(DocumentTools tools) const {
  tools.compose = [compose = std::move(tools.compose), last = mComposed, title = mJob.title](
                      const std::vector<std::string>& paths, const CompositionRequest& request,
                      std::stop_token stop) {
    Result<ComposedDocument> composed = compose(paths, request, std::move(stop));
    const std::lock_guard lock(last->mutex);
    last->path = composed && composed->file ? composed->file->path() : std::string();
    last->isOwn = composed && areOwnPages(request, composed->report);
    // The file has no name that would tell anybody anything.
    if (composed || paths.empty()) return composed;
    return Result<ComposedDocument>(Error(renamed(composed.error().sentence, paths[0], title)));
  };
  return tools;
}

Result<Done> HeldJobPrintServer::giveUp() {
  if (mIsSpent.exchange(true)) return Done{};
  return mJobs->cancel(mJob.id);
}

bool HeldJobPrintServer::isJobItself(const PrintRequest& request) const {
  const std::lock_guard lock(mComposed->mutex);
  return mComposed->isOwn && mComposed->path == request.path && isPdf(mJob) &&
         request.destination.printer == mJob.printer && !isLaidOutBy(mJob, request.options);
}

Result<int> HeldJobPrintServer::let(const PrintRequest& request, const SpoolProgress& progress) {
  if (!isJobItself(request)) {
    PrintRequest named = request;
    named.documentName = mJob.title;
    return printInPlace(*mJobs, mJob, named, progress);
  }
  if (progress && !progress(0, 1))
    return Error{Sentence(Phrase("cups", "printing was cancelled, nothing was printed"))};
  const Result<Done> done = printHeldJob(*mJobs, mJob, withMedia(mJob, request.options));
  return done ? Result<int>(mJob.id) : Result<int>(done.error());
}

// Once it is spent, Print is for a job like any other.
Result<int> HeldJobPrintServer::submit(const PrintRequest& request, const SpoolProgress& progress) {
  if (mIsSpent) return ForwardingPrintServer::submit(request, progress);
  Result<int> job = let(request, progress);
  if (job) mIsSpent = true;
  return job;
}

}  // namespace cutline
