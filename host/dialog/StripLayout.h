// Where the parts of a job's strip lie in a view. A tape runs from left to right, as it is read,
// and goes on in the next lane below where a lane is full; a roll runs downwards, and goes on in
// the next lane to the right. Pure geometry, in the view's pixels, y growing downwards: `along` is
// the way of the strip, `across` the other one. Labels count from 1, lanes from 0.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <cstdint>

#include "host/dialog/StripLine.h"

namespace cutline {

// The view, and what it needs of it beside the tape of a lane.
struct StripRoom {
  QSizeF view;
  double ruler = 0;    // across, on the one side
  double caption = 0;  // across, on the other
};

struct StripZoom {
  // 1 shows the whole job where it stays readable.
  double factor = 1;
  // One label fills the view, whatever the factor.
  bool isLarge = false;
};

class StripLayout {
 public:
  StripLayout(const StripContent& content, const StripRoom& room, StripZoom zoom);

  double scale() const noexcept { return mScale; }  // pixels a point of the tape
  bool runsAcross() const noexcept { return mRunsAcross; }
  // Of the whole strip with its margins.
  QSizeF size() const noexcept;

  const StripLine& line() const noexcept { return mLine; }
  std::uint64_t labelCount() const noexcept { return mLabels; }
  double breadth() const noexcept { return mBreadth; }  // of the tape
  double ruler() const noexcept { return mRoom.ruler; }
  double caption() const noexcept { return mRoom.caption; }
  // Between the ruler and the tape, where knives stand; and of the tape's backing, which shows
  // beside its face.
  static double knives() noexcept;
  static double backing() noexcept;

  struct Lane {
    std::uint64_t first;  // labels
    std::uint64_t last;
    double along;   // of the first label's beginning
    double across;  // of the tape's near edge
  };
  std::uint64_t laneCount() const noexcept;
  Lane lane(std::uint64_t index) const noexcept;
  std::uint64_t laneOf(std::uint64_t label) const noexcept { return (label - 1) / mLabelsInLane; }
  // Of the label's beginning.
  double along(const Lane& lane, std::uint64_t label) const noexcept;

  // A rectangle along and across the strip as it lies in the view.
  QRectF placed(double along, double across, double length, double breadth) const noexcept;
  QRectF label(std::uint64_t label) const noexcept;
  // The label with what stands beside it: ruler, knives and caption.
  QRectF surroundings(std::uint64_t label) const noexcept;

  // What an area shows something of: lanes, and of a lane its labels. The area is not empty.
  struct Range {
    std::uint64_t first;
    std::uint64_t last;
  };
  Range lanesIn(const QRectF& area) const noexcept;
  Range labelsIn(const Lane& lane, const QRectF& area) const noexcept;
  // The label at a place; 0 when there is none.
  std::uint64_t labelAt(const QPointF& place) const noexcept;

 private:
  double laneExtent() const noexcept;
  QSizeF whole() const noexcept;

  StripRoom mRoom;
  bool mRunsAcross;
  std::uint64_t mLabels;
  double mScale;
  StripLine mLine;
  double mBreadth;
  std::uint64_t mLabelsInLane;
};

}  // namespace cutline
