#include "host/core/HeadlessCommands.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <thread>

#include "base/Lists.h"
#include "cups/Destinations.h"
#include "cups/PrintJob.h"
#include "host/core/CutRules.h"
#include "host/core/DocumentCheck.h"
#include "host/core/HostPlatform.h"
#include "host/core/JobEnd.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "host/core/PrinterSelection.h"
#include "plain/PlainToolkit.h"

namespace cutline {

namespace {

// A print model on controls that nobody sees.
class Session {
 public:
  Session(const CommandLine& line, PluginLoader& plugIns, std::ostream& notes)
      : mLine(line),
        mPlugIns(plugIns),
        mNotes(notes),
        mPlatform(mToolkit),
        mModel(plugIns, line.asked) {}

  PrintModel& model() { return mModel; }

  void open(const PrinterChoice& choice) {
    mModel.openPrinter(choice);
    for (const std::string& problem : mPlugIns.takeProblems()) note(problem);
  }

  // Opens the printer of the command line, and tells what will be otherwise than asked.
  Result<Done> openSelected() {
    const Result<PrinterChoice> choice = selectPrinter(mLine);
    if (!choice) return choice.error();
    open(*choice);
    for (const Deviation& deviation : mModel.deviations()) note(deviation.sentence.english());
    for (const Sentence& conflict : mModel.conflicts()) note(conflict.english());
    return Done{};
  }

 private:
  void note(const std::string& text) { mNotes << "cutline: " << text << "\n"; }

  const CommandLine& mLine;
  PluginLoader& mPlugIns;
  std::ostream& mNotes;
  PlainToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
};

// Short against what a printer needs for a label.
constexpr std::chrono::milliseconds kBetweenQuestions{250};

void tell(std::ostream& notes, const std::string& text) {
  notes << "cutline: " << text << std::endl;
}

struct Streams {
  std::ostream& out;
  std::ostream& notes;
};

Result<Done> showSummary(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  Session session(line, plugIns, streams.notes);
  Result<Done> opened = session.openSelected();
  if (!opened) return opened;
  for (const SummaryLine& entry : session.model().summary())
    streams.out << entry.title << ": " << entry.value << "\n";
  return Done{};
}

Result<Done> showOptions(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  Session session(line, plugIns, streams.notes);
  Result<Done> opened = session.openSelected();
  if (!opened) return opened;
  for (const auto& [name, value] : session.model().jobOptions())
    streams.out << name << "=" << value << "\n";
  return Done{};
}

std::string titleOf(const CommandLine& line) {
  return line.title.value_or(std::filesystem::path(*line.file).filename().string());
}

// What goes to the printer as it is has no pages that the server could count.
bool isCounted(const OptionList& options) {
  return std::none_of(options.begin(), options.end(),
                      [](const auto& option) { return option.first == "raw"; });
}

Result<Done> follow(const CommandLine& line, const DestinationName& name, int job,
                    const OptionList& options, const Streams& streams) {
  const auto ask = [&] {
    Result<JobStatus> status = jobStatus(line.server, name, job);
    if (status && !isCounted(options)) status->pages.reset();
    return status;
  };
  return waitForEnd({jobName(name, job), ask,
                     [] { std::this_thread::sleep_for(kBetweenQuestions); },
                     [&](const std::string& text) { tell(streams.notes, text); }});
}

Result<Done> print(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  const Result<DocumentFacts> document = checkDocument(*line.file);
  if (!document) return document.error();
  Session session(line, plugIns, streams.notes);
  Result<Done> opened = session.openSelected();
  if (!opened) return opened;
  const Result<OptionList> options = session.model().prepareToPrint();
  if (!options) return options.error();
  if (Result<Done> checked = checkPages(*document, *options); !checked) return checked;
  const DestinationName name = session.model().destination().name;
  const Result<int> job = submitJob(line.server, {name, *line.file, titleOf(line), *options},
                                    [](std::uint64_t, std::uint64_t) { return true; });
  if (!job) return job.error();
  streams.out << "request id is " << jobName(name, *job) << " (1 file(s))" << std::endl;
  return line.waits ? follow(line, name, *job, *options, streams) : Result<Done>(Done{});
}

std::string familyOf(const PpdFile& ppd) {
  if (!hasCutOptions(ppd)) return "no cut options";
  return isLabelRoll(ppd) ? "label roll" : "tape";
}

std::string panelNames(const PrintModel& model) {
  std::vector<std::string> names;
  for (const PanelEntry& panel : model.panels()) names.push_back(panel.name);
  return names.empty() ? "none" : listed(names);
}

void describe(const Result<PrinterChoice>& choice, Session& session, std::ostream& out) {
  if (!choice) {
    out << "no driver description (" << choice.error().message << ")\n";
    return;
  }
  session.open(*choice);
  out << familyOf(*choice->ppd) << "; panels: " << panelNames(session.model()) << "\n";
}

Result<Done> listPrinters(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  const Result<std::vector<Destination>> destinations = listDestinations(line.server);
  if (!destinations) return destinations.error();
  if (destinations->empty()) return Error{"the print server has no printers"};
  Session session(line, plugIns, streams.notes);
  for (const Destination& destination : *destinations) {
    streams.out << destination.name.text() << (destination.isDefault ? " (default): " : ": ");
    describe(selectPrinter(line.server, destination), session, streams.out);
  }
  return Done{};
}

struct Row {
  Command command;
  Result<Done> (*run)(const CommandLine&, PluginLoader&, const Streams&);
};
constexpr Row kCommands[] = {{Command::print, print},
                             {Command::summary, showSummary},
                             {Command::options, showOptions},
                             {Command::list, listPrinters}};

}  // namespace

Result<Done> runHeadlessCommand(const CommandLine& line, PluginLoader& plugIns, std::ostream& out,
                                std::ostream& notes) {
  for (const Row& row : kCommands)
    if (row.command == line.command) return row.run(line, plugIns, {out, notes});
  return Error{"this command needs a window"};
}

}  // namespace cutline
