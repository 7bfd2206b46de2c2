// Where the pages of a document lie on the tape or roll, as drawn in a view. A tape runs from left
// to right and goes on in the next lane where a lane is full; a roll runs downwards in one lane.
// Pure geometry, in the view's pixels, y growing downwards.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <vector>

#include "cups/PpdFile.h"
#include "platform/ports/Geometry.h"

namespace cutline {

enum class StripDirection { across, down };

struct StripContent {
  PaperSize paper;
  StripDirection direction = StripDirection::across;
  std::vector<Size> pages;  // in points; at least one
};

// A page on its label.
struct PlacedPage {
  QRectF rect;            // what the page covers
  double pageScale = 1;   // pixels a point of the page
  bool isTurned = false;  // by a quarter to the right
};

class StripLayout {
 public:
  // `zoom` 1 makes one label fit into the view.
  StripLayout(StripContent content, QSizeF view, double zoom);

  double scale() const noexcept { return mScale; }  // pixels a point of the tape
  QSizeF size() const noexcept;                     // of the whole strip with its margins
  int pageCount() const noexcept { return static_cast<int>(mContent.pages.size()); }
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
  // As the printing system will put it: at its own size where the paper holds it, else made smaller
  // to fit the printable area; turned when it lies the other way than the paper.
  PlacedPage placedPage(int page) const noexcept;

  std::vector<int> pagesIn(const QRectF& area) const;
  // The page at a place; -1 when there is none.
  int pageAt(const QPointF& place) const noexcept;

 private:
  QSizeF labelSize() const noexcept;
  QRectF printableInLabel() const noexcept;
  double laneStart(double extent) const noexcept;

  StripContent mContent;
  QSizeF mView;
  double mScale;
  int mPagesInLane;
};

}  // namespace cutline
