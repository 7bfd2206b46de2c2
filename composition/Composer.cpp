#include "composition/Composer.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Numbers.h"
#include "base/Uninterrupted.h"
#include "composition/CompositionErrors.h"
#include "composition/HelperProcess.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// More than the report of as many pages as a PDF may have.
constexpr std::size_t kMostReport = 64U << 20U;

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

// What is read from the beginning of a nameless file.
Result<FileDescriptor> fileWith(const std::string& text) {
  FileDescriptor file(::memfd_create("cutline-request", MFD_CLOEXEC));
  if (!file || !writeAll(file.get(), text.data(), text.size()) ||
      ::lseek(file.get(), 0, SEEK_SET) < 0)
    return Error{"cannot ask the composer: " + systemReason()};
  return file;
}

struct Answer {
  std::string text;
  bool isInTime = true;
};

// Waits for something to read, or for the end. No when time is up.
bool waitForMore(int descriptor, steady_clock::time_point end) {
  for (;;) {
    const auto left = std::chrono::duration_cast<milliseconds>(end - steady_clock::now());
    if (left.count() <= 0) return false;
    pollfd wait{descriptor, POLLIN, 0};
    const int ready = ::poll(&wait, 1, static_cast<int>(left.count()));
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
  }
}

Answer readToEnd(int descriptor, steady_clock::time_point end) {
  Answer answer;
  std::array<char, 65536> block;
  while (answer.text.size() <= kMostReport) {
    if (!waitForMore(descriptor, end)) {
      answer.isInTime = false;
      break;
    }
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor, block.data(), block.size()); });
    if (count <= 0) break;
    answer.text.append(block.data(), static_cast<std::size_t>(count));
  }
  return answer;
}

struct HelperAnswer {
  Answer answer;
  int status = 0;
};

Result<HelperAnswer> ask(HelperStart start, const std::stop_token& stop, milliseconds patience) {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return Error{"cannot ask the composer: " + systemReason()};
  const FileDescriptor report(ends[0]);
  FileDescriptor written(ends[1]);
  start.output = written.get();
  Result<HelperProcess> helper = HelperProcess::start(start);
  if (!helper) return helper.error();
  written = FileDescriptor();
  HelperAnswer result;
  {
    const std::stop_callback onStop(stop, [&helper] { helper->kill(); });
    result.answer = readToEnd(report.get(), steady_clock::now() + patience);
    if (!result.answer.isInTime) helper->kill();
  }
  result.status = helper->wait();
  return result;
}

// What went wrong; nothing when the report says what was composed.
std::optional<CompositionFailure> failureIn(const HelperAnswer& asked,
                                            const std::optional<CompositionReport>& report) {
  if (!asked.answer.isInTime) return CompositionFailure{DocumentProblem::tooSlow, -1, {}};
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

Result<ComposedDocument> compose(const std::string& helperDirectory,
                                 const std::vector<std::string>& paths, CompositionRequest request,
                                 std::stop_token stop, milliseconds patience) {
  if (paths.empty()) return Error{Phrase("composition", "there is no document")};
  std::vector<FileDescriptor> documents;
  for (const std::string& path : paths) {
    Result<FileDescriptor> document = openDocument(path);
    if (!document) return document.error();
    documents.push_back(std::move(*document));
  }
  request.names = paths;
  const Result<FileDescriptor> input = fileWith(request.asText());
  if (!input) return input.error();
  Result<TemporaryFile> output = TemporaryFile::make();
  if (!output) return output.error();

  HelperStart start{helperDirectory + "/" + kComposerName, input->get()};
  start.files.push_back(output->descriptor());
  for (const FileDescriptor& document : documents) start.files.push_back(document.get());
  const Result<HelperAnswer> asked = ask(std::move(start), stop, patience);
  if (!asked) return asked.error();
  if (stop.stop_requested()) return Error{Phrase("composition", "it was stopped")};
  std::optional<CompositionReport> report = CompositionReport::parse(asked->answer.text);
  if (const auto failure = failureIn(*asked, report)) {
    if (const auto missing = missingPages(*failure, request.pages.ranges)) return *missing;
    return errorOf(*failure, paths);
  }
  return ComposedDocument{std::make_shared<const TemporaryFile>(std::move(*output)),
                          std::move(*report)};
}

}  // namespace cutline
