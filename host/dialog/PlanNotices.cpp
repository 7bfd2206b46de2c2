#include "host/dialog/PlanNotices.h"

namespace cutline {
namespace {

constexpr std::uint64_t kManyLabels = 200;
constexpr double kMuchTape = 2000;  // mm

std::uint64_t distance(std::uint64_t one, std::uint64_t other) {
  return one < other ? other - one : one - other;
}

// One label a piece is no answer to somebody who wants several.
std::optional<unsigned> betterCount(std::uint64_t labels, std::uint64_t each,
                                    const std::vector<unsigned>& counts) {
  std::optional<unsigned> best;
  for (const unsigned count : counts) {
    if (count < 2 || count >= labels || labels % count != 0) continue;
    if (!best || distance(count, each) < distance(*best, each)) best = count;
  }
  return best;
}

std::optional<unsigned> betterCopies(const LabelRun& run, std::uint64_t each, unsigned mostCopies) {
  for (unsigned copies = run.copies + 1; copies <= mostCopies; ++copies) {
    if (copies > run.copies + each) return std::nullopt;
    if (run.pages.size() * std::uint64_t{copies} % each == 0) return copies;
  }
  return std::nullopt;
}

}  // namespace

std::optional<OddPiece> oddPiece(const CutPlan& plan, const std::vector<unsigned>& counts,
                                 unsigned mostCopies) {
  const std::uint64_t each = plan.rules().labelsPerPiece();
  if (!plan.knowsCuts() || each < 2 || plan.labels() <= each) return std::nullopt;
  const std::uint64_t last = plan.labels() % each;
  if (last == 0) return std::nullopt;
  return OddPiece{each, last, betterCount(plan.labels(), each, counts),
                  betterCopies(plan.run(), each, mostCopies)};
}

bool isMuch(const CutPlan& plan) {
  return plan.labels() > kManyLabels || plan.mostTape().value_or(0) > kMuchTape;
}

}  // namespace cutline
