#include "composition/EdgeLoss.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace cutline {

namespace {

constexpr double kWholePercent = 100;
constexpr double kRounding = 1e-6;
constexpr int kHalfTurn = 180;

// Of a page that reaches beyond its label nobody sees here where its ink ends.
bool isWholeOn(const ComposedPage& page, const LabelPage& label) {
  const bool isQuarter = page.turn % kHalfTurn != 0;
  const double across = (isQuarter ? page.size.height : page.size.width) * page.scale;
  const double along = (isQuarter ? page.size.width : page.size.height) * page.scale;
  return across <= label.width + kPointsPerMillimetre &&
         along <= label.length + kPointsPerMillimetre;
}

// The percentage at which nothing of the label is lost; nothing where nothing is.
std::optional<int> percentFor(const ComposedPage& page, const LabelPage& label,
                              const LayoutSettings& settings, const Ink& ink) {
  const auto sure = percentWithoutLoss(page.size, label, settings, ink.surely);
  if (!sure) return std::nullopt;
  return percentWithoutLoss(page.size, label, settings, ink.perhaps).value_or(*sure);
}

int percentOf(double scale) {
  return static_cast<int>(std::floor(scale * kWholePercent + kRounding));
}

}  // namespace

bool mayLoseEdges(const ComposedPage& page, const LabelPage& label,
                  const LayoutSettings& settings) {
  return settings.scaling != Scaling::fill && isWholeOn(page, label) &&
         !isWhollyPrintable(page.size, label, settings);
}

std::vector<int> labelsAtTheirEdges(const CompositionReport& report,
                                    const LayoutSettings& settings) {
  std::vector<int> labels;
  const int count = std::min(static_cast<int>(report.pages.size()), kMostInks);
  for (int label = 0; label < count; ++label) {
    const ComposedPage& page = report.pages[static_cast<std::size_t>(label)];
    if (!page.hasPrintableInk && mayLoseEdges(page, report.label, settings))
      labels.push_back(label);
  }
  return labels;
}

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

}  // namespace cutline
