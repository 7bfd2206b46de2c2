#include "host/core/HeadlessSending.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <thread>

#include "base/Visible.h"
#include "cups/Destinations.h"
#include "cups/PrintJob.h"
#include "host/core/JobEnd.h"

namespace cutline {

namespace {

// Short against what a printer needs for a label.
constexpr std::chrono::milliseconds kBetweenQuestions{250};

std::string nameOf(const std::string& file) {
  return std::filesystem::path(file).filename().string();
}

}  // namespace

Result<int> sendDocument(const CommandLine& line, const std::string& path,
                         const std::vector<std::string>& files, HeadlessSession& session,
                         const Streams& streams) {
  const Result<OptionList> options = session.model().prepareToPrint();
  if (!options) return options.error();
  const DestinationName name = session.model().destination().name;
  const std::string document = nameOf(files.front());
  Result<int> job =
      submitJob(line.server, {name, path, line.title.value_or(document), *options, document},
                [](std::uint64_t, std::uint64_t) { return true; });
  if (!job) return job;
  streams.out << "request id is " << visible(jobName(name, *job)) << " (" << files.size()
              << " file(s))" << std::endl;
  return job;
}

// What goes to the printer as it is has no pages that the server could count.
Result<Done> followJob(const CommandLine& line, int job, HeadlessSession& session) {
  const DestinationName name = session.model().destination().name;
  const auto ask = [&] {
    Result<JobStatus> status = jobStatus(line.server, name, job);
    if (status && line.asked.isRaw()) status->pages.reset();
    return status;
  };
  const auto trouble = [&]() -> std::string {
    const auto printer = findDestination(line.server, DestinationName{name.printer, std::nullopt});
    return printer && printer->needsAttention() ? printer->stateText().english() : "";
  };
  return waitForEnd({jobName(name, job), ask,
                     [] { std::this_thread::sleep_for(kBetweenQuestions); },
                     [&](const std::string& text) { session.note(text); }, trouble});
}

}  // namespace cutline
