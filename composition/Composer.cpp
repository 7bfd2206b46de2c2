#include "composition/Composer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Numbers.h"
#include "composition/CompositionErrors.h"
#include "composition/HelperExchange.h"
#include "lean/LeanParts.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;

std::string systemReason() { return std::strerror(errno); }

// The kind of file comes first: to open a pipe could wait for ever.
Result<FileDescriptor> openDocument(const std::string& path) {
  const auto refused = [&](Sentence reason) {
    return unreadableDocuments({path}, std::move(reason));
  };
  std::error_code problem;
  const auto kind = std::filesystem::status(path, problem).type();
  if (problem) return refused(problem.message());
  if (kind == std::filesystem::file_type::directory)
    return refused(Phrase("composition", "it is a folder"));
  if (kind != std::filesystem::file_type::regular)
    return refused(Phrase("composition", "it is not a file"));
  FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (!file) return refused(systemReason());
  const auto size = std::filesystem::file_size(path, problem);
  if (problem) return refused(problem.message());
  if (size == 0) return refused(Phrase("composition", "it is empty"));
  return file;
}

// What went wrong; nothing when the report says what was composed.
std::optional<CompositionFailure> failureIn(const HelperAnswer& asked,
                                            const std::optional<CompositionReport>& report) {
  if (!asked.isInTime) return CompositionFailure{DocumentProblem::tooSlow, -1, {}};
  if (asked.status != 0) return CompositionFailure{problemOfEnd(asked.status), -1, {}};
  const bool isReport = report && (report->failure || !report->pages.empty());
  if (!isReport) return CompositionFailure{DocumentProblem::broken, -1, {}};
  return report->failure;
}

// Pages that were asked for and that all documents together do not have.
std::optional<Error> missingPages(const CompositionFailure& failure, const PageRanges& ranges) {
  if (failure.problem != DocumentProblem::pageMissing) return std::nullopt;
  const Result<Done> within = ranges.checkWithin(numberIn<int>(failure.detail).value_or(0));
  return within ? std::nullopt : std::optional(within.error());
}

Error errorOf(const CompositionFailure& failure, const std::vector<std::string>& paths) {
  const bool isKnown =
      failure.document >= 0 && static_cast<std::size_t>(failure.document) < paths.size();
  if (!isKnown) return unreadableDocuments(paths, reasonOf(failure));
  return unreadableDocuments({paths[static_cast<std::size_t>(failure.document)]},
                             reasonOf(failure));
}

}  // namespace

struct StartedComposer::Running {
  TemporaryFile output;
  HelperExchange composer;
};

namespace {

// What the program that this is part of started before anything else, until it is asked for: by
// commands, which ask on one thread.
std::optional<HelperExchange>& earlyComposer() {
  static std::optional<HelperExchange> composer;
  return composer;
}

Result<HelperExchange> newComposer(const std::string& helperDirectory) {
  if (mayBeLean(LeanPart::composer)) {
    Result<HelperExchange> lean = HelperExchange::start(helperDirectory + '/' + kLeanComposer);
    if (lean) return lean;
  }
  return HelperExchange::start(helperDirectory + '/' + kComposerName);
}

Result<HelperExchange> startedComposer(const std::string& helperDirectory) {
  if (!earlyComposer()) return newComposer(helperDirectory);
  HelperExchange composer = std::move(*earlyComposer());
  earlyComposer().reset();
  return composer;
}

Result<std::vector<FileDescriptor>> openDocuments(const std::vector<std::string>& paths) {
  if (paths.empty()) return Error{Phrase("composition", "there is no document")};
  std::vector<FileDescriptor> documents;
  for (const std::string& path : paths) {
    Result<FileDescriptor> document = openDocument(path);
    if (!document) return document.error();
    documents.push_back(std::move(*document));
  }
  return documents;
}

}  // namespace

void keepEarlyComposer(const WaitingHelper& composer) { earlyComposer().emplace(composer); }

Result<std::unique_ptr<StartedComposer::Running>> StartedComposer::start(
    const std::string& helperDirectory, const std::vector<std::string>& paths) {
  const Result<std::vector<FileDescriptor>> documents = openDocuments(paths);
  if (!documents) return documents.error();
  Result<TemporaryFile> output = TemporaryFile::make();
  if (!output) return output.error();
  Result<HelperExchange> composer = startedComposer(helperDirectory);
  if (!composer) return composer.error();
  std::vector<int> files{output->descriptor()};
  for (const FileDescriptor& document : *documents) files.push_back(document.get());
  composer->give(files);
  return std::make_unique<Running>(Running{std::move(*output), std::move(*composer)});
}

StartedComposer::StartedComposer(const std::string& helperDirectory, std::vector<std::string> paths)
    : mPaths(std::move(paths)), mRunning(start(helperDirectory, mPaths)) {}

StartedComposer::StartedComposer(StartedComposer&&) noexcept = default;
StartedComposer& StartedComposer::operator=(StartedComposer&&) noexcept = default;
StartedComposer::~StartedComposer() = default;

Result<ComposedDocument> StartedComposer::compose(CompositionRequest request, std::stop_token stop,
                                                  milliseconds patience) {
  if (!mRunning) return mRunning.error();
  request.names = mPaths;
  const HelperAnswer asked = (*mRunning)->composer.ask(request.asText(), stop, patience);
  if (stop.stop_requested()) return Error{Phrase("composition", "it was stopped")};
  std::optional<CompositionReport> report = CompositionReport::parse(asked.text);
  if (const auto failure = failureIn(asked, report)) {
    if (const auto missing = missingPages(*failure, request.pages.ranges)) return *missing;
    return errorOf(*failure, mPaths);
  }
  return ComposedDocument{std::make_shared<const TemporaryFile>(std::move((*mRunning)->output)),
                          std::move(*report)};
}

Result<ComposedDocument> compose(const std::string& helperDirectory,
                                 const std::vector<std::string>& paths, CompositionRequest request,
                                 std::stop_token stop, milliseconds patience) {
  return StartedComposer(helperDirectory, paths)
      .compose(std::move(request), std::move(stop), patience);
}

}  // namespace cutline
