#include "host/core/HeadlessComposing.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <optional>

#include "base/Visible.h"
#include "composition/EdgeLoss.h"
#include "composition/PageDrawer.h"
#include "cups/DocumentFile.h"
#include "host/core/Installation.h"

namespace cutline {

namespace {

constexpr double kWhole = 100;

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

// A document that cannot be drawn has none that are known.
std::map<int, std::optional<Ink>> inksOf(const ComposedDocument& composed,
                                         const std::vector<int>& labels) {
  std::map<int, std::optional<Ink>> inks;
  if (labels.empty()) return inks;
  const auto drawer =
      PageDrawer::open(Installation::ofThisProgram().helperDirectory(), composed.file);
  if (!drawer) return inks;
  const double scale = inkScale(composed.report.label);
  for (const int label : labels) {
    const Result<PageImage> image = (*drawer)->draw(label, scale);
    if (image) inks[label] = inkOf(*image, scale, composed.report.label);
  }
  return inks;
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
  if (!line.asked.isRaw() || line.files.size() == 1 || line.isEach) return Done{};
  return Error{"-o raw sends one document at a time"};
}

Result<ComposedDocument> composeFor(HeadlessSession& session, bool seeksInk) {
  PrintModel& model = session.model();
  CompositionRequest request = model.compositionRequest();
  request.pages = model.pageSelection();
  request.seeksInk = seeksInk;
  Result<ComposedDocument> composed = session.composer().compose(request);
  if (!composed) return composed;
  if (request.lengthBounds) model.takeContentLength(composed->report.label.length);
  if (model.jobLayout().placing.scaling == Scaling::automatic)
    noteShrunkPages(composed->report, session);
  return composed;
}

void noteEdgeLoss(const CommandLine& line, const ComposedDocument& composed,
                  HeadlessSession& session) {
  if (line.isQuiet) return;
  const LayoutSettings placing = session.model().jobLayout().placing;
  const auto loss = edgeLoss(composed.report, placing,
                             inksOf(composed, labelsAtTheirEdges(composed.report, placing)));
  if (!loss) return;
  const std::size_t count = loss->labels.size();
  session.note("edges will be cut off on " +
               (count == 1 ? "label " + std::to_string(loss->labels.front() + 1)
                           : std::to_string(count) + " labels") +
               ": -o natural-scaling=" + std::to_string(loss->percent) + " keeps them");
}

Result<Done> keepDocument(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  if (Result<Done> checked = checkFiles(line); !checked) return checked;
  HeadlessSession session(line, plugIns, streams.notes);
  if (Result<Done> opened = session.openToCompose(); !opened) return opened;
  const Result<ComposedDocument> composed = composeFor(session, !line.isQuiet);
  if (!composed) return composed.error();
  noteEdgeLoss(line, *composed, session);
  if (Result<Done> kept = keepAs(line.dryRunPath, *composed); !kept) return kept;
  for (const auto& [name, value] : session.model().jobOptions())
    streams.out << visible(name) << "=" << visible(value) << "\n";
  return Done{};
}

}  // namespace cutline
