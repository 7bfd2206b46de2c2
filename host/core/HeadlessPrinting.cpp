#include "host/core/HeadlessPrinting.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <thread>

#include "base/Visible.h"
#include "composition/EdgeLoss.h"
#include "composition/PageDrawer.h"
#include "cups/Destinations.h"
#include "cups/DocumentFile.h"
#include "cups/PrintJob.h"
#include "host/core/Installation.h"
#include "host/core/JobEnd.h"

namespace cutline {

namespace {

// Short against what a printer needs for a label.
constexpr std::chrono::milliseconds kBetweenQuestions{250};
constexpr double kWhole = 100;

std::string nameOf(const CommandLine& line) {
  return std::filesystem::path(line.files.front()).filename().string();
}

void noteShrunkPages(const CompositionReport& report, HeadlessSession& session) {
  const auto& pages = report.pages;
  const auto isShrunk = [](const ComposedPage& page) {
    return page.size.isStated && page.scale < 1;
  };
  const auto count = std::count_if(pages.begin(), pages.end(), isShrunk);
  if (count == 0) return;
  const auto first = std::find_if(pages.begin(), pages.end(), isShrunk);
  const std::string percent = std::to_string(std::lround(first->scale * kWhole));
  session.note(count == 1 ? "a page is larger than its label: it is shrunk to " + percent + " %"
                          : std::to_string(count) +
                                " pages are larger than their labels: the first is shrunk to " +
                                percent + " %");
}

std::map<int, std::optional<Ink>> inksOf(PageDrawer& drawer, const LabelPage& label) {
  std::map<int, std::optional<Ink>> inks;
  const double scale = inkScale(label);
  for (int page = 0; page < std::min(drawer.pageCount(), kMostInks); ++page) {
    const Result<PageImage> image = drawer.draw(page, scale);
    if (image) inks[page] = inkOf(*image, scale, label);
  }
  return inks;
}

// A document that cannot be drawn is printed all the same.
void noteEdgeLoss(const ComposedDocument& composed, HeadlessSession& session,
                  const CommandLine& line) {
  if (line.isQuiet) return;
  const auto drawer =
      PageDrawer::open(Installation::ofThisProgram().helperDirectory(), composed.file);
  if (!drawer) return;
  const auto loss = edgeLoss(composed.report, session.model().jobLayout().placing,
                             inksOf(**drawer, composed.report.label));
  if (!loss) return;
  const std::size_t count = loss->labels.size();
  session.note("edges will be cut off on " +
               (count == 1 ? "label " + std::to_string(loss->labels.front() + 1)
                           : std::to_string(count) + " labels") +
               ": -o natural-scaling=" + std::to_string(loss->percent) + " keeps them");
}

// What goes to the printer as it is has no pages that the server could count.
Result<Done> follow(const CommandLine& line, const DestinationName& name, int job,
                    HeadlessSession& session) {
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

Result<Done> send(const CommandLine& line, const std::string& path, HeadlessSession& session,
                  const Streams& streams) {
  const Result<OptionList> options = session.model().prepareToPrint();
  if (!options) return options.error();
  const DestinationName name = session.model().destination().name;
  const Result<int> job = submitJob(
      line.server, {name, path, line.title.value_or(nameOf(line)), *options, nameOf(line)},
      [](std::uint64_t, std::uint64_t) { return true; });
  if (!job) return job.error();
  streams.out << "request id is " << visible(jobName(name, *job)) << " (" << line.files.size()
              << " file(s))" << std::endl;
  return line.waits ? follow(line, name, *job, session) : Result<Done>(Done{});
}

Result<Done> keepAs(const std::string& path, const ComposedDocument& composed) {
  std::error_code problem;
  std::filesystem::copy_file(composed.file->path(), path,
                             std::filesystem::copy_options::overwrite_existing, problem);
  if (!problem) return Done{};
  return Error{path + ": the document cannot be written (" + problem.message() +
               "): name another file, or make its folder"};
}

}  // namespace

Result<Done> checkFiles(const CommandLine& line) {
  for (const std::string& path : line.files)
    if (const Result<DocumentFile> file = DocumentFile::open(path); !file) return file.error();
  if (!line.asked.isRaw() || line.files.size() == 1) return Done{};
  return Error{"-o raw sends one document at a time"};
}

Result<ComposedDocument> composeFor(HeadlessSession& session) {
  PrintModel& model = session.model();
  CompositionRequest request = model.compositionRequest();
  request.pages = model.pageSelection();
  Result<ComposedDocument> composed = session.takeComposer().compose(request);
  if (!composed) return composed;
  if (request.lengthBounds) model.takeContentLength(composed->report.label.length);
  if (model.jobLayout().placing.scaling == Scaling::automatic)
    noteShrunkPages(composed->report, session);
  return composed;
}

Result<Done> printDocuments(const CommandLine& line, PluginLoader& plugIns,
                            const Streams& streams) {
  if (Result<Done> checked = checkFiles(line); !checked) return checked;
  HeadlessSession session(line, plugIns, streams.notes);
  const bool isRaw = line.asked.isRaw();
  const Result<Done> opened = isRaw ? session.openSelected() : session.openToCompose();
  if (!opened) return opened;
  if (isRaw) return send(line, line.files.front(), session, streams);
  const Result<ComposedDocument> composed = composeFor(session);
  if (!composed) return composed.error();
  noteEdgeLoss(*composed, session, line);
  return send(line, composed->file->path(), session, streams);
}

Result<Done> keepDocument(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  if (Result<Done> checked = checkFiles(line); !checked) return checked;
  HeadlessSession session(line, plugIns, streams.notes);
  if (Result<Done> opened = session.openToCompose(); !opened) return opened;
  const Result<ComposedDocument> composed = composeFor(session);
  if (!composed) return composed.error();
  noteEdgeLoss(*composed, session, line);
  if (Result<Done> kept = keepAs(line.dryRunPath, *composed); !kept) return kept;
  for (const auto& [name, value] : session.model().jobOptions())
    streams.out << visible(name) << "=" << visible(value) << "\n";
  return Done{};
}

}  // namespace cutline
