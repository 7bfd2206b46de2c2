#include "composition/helper/ComposingTask.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>

#include "composition/helper/PostScript.h"

namespace cutline {
namespace {

// For what the readers open themselves: fonts and their settings.
constexpr unsigned kOwnFiles = 64;
constexpr int kNiceness = 10;

// What is done ahead must not keep those waiting who find out what is asked: the program, and the
// print server. It is so for the rest of this process, as the way back is closed to most users.
void giveWay() {
  const int niceness = std::max(::getpriority(PRIO_PROCESS, 0), kNiceness);
  static_cast<void>(::setpriority(PRIO_PROCESS, 0, niceness));
}

}  // namespace

DocumentKind kindOf(int document) {
  std::string start(kDocumentStart, '\0');
  const ssize_t count = ::pread(document, start.data(), start.size(), 0);
  start.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return documentKind(start);
}

ComposingTask::ComposingTask(std::vector<FileDescriptor> files, const ProcessLimits& limits,
                             ModuleLoader load)
    : mFiles(std::move(files)), mLimits(limits), mLoad(load) {
  for (std::size_t at = 1; at < mFiles.size(); ++at) mDocuments.push_back(mFiles[at].get());
}

void ComposingTask::prepare(const std::function<bool()>& isAsked) {
  const bool hasTime = !isAsked();
  for (const int document : mDocuments) takeKind(kindOf(document));
  if (mHasPostScript) return;
  // Later the process may not change it.
  if (hasTime) giveWay();
  mIsConfined = confineNow();
  if (hasTime && mIsConfined) mComposer.readAhead(mDocuments, isAsked);
}

CompositionReport ComposingTask::compose(const CompositionRequest& request) {
  if (auto failure = mHasPostScript ? convert(request) : std::nullopt) return *failure;
  if (!mIsConfined && !confineNow())
    return failedReport(DocumentProblem::broken, 0, "it cannot be confined");
  CompositionReport report = mComposer.compose(request, mDocuments, mFiles.front().get(), mModules);
  report.isPartial |= mHasPostScript && request.pages.neededFirst() > 0;
  return report;
}

void ComposingTask::takeKind(DocumentKind kind) {
  if (needsModule(kind)) mLoad(kind, mModules);
  mHasPostScript |= kind == DocumentKind::postScript;
}

bool ComposingTask::confineNow() const {
  ProcessLimits limits = mLimits;
  limits.files = static_cast<unsigned>(mFiles.size()) + kOwnFiles;
  return confine(limits);
}

std::optional<CompositionReport> ComposingTask::convert(const CompositionRequest& request) {
  for (std::size_t at = 0; at < mDocuments.size(); ++at) {
    if (kindOf(mDocuments[at]) != DocumentKind::postScript) continue;
    PostScriptResult result = pdfOfPostScript(mDocuments[at], request.pages.neededFirst());
    if (result.problem)
      return failedReport(result.problem->problem, static_cast<int>(at), result.problem->detail);
    mDocuments[at] = result.pdf.get();
    mFiles.push_back(std::move(result.pdf));
  }
  return std::nullopt;
}

CompositionReport failedReport(DocumentProblem problem, int document, std::string detail) {
  CompositionReport report;
  report.failure = CompositionFailure{problem, document, std::move(detail)};
  return report;
}

}  // namespace cutline
