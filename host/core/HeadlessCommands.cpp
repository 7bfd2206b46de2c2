#include "host/core/HeadlessCommands.h"

#include <ostream>

#include "base/Lists.h"
#include "base/Visible.h"
#include "cups/Destinations.h"
#include "host/core/AskQueueCommand.h"
#include "host/core/ChoicesCommand.h"
#include "host/core/CutRules.h"
#include "host/core/HeadlessComposing.h"
#include "host/core/HeadlessPrinting.h"
#include "host/core/HeadlessSession.h"
#include "host/core/JobPlan.h"
#include "host/core/PlanCommand.h"
#include "host/core/PrinterSelection.h"
#include "strip/PlanWords.h"

namespace cutline {

namespace {

Result<Done> showSummary(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  HeadlessSession session(line, plugIns, streams.notes);
  Result<Done> opened = session.openToCompose();
  if (!opened) return opened;
  const Result<std::optional<int>> pages = pagesToPlan(line, session);
  if (!pages) return pages.error();
  streams.out << visible(planSentence(planFor(session.model(), *pages)).english()) << "\n";
  for (const SummaryLine& entry : session.model().summary())
    streams.out << visible(entry.title) << ": " << visible(entry.value) << "\n";
  return Done{};
}

Result<Done> showOptions(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  HeadlessSession session(line, plugIns, streams.notes);
  Result<Done> opened = session.openSelected();
  if (!opened) return opened;
  for (const auto& [name, value] : session.model().jobOptions())
    streams.out << visible(name) << "=" << visible(value) << "\n";
  return Done{};
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

void describe(const Result<PrinterChoice>& choice, HeadlessSession& session, std::ostream& out) {
  if (!choice) {
    out << "no driver description (" << visible(choice.error().message) << ")\n";
    return;
  }
  session.open(*choice);
  out << familyOf(*choice->ppd) << "; panels: " << visible(panelNames(session.model())) << "\n";
}

Result<Done> listPrinters(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  const Result<std::vector<Destination>> destinations = listDestinations(line.server);
  if (!destinations) return destinations.error();
  if (destinations->empty()) return Error{"the print server has no printers"};
  HeadlessSession session(line, plugIns, streams.notes);
  for (const Destination& destination : *destinations) {
    streams.out << visible(destination.name.text())
                << (destination.isDefault ? " (default): " : ": ");
    describe(findDriver(line.server, destination), session, streams.out);
  }
  return Done{};
}

struct Row {
  Command command;
  Result<Done> (*run)(const CommandLine&, PluginLoader&, const Streams&);
};
constexpr Row kCommands[] = {{Command::print, printDocuments}, {Command::dryRun, keepDocument},
                             {Command::summary, showSummary},  {Command::options, showOptions},
                             {Command::plan, showPlan},        {Command::choices, showChoices},
                             {Command::list, listPrinters},    {Command::askQueue, runAskQueue}};

}  // namespace

Result<Done> runHeadlessCommand(const CommandLine& line, PluginLoader& plugIns,
                                const Streams& streams) {
  for (const Row& row : kCommands)
    if (row.command == line.command) return row.run(line, plugIns, streams);
  return Error{"this command needs a window"};
}

}  // namespace cutline
