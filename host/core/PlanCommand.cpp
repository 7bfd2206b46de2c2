#include "host/core/PlanCommand.h"

#include <ostream>

#include "base/Visible.h"
#include "host/core/HeadlessComposing.h"
#include "host/core/JobPlan.h"
#include "strip/PlanJson.h"
#include "strip/PlanWords.h"

namespace cutline {

namespace {

void writePlanWords(const CutPlan& plan, std::ostream& out) {
  out << visible(planSentence(plan).english()) << '\n';
  for (const Sentence& line : planLines(plan)) out << visible(line.english()) << '\n';
}

}  // namespace

Result<std::optional<int>> pagesToPlan(const CommandLine& line, HeadlessSession& session) {
  if (line.files.empty()) return std::optional<int>();
  const Result<ComposedDocument> composed = composeFor(session, /*seeksInk=*/false);
  if (!composed) return composed.error();
  return std::optional(composed->report.documentPages);
}

Result<Done> showPlan(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  if (Result<Done> checked = checkFiles(line); !checked) return checked;
  HeadlessSession session(line, plugIns, streams.notes);
  if (Result<Done> opened = session.openToCompose(); !opened) return opened;
  if (line.files.empty()) session.note("no document is named: this is the plan of one label");
  const Result<std::optional<int>> pages = pagesToPlan(line, session);
  if (!pages) return pages.error();
  const CutPlan plan = planFor(session.model(), *pages);
  if (line.asJson) {
    writePlanJson(plan, pages->has_value(), streams.out);
  } else {
    writePlanWords(plan, streams.out);
  }
  return Done{};
}

}  // namespace cutline
