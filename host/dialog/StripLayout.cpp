#include "host/dialog/StripLayout.h"

#include <algorithm>

namespace cutline {
namespace {

constexpr double kMargin = 20;   // around the strip; the torn ends reach into it
constexpr double kLaneGap = 26;  // holds the numbers of the pages
constexpr double kMostScale = 2.6;
constexpr double kTolerance = 1;    // in pixels
constexpr double kRollShare = 0.7;  // of the view's height, for one label of a roll
constexpr int kQuarter = 90;
constexpr int kHalf = 180;
constexpr int kThreeQuarters = 270;

double fitScale(const LabelPage& label, QSizeF view) {
  const QSizeF seen = sizeAsSeen(label);
  if (seen.isEmpty()) return 1;
  const double share = runsAcross(label) ? 1 : kRollShare;
  const double width = std::max(1.0, view.width() - 2 * kMargin);
  const double height = std::max(1.0, (view.height() - 2 * kMargin) * share);
  return std::min({kMostScale, width / seen.width(), height / seen.height()});
}

}  // namespace

bool runsAcross(const LabelPage& label) noexcept { return label.upright % kHalf != 0; }

QSizeF sizeAsSeen(const LabelPage& label) noexcept {
  return runsAcross(label) ? QSizeF(label.length, label.width) : QSizeF(label.width, label.length);
}

// The paper is turned back by as much as a reader's page is turned onto it: after a quarter its top
// lies left, as a tape leaves the printer.
QRectF printableAsSeen(const LabelPage& label) noexcept {
  const double width = label.printableWidth();
  const double length = label.printableLength();
  switch (label.upright) {
    case kQuarter:
      return {label.length - label.top, label.width - label.right, length, width};
    case kHalf:
      return {label.width - label.right, label.bottom, width, length};
    case kThreeQuarters:
      return {label.bottom, label.left, length, width};
    default:
      return {label.left, label.length - label.top, width, length};
  }
}

StripLayout::StripLayout(const StripContent& content, QSizeF view, double zoom)
    : mContent(content),
      mRunsAcross(cutline::runsAcross(content.label)),
      mView(view),
      mScale(fitScale(mContent.label, view) * zoom) {
  const double room = view.width() - 2 * kMargin + kTolerance;
  const int fitting = static_cast<int>(room / std::max(1.0, labelSize().width()));
  mPagesInLane = mRunsAcross ? std::clamp(fitting, 1, pageCount()) : pageCount();
}

QSizeF StripLayout::labelSize() const noexcept { return sizeAsSeen(mContent.label) * mScale; }

int StripLayout::laneCount() const noexcept {
  return (pageCount() + mPagesInLane - 1) / mPagesInLane;
}

double StripLayout::laneStart(double extent) const noexcept {
  return std::max(kMargin, (mView.width() - extent) / 2);
}

StripLayout::Lane StripLayout::lane(int index) const noexcept {
  const int first = index * mPagesInLane;
  const int last = std::min(first + mPagesInLane, pageCount()) - 1;
  const QSizeF label = labelSize();
  const int count = last - first + 1;
  if (!mRunsAcross) {
    return {QRectF(laneStart(label.width()), kMargin, label.width(), label.height() * count), first,
            last};
  }
  const double left = laneStart(label.width() * mPagesInLane);
  const double top = kMargin + index * (label.height() + kLaneGap);
  return {QRectF(left, top, label.width() * count, label.height()), first, last};
}

QSizeF StripLayout::size() const noexcept {
  const QRectF last = lane(laneCount() - 1).rect;
  const QRectF first = lane(0).rect;
  return {first.width() + 2 * kMargin, last.bottom() + kLaneGap};
}

QRectF StripLayout::label(int page) const noexcept {
  const Lane found = lane(page / mPagesInLane);
  const QSizeF size = labelSize();
  const int position = page - found.first;
  const QPointF step =
      mRunsAcross ? QPointF(size.width() * position, 0) : QPointF(0, size.height() * position);
  return {found.rect.topLeft() + step, size};
}

QRectF StripLayout::printableArea(int page) const noexcept {
  const QRectF area = printableAsSeen(mContent.label);
  return QRectF(area.topLeft() * mScale, area.size() * mScale).translated(label(page).topLeft());
}

std::vector<int> StripLayout::pagesIn(const QRectF& area) const {
  std::vector<int> pages;
  for (int index = 0; index < laneCount(); ++index) {
    const Lane each = lane(index);
    if (!each.rect.intersects(area)) continue;
    for (int page = each.first; page <= each.last; ++page) {
      if (label(page).intersects(area)) pages.push_back(page);
    }
  }
  return pages;
}

int StripLayout::pageAt(const QPointF& place) const noexcept {
  for (int page = 0; page < pageCount(); ++page) {
    if (label(page).contains(place)) return page;
  }
  return -1;
}

}  // namespace cutline
