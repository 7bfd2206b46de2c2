#include "host/dialog/LabelNotices.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cutline {
namespace {

constexpr double kMillimetre = 72 / 25.4;  // in points; sizes this close are the same
constexpr double kHundred = 100;
constexpr double kHardlyShrunk = 0.995;

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
