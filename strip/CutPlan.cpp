#include "strip/CutPlan.h"

#include <utility>

#include "strip/RunSettings.h"

namespace cutline {

namespace {

// Walks along the strip and remembers where it is.
class Walk {
 public:
  explicit Walk(const std::function<void(const StripEvent&)>& take) : mTake(take) {}

  void stretch(StripEventKind kind, std::uint64_t label, std::optional<double> length,
               bool isExact = true) {
    const bool isKnown = length.has_value() && isExact;
    mTake({kind, label, mPosition, length.value_or(0), mIsExact, isKnown});
    mPosition += length.value_or(0);
    mIsExact = mIsExact && isKnown;
  }
  void mark(std::uint64_t label) { point(StripEventKind::CutMark, label); }
  void cut(Cut cut, std::uint64_t label) {
    if (cut == Cut::None) return;
    point(cut == Cut::Half ? StripEventKind::HalfCut : StripEventKind::FullCut, label);
  }

 private:
  void point(StripEventKind kind, std::uint64_t label) {
    mTake({kind, label, mPosition, 0, mIsExact, true});
  }

  const std::function<void(const StripEvent&)>& mTake;
  double mPosition = 0;
  bool mIsExact = true;
};

std::uint64_t oneIf(bool condition) { return condition ? 1 : 0; }

// The sum of what is there; nothing when that isn't known.
std::optional<double> sumOf(bool hasFirst, std::optional<double> first, bool hasSecond,
                            std::optional<double> second) {
  if ((hasFirst && !first) || (hasSecond && !second)) return std::nullopt;
  return (hasFirst ? *first : 0) + (hasSecond ? *second : 0);
}

}  // namespace

CutPlan::CutPlan(const CutSettings& asked, LabelRun run)
    : mRules(inLabels(asked, run)), mRun(std::move(run)) {}

bool CutPlan::knowsCuts() const { return mRules.settings().authority == CutAuthority::Settings; }

std::uint64_t CutPlan::fullCutsBetweenLabels() const { return mRules.fullCutsBefore(labels()); }

std::uint64_t CutPlan::halfCutsBetweenLabels() const {
  if (!mRules.settings().halfCuts || labels() == 0) return 0;
  return labels() - 1 - fullCutsBetweenLabels();
}

std::uint64_t CutPlan::pieces() const {
  return labels() == 0 || !knowsCuts() ? 0 : fullCutsBetweenLabels() + 1;
}

std::uint64_t CutPlan::fullCuts() const {
  if (labels() == 0) return 0;
  return fullCutsBetweenLabels() + oneIf(mRules.behindLeader() == Cut::Full) +
         oneIf(mRules.atEnd() == Cut::Full);
}

std::uint64_t CutPlan::halfCuts() const {
  if (labels() == 0) return 0;
  return halfCutsBetweenLabels() + oneIf(mRules.behindLeader() == Cut::Half) +
         oneIf(mRules.atEnd() == Cut::Half);
}

std::uint64_t CutPlan::cutMarks() const {
  return labels() == 0 || !mRules.settings().printsCutMarks ? 0 : labels() + 1;
}

PieceRun::End CutPlan::end() const {
  if (mRules.settings().chains) return PieceRun::End::StaysInPrinter;
  return mRules.atEnd() == Cut::Full ? PieceRun::End::Cut : PieceRun::End::HangsOut;
}

std::vector<PieceRun> CutPlan::pieceRuns() const {
  if (labels() == 0 || !knowsCuts()) return {};
  const std::uint64_t cuts = fullCutsBetweenLabels();
  const PieceRun last = {1, labels() - cuts * mRules.labelsPerPiece(), end()};
  if (cuts == 0) return {last};
  const PieceRun first = {cuts, mRules.labelsPerPiece(), PieceRun::End::Cut};
  if (first.labels == last.labels && first.end == last.end)
    return {{cuts + 1, first.labels, first.end}};
  return {first, last};
}

std::optional<double> CutPlan::waste() const {
  if (labels() == 0) return 0;
  if (!knowsCuts()) return std::nullopt;
  return sumOf(mRules.hasLeader(), mRules.settings().leader, mRules.feedsOut(),
               mRules.settings().feed);
}

std::optional<double> CutPlan::mostTape() const {
  const std::optional<double> blank = waste();
  if (!blank || !mRun.labelLength) return std::nullopt;
  return *blank + static_cast<double>(labels()) * *mRun.labelLength;
}

std::optional<double> CutPlan::tape() const {
  return labelsAreExact() ? mostTape() : std::optional<double>();
}

bool CutPlan::labelsAreExact() const {
  return mRun.labelLength.has_value() && !mRules.settings().removesBlankSpace;
}

double CutPlan::leader() const {
  return mRules.hasLeader() ? mRules.settings().leader.value_or(0) : 0;
}

double CutPlan::positionOf(std::uint64_t label) const {
  return leader() + static_cast<double>(label - 1) * labelLength();
}

void CutPlan::forEachLabel(const std::function<void(const StripEvent&)>& take) const {
  for (std::uint64_t label = 1; label <= labels(); ++label)
    take({StripEventKind::Label, label, static_cast<double>(label - 1) * labelLength(),
          labelLength(), false, labelsAreExact()});
}

void CutPlan::forEachEvent(const std::function<void(const StripEvent&)>& take) const {
  if (!knowsCuts()) return forEachLabel(take);
  const std::uint64_t count = labels();
  if (count == 0) return;
  const CutSettings& settings = mRules.settings();
  Walk walk(take);
  const auto addLabel = [&](std::uint64_t label) {
    walk.stretch(StripEventKind::Label, label, mRun.labelLength, labelsAreExact());
    if (settings.printsCutMarks) walk.mark(label);
  };
  if (mRules.hasLeader()) walk.stretch(StripEventKind::Leader, 0, settings.leader);
  walk.cut(mRules.behindLeader(), 0);
  if (settings.printsCutMarks) walk.mark(0);
  for (std::uint64_t label = 1; label < count; ++label) {
    addLabel(label);
    walk.cut(mRules.behindLabel(label), label);
  }
  addLabel(count);
  if (mRules.atEnd() == Cut::Half) walk.cut(Cut::Half, count);
  if (mRules.feedsOut()) walk.stretch(StripEventKind::Feed, count, settings.feed);
  if (mRules.atEnd() == Cut::Full) walk.cut(Cut::Full, count);
}

}  // namespace cutline
