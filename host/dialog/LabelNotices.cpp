#include "host/dialog/LabelNotices.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace cutline {
namespace {

constexpr double kMillimetre = 72 / 25.4;  // in points; sizes this close are the same
constexpr double kHundred = 100;
constexpr double kRounding = 1e-6;
constexpr double kHardlyShrunk = 0.995;
constexpr int kHalfTurn = 180;

// Of a page that reaches beyond its label nobody sees here where its ink ends.
bool isWholeOn(const ComposedPage& page, const LabelPage& label) {
  const bool isQuarter = page.turn % kHalfTurn != 0;
  const double across = (isQuarter ? page.size.height : page.size.width) * page.scale;
  const double along = (isQuarter ? page.size.width : page.size.height) * page.scale;
  return across <= label.width + kMillimetre && along <= label.length + kMillimetre;
}

// The percentage at which nothing of the label is lost; nothing where nothing is.
std::optional<int> percentFor(const ComposedPage& page, const LabelPage& label,
                              const LayoutSettings& settings, const Ink& ink) {
  const auto sure = percentWithoutLoss(page.size, label, settings, ink.surely);
  if (!sure) return std::nullopt;
  return percentWithoutLoss(page.size, label, settings, ink.perhaps).value_or(*sure);
}

int percentOf(double scale) { return static_cast<int>(std::floor(scale * kHundred + kRounding)); }

bool isNear(double one, double other) { return std::abs(one - other) <= kMillimetre; }

bool hasSize(const ComposedPage& page, double width, double length) {
  const PageSize& size = page.size;
  if (!size.isStated) return false;
  return (isNear(size.width, width) && isNear(size.height, length)) ||
         (isNear(size.width, length) && isNear(size.height, width));
}

bool allHaveSize(const std::vector<ComposedPage>& pages, double width, double length) {
  return !pages.empty() && std::ranges::all_of(pages, [&](const ComposedPage& page) {
    return hasSize(page, width, length);
  });
}

struct Sheet {
  const char* name;
  double width;  // points
  double length;
};
constexpr std::array kSheets = std::to_array<Sheet>({
    {"A4", 595.28, 841.89},
    {"Letter", 612, 792},
    {"Legal", 612, 1008},
    {"A5", 419.53, 595.28},
    {"A3", 841.89, 1190.55},
});

}  // namespace

std::optional<EdgeLoss> edgeLoss(const CompositionReport& report, const LayoutSettings& settings,
                                 const std::map<int, std::optional<Ink>>& inks) {
  if (settings.scaling == Scaling::fill) return std::nullopt;
  EdgeLoss loss{{}, std::numeric_limits<int>::max()};
  for (int label = 0; label < static_cast<int>(report.pages.size()); ++label) {
    const ComposedPage& page = report.pages[static_cast<std::size_t>(label)];
    const auto found = inks.find(label);
    const bool hasInk = found != inks.end() && found->second && isWholeOn(page, report.label);
    const std::optional<int> percent =
        hasInk ? percentFor(page, report.label, settings, *found->second) : std::nullopt;
    if (percent) loss.labels.push_back(label);
    loss.percent = std::min(loss.percent, percent.value_or(percentOf(page.scale)));
  }
  return loss.labels.empty() ? std::nullopt : std::optional(loss);
}

const PaperSize* betterPaper(const CompositionReport& report, const std::vector<PaperSize>& papers,
                             const PaperSize& current) {
  if (allHaveSize(report.pages, current.width, current.length)) return nullptr;
  const auto better = std::ranges::find_if(papers, [&](const PaperSize& paper) {
    return allHaveSize(report.pages, paper.width, paper.length);
  });
  return better != papers.end() ? &*better : nullptr;
}

std::optional<ShrunkSheet> shrunkSheet(const CompositionReport& report) {
  for (const Sheet& sheet : kSheets) {
    if (!allHaveSize(report.pages, sheet.width, sheet.length)) continue;
    const double scale = report.pages.front().scale;
    if (scale > kHardlyShrunk) return std::nullopt;
    return ShrunkSheet{sheet.name, static_cast<int>(std::lround(scale * kHundred))};
  }
  return std::nullopt;
}

}  // namespace cutline
