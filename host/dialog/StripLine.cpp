#include "host/dialog/StripLine.h"

#include <algorithm>

namespace cutline {
namespace {

constexpr double kPieceGap = 16;  // holds a knife
constexpr double kStub = 34;      // of tape whose length is not known
constexpr double kGoesOn = 16;    // of tape that goes on in another lane
constexpr double kHangsOut = 22;
constexpr double kPrinterLength = 18;  // of the printer behind a label that stays in it
constexpr double kLeastLength = 0.01;
constexpr double kTolerance = 1e-6;

double lengthOf(bool isThere, std::optional<double> millimetres, double scale) {
  if (!isThere) return 0;
  return millimetres ? *millimetres * kPointsPerMillimetre * scale : kStub;
}

double endOf(PieceRun::End end) {
  switch (end) {
    case PieceRun::End::Cut:
      return kPieceGap;
    case PieceRun::End::StaysInPrinter:
      return kPrinterLength;
    case PieceRun::End::HangsOut:
      break;
  }
  return kHangsOut;
}

}  // namespace

StripLine::StripLine(const StripContent& content, double scale)
    : mRules(content.plan.rules()),
      mLabels(std::max<std::uint64_t>(1, content.plan.labels())),
      mLabel(std::max(kLeastLength, content.label.length * scale)),
      mLeader(lengthOf(mRules.hasLeader(), mRules.settings().leader, scale)),
      mFeed(lengthOf(mRules.feedsOut(), mRules.settings().feed, scale)),
      mEnd(endOf(content.plan.end())),
      mLead(std::max(kGoesOn, mLeader + (mRules.behindLeader() == Cut::Full ? kPieceGap : 0))),
      mTail(std::max(kGoesOn, mFeed + mEnd)) {}

double StripLine::gap() noexcept { return kPieceGap; }
double StripLine::goesOn() noexcept { return kGoesOn; }

double StripLine::begin(std::uint64_t first, std::uint64_t label) const noexcept {
  const std::uint64_t cuts = mRules.fullCutsBefore(label) - mRules.fullCutsBefore(first);
  return static_cast<double>(label - first) * mLabel + static_cast<double>(cuts) * kPieceGap;
}

double StripLine::end(std::uint64_t first, std::uint64_t last) const noexcept {
  const bool isCut = last < mLabels && mRules.behindLabel(last) == Cut::Full;
  return begin(first, last) + mLabel + (isCut ? kPieceGap : 0);
}

std::uint64_t StripLine::labelBefore(std::uint64_t first, double place) const noexcept {
  if (place <= 0) return first;
  const std::uint64_t perPiece = mRules.labelsPerPiece();
  if (perPiece == 0) return first + static_cast<std::uint64_t>(place / mLabel);
  const double piece = static_cast<double>(perPiece) * mLabel + kPieceGap;
  const std::uint64_t inPiece = (first - 1) % perPiece;
  const double fromPiece = place + static_cast<double>(inPiece) * mLabel;
  const auto pieces = static_cast<std::uint64_t>(fromPiece / piece);
  const double rest = fromPiece - static_cast<double>(pieces) * piece;
  const auto labels = std::min(static_cast<std::uint64_t>(rest / mLabel), perPiece - 1);
  return first - inPiece + pieces * perPiece + labels;
}

std::uint64_t StripLine::labelsIn(double room) const noexcept {
  const double space = room + kTolerance;
  if (end(1, mLabels) <= space) return mLabels;
  const std::uint64_t perPiece = mRules.labelsPerPiece();
  const double most = static_cast<double>(mLabels);
  const auto countOf = [most](double count) {
    return static_cast<std::uint64_t>(std::clamp(count, 0.0, most));
  };
  if (perPiece == 0) return std::max<std::uint64_t>(1, countOf(space / mLabel));
  const double piece = static_cast<double>(perPiece) * mLabel + kPieceGap;
  const std::uint64_t wholePieces = countOf(space / piece) * perPiece;
  if (wholePieces > 0) return std::min(wholePieces, mLabels);
  return std::clamp<std::uint64_t>(countOf((space - kPieceGap) / mLabel), 1, mLabels);
}

double StripLine::roomFor(std::uint64_t labels) const noexcept {
  const unsigned perPiece = mRules.labelsPerPiece();
  if (perPiece == 0 || labels == mLabels || labels % perPiece == 0) return end(1, labels);
  return static_cast<double>(labels) * mLabel + kPieceGap;
}

}  // namespace cutline
