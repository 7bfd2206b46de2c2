// Where the labels of a document lie on the tape or roll, as drawn in a view. A tape runs from left
// to right, as it is read, and goes on in the next lane where a lane is full; a roll runs downwards
// in one lane. Pure geometry, in the view's pixels, y growing downwards.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <vector>

#include "composition/LabelPage.h"

namespace cutline {

// Whether a label is read along its length, as on a tape, so that its strip runs across the view.
bool runsAcross(const LabelPage& label) noexcept;

// The label as a reader holds it, in points.
QSizeF sizeAsSeen(const LabelPage& label) noexcept;
// What can be printed of it, in points from the upper left corner as a reader holds it.
QRectF printableAsSeen(const LabelPage& label) noexcept;

struct StripContent {
  LabelPage label;
  int pages = 1;  // at least one; each covers its label
};

class StripLayout {
 public:
  // `zoom` 1 makes one label fit into the view.
  StripLayout(const StripContent& content, QSizeF view, double zoom);

  double scale() const noexcept { return mScale; }  // pixels a point of the tape
  QSizeF size() const noexcept;                     // of the whole strip with its margins
  int pageCount() const noexcept { return mContent.pages; }
  bool runsAcross() const noexcept { return mRunsAcross; }
  int laneCount() const noexcept;
  // Pieces of tape, each with the first and the last page on it.
  struct Lane {
    QRectF rect;
    int first;
    int last;
  };
  Lane lane(int index) const noexcept;
  QRectF label(int page) const noexcept;
  QRectF printableArea(int page) const noexcept;

  std::vector<int> pagesIn(const QRectF& area) const;
  // The page at a place; -1 when there is none.
  int pageAt(const QPointF& place) const noexcept;

 private:
  QSizeF labelSize() const noexcept;
  double laneStart(double extent) const noexcept;

  StripContent mContent;
  bool mRunsAcross;
  QSizeF mView;
  double mScale;
  int mPagesInLane;
};

}  // namespace cutline
