#include "composition/helper/ComposerRun.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdlib>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "composition/HelperExchange.h"
#include "composition/HelperRequest.h"

namespace cutline {
namespace {

// The processor's time is less than what the client waits.
constexpr ProcessLimits kLimits = {
    .memory = 512U << 20U, .fileSize = 512U << 20U, .cpuSeconds = 45, .wallSeconds = 65};

// Nothing where there is no request to make a report of.
std::optional<CompositionReport> answeredBy(ComposingTask& task) {
  ::alarm(kLimits.wallSeconds);
  task.prepare([] { return isTextSent(STDIN_FILENO); });
  // Who asks may take as long as it likes.
  ::alarm(0);
  const auto text = receiveText(STDIN_FILENO);
  const auto request = text ? CompositionRequest::parse(*text) : std::nullopt;
  if (!request || request->names.size() != task.documents()) return std::nullopt;
  ::alarm(kLimits.wallSeconds);
  return task.compose(*request);
}

std::optional<CompositionReport> reportOf(ComposingTask& task) {
  try {
    return answeredBy(task);
  } catch (const std::bad_alloc&) {
    return failedReport(DocumentProblem::tooLarge, -1);
  }
}

bool writeReport(const std::optional<CompositionReport>& report) {
  if (!report) return false;
  const std::string answer = report->asText() + kAnswerEnd;
  return writeAll(STDOUT_FILENO, answer.data(), answer.size());
}

}  // namespace

void runComposer(std::vector<FileDescriptor> files, ModuleLoader load) {
  ::mallopt(M_ARENA_MAX, 1);
  if (files.empty()) ::_exit(EXIT_FAILURE);
  ComposingTask task(std::move(files), kLimits, load);
  // Without what a program does at its end: to let go of long documents takes a while, what read
  // them may not be in order, and a sanitizer's search for leaks needs calls that are refused here.
  ::_exit(writeReport(reportOf(task)) ? EXIT_SUCCESS : EXIT_FAILURE);
}

}  // namespace cutline
