#include "host/dialog/StripDrawing.h"

#include "host/dialog/StripRuler.h"

namespace cutline {
namespace {

constexpr double kBesideEdge = 2.5;                 // a mark's middle from the label's end
constexpr double kPixelsPerMillimetre = 72 / 25.4;  // at the scale of 1

}  // namespace

StripDrawing::StripDrawing(const StripCanvas& canvas, const StripColours& colours,
                           const StripContent& content, const StripLayout& layout,
                           const QRectF& area, StripTexts& numbers)
    : mCanvas(canvas),
      mContent(content),
      mLayout(layout),
      mRules(content.plan.rules()),
      mColours(colours),
      mArea(area),
      mNumbers(numbers),
      mTape(canvas, mColours, mRules.settings().isSpecialTape),
      mSigns(canvas, mColours, layout.breadth(), StripLayout::backing()) {}

Stretch StripDrawing::stretch(const Lane& lane, double along, double length) const {
  return {along, lane.across, length, mLayout.breadth(), StripLayout::backing()};
}

Stretch StripDrawing::labelStretch(const Lane& lane, std::uint64_t label) const {
  return stretch(lane, mLayout.along(lane, label), mLayout.line().labelLength());
}

bool StripDrawing::isLast(std::uint64_t label) const { return label == mLayout.labelCount(); }

bool StripDrawing::beginsPiece(std::uint64_t label) const {
  if (label == 1) return !mRules.hasLeader() || mRules.behindLeader() == Cut::Full;
  return mRules.behindLabel(label - 1) == Cut::Full;
}

bool StripDrawing::endsPiece(std::uint64_t label) const {
  if (!isLast(label)) return mRules.behindLabel(label) == Cut::Full;
  return mContent.plan.end() == PieceRun::End::Cut && !mRules.feedsOut();
}

double StripDrawing::endOf(const Lane& lane, std::uint64_t label) const {
  return mLayout.along(lane, label) + mLayout.line().labelLength();
}

double StripDrawing::leaderBegin(const Lane& lane) const {
  const StripLine& line = mLayout.line();
  const double gap = mRules.behindLeader() == Cut::Full ? line.gap() : 0;
  return lane.along - gap - line.leader();
}

void StripDrawing::drawTape(const Lane& lane) const {
  drawFront(lane);
  const StripLayout::Range seen = mLayout.labelsIn(lane, mArea);
  for (std::uint64_t label = seen.first; label <= seen.last; ++label) {
    const Stretch each = labelStretch(lane, label);
    mTape.drawLabel(each);
    if (beginsPiece(label)) mTape.drawEdgeBefore(each);
    if (endsPiece(label)) mTape.drawEdgeBehind(each);
  }
  drawBack(lane);
}

// Before the lane's first label.
void StripDrawing::drawFront(const Lane& lane) const {
  if (lane.first > 1) {
    if (beginsPiece(lane.first)) return;
    const double goesOn = mLayout.line().goesOn();
    return mTape.drawGoingOn(stretch(lane, lane.along - goesOn, goesOn), true);
  }
  if (!mRules.hasLeader()) return;
  const Stretch leader = stretch(lane, leaderBegin(lane), mLayout.line().leader());
  mTape.drawWaste(leader, mRules.settings().leader.has_value());
  mTape.drawEdgeBefore(leader);
  if (mRules.behindLeader() == Cut::Full) mTape.drawEdgeBehind(leader);
}

// Behind the lane's last label.
void StripDrawing::drawBack(const Lane& lane) const {
  const StripLine& line = mLayout.line();
  double along = endOf(lane, lane.last);
  if (!isLast(lane.last)) {
    if (endsPiece(lane.last)) return;
    return mTape.drawGoingOn(stretch(lane, along, line.goesOn()), false);
  }
  const PieceRun::End end = mContent.plan.end();
  const Stretch feed = stretch(lane, along, line.feed());
  if (mRules.feedsOut()) mTape.drawWaste(feed, mRules.settings().feed.has_value());
  if (mRules.feedsOut() && end == PieceRun::End::Cut) mTape.drawEdgeBehind(feed);
  along += line.feed();
  const bool isKnown = mRules.settings().authority == CutAuthority::Settings;
  if (!isKnown) return mTape.drawGoingOn(stretch(lane, along, line.endLength()), false);
  if (end == PieceRun::End::HangsOut) mTape.drawHangingOut(stretch(lane, along, line.endLength()));
  if (end == PieceRun::End::StaysInPrinter) mTape.drawLabel(stretch(lane, along, line.endLength()));
}

void StripDrawing::drawSigns(const Lane& lane) const {
  drawPrinter(lane);
  if (lane.first == 1) drawLeaderSigns(lane);
  const StripLayout::Range seen = mLayout.labelsIn(lane, mArea);
  for (std::uint64_t label = seen.first; label <= seen.last; ++label) drawJoin(lane, label);
  if (isLast(lane.last)) drawEnd(lane);
}

void StripDrawing::drawLeaderSigns(const Lane& lane) const {
  if (mRules.settings().printsCutMarks) mSigns.drawCutMark(lane.along + kBesideEdge, lane.across);
  if (mRules.behindLeader() == Cut::Half) mSigns.drawHalfCut(lane.along, lane.across);
  if (mRules.behindLeader() == Cut::Full)
    mSigns.drawFullCut(lane.along - mLayout.line().gap() / 2, lane.across);
}

// What is at the label's end, and between it and the next one.
void StripDrawing::drawJoin(const Lane& lane, std::uint64_t label) const {
  const double end = endOf(lane, label);
  const bool isMarked = mRules.settings().printsCutMarks;
  if (isMarked) mSigns.drawCutMark(end - kBesideEdge, lane.across);
  if (isLast(label)) return;
  switch (mRules.behindLabel(label)) {
    case Cut::Full:
      return mSigns.drawFullCut(end + mLayout.line().gap() / 2, lane.across);
    case Cut::Half:
      return mSigns.drawHalfCut(end, lane.across);
    case Cut::None:
      break;
  }
  if (!isMarked) mSigns.drawBoundary(end, lane.across);
}

void StripDrawing::drawEnd(const Lane& lane) const {
  const StripLine& line = mLayout.line();
  const double end = endOf(lane, lane.last);
  if (mRules.atEnd() == Cut::Half) mSigns.drawHalfCut(end, lane.across);
  if (mRules.atEnd() == Cut::Full)
    mSigns.drawFullCut(end + line.feed() + line.gap() / 2, lane.across);
}

void StripDrawing::drawPrinter(const Lane& lane) const {
  if (!isLast(lane.last) || mContent.plan.end() != PieceRun::End::StaysInPrinter) return;
  mSigns.drawPrinter(mLayout.along(lane, lane.last), lane.across,
                     mLayout.line().labelLength() + mLayout.line().endLength());
}

// None where the places on the tape are not known.
void StripDrawing::drawRuler(const Lane& lane) const {
  const CutPlan& plan = mContent.plan;
  if (!plan.run().labelLength || mRules.settings().removesBlankSpace) return;
  const double scale = mLayout.scale() * kPixelsPerMillimetre;
  const bool across = mLayout.runsAcross();
  const double from = across ? mArea.left() : mArea.top();
  const double to = across ? mArea.right() : mArea.bottom();
  StripRuler ruler(mCanvas, mColours, mNumbers, scale, mLayout.ruler());
  const double place = lane.across - StripLayout::knives() - mLayout.ruler();
  const double length = *plan.run().labelLength;
  if (lane.first == 1 && mRules.hasLeader() && mRules.settings().leader)
    ruler.draw(leaderBegin(lane), place, 0, *mRules.settings().leader, from, to);
  const StripLayout::Range seen = mLayout.labelsIn(lane, mArea);
  std::uint64_t first = seen.first;
  for (std::uint64_t label = seen.first; label <= seen.last; ++label) {
    if (label < seen.last && !endsPiece(label)) continue;
    ruler.draw(mLayout.along(lane, first), place, plan.positionOf(first),
               plan.positionOf(label) + length, from, to);
    first = label + 1;
  }
  if (!isLast(lane.last) || !mRules.feedsOut() || !mRules.settings().feed) return;
  const double end = plan.positionOf(lane.last) + length;
  ruler.draw(endOf(lane, lane.last), place, end, end + *mRules.settings().feed, from, to);
}

}  // namespace cutline
