#include "host/dialog/StripLayout.h"

#include <algorithm>

#include "host/dialog/LabelAsSeen.h"

namespace cutline {
namespace {

constexpr double kStripMargin = 8;
constexpr double kLaneGap = 4;
constexpr double kKnives = 15;
constexpr double kBacking = 5;
constexpr double kMostScale = 2.6;
// The least of a label, across a tape or the shorter way on a roll, that is not shown smaller by
// itself.
constexpr double kReadableTape = 50;
constexpr double kReadableRoll = 44;
constexpr int kSteps = 40;  // to the scale that fits

QSizeF alongAndAcross(QSizeF size, bool runsAcross) {
  return runsAcross ? size : size.transposed();
}

double besideTape(const StripRoom& room) { return room.ruler + kKnives + kBacking + room.caption; }

std::uint64_t lanesFor(std::uint64_t labels, std::uint64_t labelsInLane) {
  return (labels + labelsInLane - 1) / labelsInLane;
}

double roomAlong(const StripLine& line, double view) {
  return view - 2 * kStripMargin - line.lead() - line.tail();
}

// The whole strip along and across, with its margins.
QSizeF wholeOf(const StripLine& line, std::uint64_t labels, std::uint64_t labelsInLane,
               double laneExtent) {
  const auto lanes = static_cast<double>(lanesFor(labels, labelsInLane));
  return {2 * kStripMargin + line.lead() + line.roomFor(labelsInLane) + line.tail(),
          2 * kStripMargin + lanes * laneExtent + (lanes - 1) * kLaneGap};
}

// Whether the whole job is in sight at this scale.
bool fits(const StripContent& content, const StripRoom& room, double scale) {
  const QSizeF view = alongAndAcross(room.view, runsAcross(content.label));
  const StripLine line(content, scale);
  const std::uint64_t labels = std::max<std::uint64_t>(1, content.plan.labels());
  const std::uint64_t inLane = line.labelsIn(roomAlong(line, view.width()));
  const QSizeF whole =
      wholeOf(line, labels, inLane, besideTape(room) + content.label.width * scale);
  return whole.width() <= view.width() && whole.height() <= view.height();
}

double leastScale(const LabelPage& label) {
  const bool across = runsAcross(label);
  const double least = across ? label.width : std::min(label.width, label.length);
  return least > 0 ? std::min(kMostScale, (across ? kReadableTape : kReadableRoll) / least) : 1;
}

double fitScale(const StripContent& content, const StripRoom& room) {
  double low = leastScale(content.label);
  double high = kMostScale;
  if (fits(content, room, high)) return high;
  if (!fits(content, room, low)) return low;
  for (int step = 0; step < kSteps; ++step) {
    const double middle = (low + high) / 2;
    (fits(content, room, middle) ? low : high) = middle;
  }
  return low;
}

double largeScale(const LabelPage& label, const StripRoom& room) {
  const QSizeF view = alongAndAcross(room.view, runsAcross(label));
  if (label.length <= 0 || label.width <= 0) return 1;
  const double least = leastScale(label);
  return std::max(least, std::min((view.width() - 2 * kStripMargin) / label.length,
                                  (view.height() - besideTape(room) - kStripMargin) / label.width));
}

double scaleFor(const StripContent& content, const StripRoom& room, StripZoom zoom) {
  return zoom.isLarge ? largeScale(content.label, room) : fitScale(content, room) * zoom.factor;
}

// Which of `count` things that begin at each `pitch` an offset falls on; the nearest one.
std::uint64_t indexAt(double offset, double pitch, std::uint64_t count) {
  const double last = static_cast<double>(count - 1);
  return static_cast<std::uint64_t>(std::clamp(offset / pitch, 0.0, last));
}

}  // namespace

StripLayout::StripLayout(const StripContent& content, const StripRoom& room, StripZoom zoom)
    : mRoom(room),
      mRunsAcross(cutline::runsAcross(content.label)),
      mLabels(std::max<std::uint64_t>(1, content.plan.labels())),
      mScale(scaleFor(content, room, zoom)),
      mLine(content, mScale),
      mBreadth(content.label.width * mScale),
      mLabelsInLane(
          mLine.labelsIn(roomAlong(mLine, alongAndAcross(room.view, mRunsAcross).width()))) {}

double StripLayout::knives() noexcept { return kKnives; }
double StripLayout::backing() noexcept { return kBacking; }

double StripLayout::laneExtent() const noexcept { return besideTape(mRoom) + mBreadth; }

std::uint64_t StripLayout::laneCount() const noexcept { return lanesFor(mLabels, mLabelsInLane); }

QSizeF StripLayout::whole() const noexcept {
  return wholeOf(mLine, mLabels, mLabelsInLane, laneExtent());
}

QSizeF StripLayout::size() const noexcept { return alongAndAcross(whole(), mRunsAcross); }

// In the middle of a view that is larger.
StripLayout::Lane StripLayout::lane(std::uint64_t index) const noexcept {
  const QSizeF spare = (alongAndAcross(mRoom.view, mRunsAcross) - whole()) / 2;
  const std::uint64_t first = index * mLabelsInLane + 1;
  const double step = laneExtent() + kLaneGap;
  return {first, std::min(first + mLabelsInLane - 1, mLabels),
          std::max(0.0, spare.width()) + kStripMargin + mLine.lead(),
          std::max(0.0, spare.height()) + kStripMargin + mRoom.ruler + kKnives +
              static_cast<double>(index) * step};
}

double StripLayout::along(const Lane& lane, std::uint64_t label) const noexcept {
  return lane.along + mLine.begin(lane.first, label);
}

QRectF StripLayout::placed(double along, double across, double length,
                           double breadth) const noexcept {
  return mRunsAcross ? QRectF(along, across, length, breadth)
                     : QRectF(across, along, breadth, length);
}

QRectF StripLayout::label(std::uint64_t label) const noexcept {
  const Lane found = lane(laneOf(label));
  return placed(along(found, label), found.across, mLine.labelLength(), mBreadth);
}

QRectF StripLayout::surroundings(std::uint64_t label) const noexcept {
  const Lane found = lane(laneOf(label));
  const double start = along(found, label);
  return placed(start - kStripMargin, found.across - mRoom.ruler - kKnives,
                mLine.labelLength() + 2 * kStripMargin, laneExtent());
}

StripLayout::Range StripLayout::lanesIn(const QRectF& area) const noexcept {
  const double from = mRunsAcross ? area.top() : area.left();
  const double to = mRunsAcross ? area.bottom() : area.right();
  const double start = lane(0).across - mRoom.ruler - kKnives;
  const double step = laneExtent() + kLaneGap;
  return {indexAt(from - start, step, laneCount()), indexAt(to - start, step, laneCount())};
}

StripLayout::Range StripLayout::labelsIn(const Lane& lane, const QRectF& area) const noexcept {
  const double from = mRunsAcross ? area.left() : area.top();
  const double to = mRunsAcross ? area.right() : area.bottom();
  return {std::min(lane.last, mLine.labelBefore(lane.first, from - lane.along)),
          std::min(lane.last, mLine.labelBefore(lane.first, to - lane.along))};
}

std::uint64_t StripLayout::labelAt(const QPointF& place) const noexcept {
  const Lane found = lane(lanesIn(QRectF(place, QSizeF(1, 1))).first);
  const std::uint64_t label = labelsIn(found, QRectF(place, QSizeF(1, 1))).first;
  const QRectF taken = placed(along(found, label), found.across, mLine.labelLength(),
                              mBreadth + kBacking + mRoom.caption);
  return taken.contains(place) ? label : 0;
}

}  // namespace cutline
