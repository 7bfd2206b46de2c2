// Lays documents onto label pages, confined: standard input gives the PDF to write, the documents
// and then the request; the report goes to standard output. Started for StartedComposer.
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/FileDescriptor.h"
#include "composition/Composition.h"
#include "composition/HelperExchange.h"
#include "composition/HelperRequest.h"
#include "composition/helper/Confinement.h"
#include "composition/helper/LoadedModules.h"
#include "composition/helper/PostScript.h"
#include "composition/reader/DocumentComposer.h"
#include "composition/reader/DocumentKind.h"
#include "composition/reader/PictureReader.h"

namespace {

using namespace cutline;

// For what the readers open themselves: fonts and their settings.
constexpr unsigned kOwnFiles = 64;
constexpr int kNiceness = 10;
// The processor's time is less than what the client waits.
constexpr ProcessLimits kLimits = {
    .memory = 512U << 20U, .fileSize = 512U << 20U, .cpuSeconds = 45, .wallSeconds = 65};

DocumentKind kindOf(int document) {
  std::string start(kDocumentStart, '\0');
  const ssize_t count = ::pread(document, start.data(), start.size(), 0);
  start.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return documentKind(start);
}

CompositionReport failed(DocumentProblem problem, int document, std::string detail = {}) {
  CompositionReport report;
  report.failure = CompositionFailure{problem, document, std::move(detail)};
  return report;
}

bool needsTypesetter(DocumentKind kind) {
  return kind == DocumentKind::text || kind == DocumentKind::svg;
}

// What is done ahead must not keep those waiting who find out what is asked: the program, and the
// print server. It is so for the rest of this process, as the way back is closed to most users.
void giveWay() {
  const int niceness = std::max(::getpriority(PRIO_PROCESS, 0), kNiceness);
  static_cast<void>(::setpriority(PRIO_PROCESS, 0, niceness));
}

// Documents on their way to labels.
class Task {
 public:
  // The PDF to write, and then the documents.
  explicit Task(std::vector<FileDescriptor> files) : mFiles(std::move(files)) {
    for (std::size_t at = 1; at < mFiles.size(); ++at) mDocuments.push_back(mFiles[at].get());
  }

  std::size_t documents() const { return mDocuments.size(); }

  // What can be done before there is a request. PostScript waits for it, and needs another program,
  // which this one may not start once it is confined.
  void prepare() {
    for (const int document : mDocuments) take(kindOf(document));
    if (mHasPostScript) return;
    const bool isAhead = !isTextSent(STDIN_FILENO);
    if (isAhead) giveWay();
    mIsConfined = confined();
    if (isAhead && mIsConfined) mComposer.readAhead(mDocuments);
  }

  CompositionReport compose(const CompositionRequest& request) {
    if (mHasPostScript)
      if (auto failure = convert(request)) return *failure;
    if (!mIsConfined && !confined())
      return failed(DocumentProblem::broken, 0, "it cannot be confined");
    CompositionReport report =
        mComposer.compose(request, mDocuments, mFiles.front().get(), mModules);
    report.isPartial |= mHasPostScript && request.pages.neededFirst() > 0;
    return report;
  }

 private:
  void take(DocumentKind kind) {
    if (!mModules.typesetter && needsTypesetter(kind)) mModules.typesetter = loadedTypesetter();
    if (!mModules.pictures && needsPictureReader(kind)) mModules.pictures = loadedPictureReader();
    mHasPostScript |= kind == DocumentKind::postScript;
  }

  bool confined() const {
    ProcessLimits limits = kLimits;
    limits.files = static_cast<unsigned>(mFiles.size()) + kOwnFiles;
    return confine(limits);
  }

  std::optional<CompositionReport> convert(const CompositionRequest& request) {
    for (std::size_t at = 0; at < mDocuments.size(); ++at) {
      if (kindOf(mDocuments[at]) != DocumentKind::postScript) continue;
      PostScriptResult result = pdfOfPostScript(mDocuments[at], request.pages.neededFirst());
      if (result.problem)
        return failed(result.problem->problem, static_cast<int>(at), result.problem->detail);
      mDocuments[at] = result.pdf.get();
      mFiles.push_back(std::move(result.pdf));
    }
    return std::nullopt;
  }

  std::vector<FileDescriptor> mFiles;
  std::vector<int> mDocuments;
  ReaderModules mModules;
  bool mHasPostScript = false;
  bool mIsConfined = false;
  DocumentComposer mComposer;
};

// Nothing where there is no request to make a report of.
std::optional<CompositionReport> answeredBy(Task& task) {
  ::alarm(kLimits.wallSeconds);
  task.prepare();
  // Who asks may take as long as it likes.
  ::alarm(0);
  const auto text = receiveText(STDIN_FILENO);
  const auto request = text ? CompositionRequest::parse(*text) : std::nullopt;
  if (!request || request->names.size() != task.documents()) return std::nullopt;
  ::alarm(kLimits.wallSeconds);
  return task.compose(*request);
}

CompositionReport reportOf(Task& task) {
  try {
    const auto report = answeredBy(task);
    if (report) return *report;
  } catch (const std::bad_alloc&) {
    return failed(DocumentProblem::tooLarge, -1);
  }
  ::_exit(EXIT_FAILURE);
}

}  // namespace

int main() {
  ::mallopt(M_ARENA_MAX, 1);
  auto files = receiveFiles(STDIN_FILENO);
  if (!files || files->empty()) return EXIT_FAILURE;
  Task task(std::move(*files));
  const std::string answer = reportOf(task).asText() + kAnswerEnd;
  // Without what a program does at its end: to let go of long documents takes a while, what read
  // them may not be in order, and a sanitizer's search for leaks needs calls that are refused here.
  ::_exit(writeAll(STDOUT_FILENO, answer.data(), answer.size()) ? EXIT_SUCCESS : EXIT_FAILURE);
}
