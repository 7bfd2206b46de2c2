#include "host/dialog/StripLayout.h"

#include <algorithm>
#include <cmath>

namespace cutline {
namespace {

constexpr double kMargin = 20;   // around the strip; the torn ends reach into it
constexpr double kLaneGap = 26;  // holds the numbers of the pages
constexpr double kMostScale = 2.6;
constexpr double kTolerance = 1;    // in points: sizes this close are the same
constexpr double kRollShare = 0.7;  // of the view's height, for one label of a roll

QSizeF paperAsShown(const StripContent& content) {
  const PaperSize& paper = content.paper;
  return content.direction == StripDirection::across ? QSizeF(paper.length, paper.width)
                                                     : QSizeF(paper.width, paper.length);
}

double fitScale(const StripContent& content, QSizeF view) {
  const QSizeF label = paperAsShown(content);
  if (label.isEmpty()) return 1;
  const bool isRoll = content.direction == StripDirection::down;
  const double width = std::max(1.0, view.width() - 2 * kMargin);
  const double height = std::max(1.0, (view.height() - 2 * kMargin) * (isRoll ? kRollShare : 1));
  return std::min({kMostScale, width / label.width(), height / label.height()});
}

bool liesAcross(QSizeF size) { return size.width() > size.height(); }

bool needsTurn(QSizeF page, QSizeF label) {
  const bool isSquare = std::abs(page.width() - page.height()) < kTolerance;
  return !isSquare && liesAcross(page) != liesAcross(label);
}

bool fits(QSizeF page, QSizeF label) {
  return page.width() <= label.width() + kTolerance && page.height() <= label.height() + kTolerance;
}

}  // namespace

StripLayout::StripLayout(StripContent content, QSizeF view, double zoom)
    : mContent(std::move(content)), mView(view), mScale(fitScale(mContent, view) * zoom) {
  const double room = view.width() - 2 * kMargin + kTolerance;
  const bool isTape = mContent.direction == StripDirection::across;
  const int fitting = static_cast<int>(room / std::max(1.0, labelSize().width()));
  mPagesInLane = isTape ? std::clamp(fitting, 1, pageCount()) : pageCount();
}

QSizeF StripLayout::labelSize() const noexcept { return paperAsShown(mContent) * mScale; }

// The paper's lower edge lies to the left of a tape that runs across.
QRectF StripLayout::printableInLabel() const noexcept {
  const PaperSize& paper = mContent.paper;
  const double width = paper.right - paper.left;
  const double length = paper.top - paper.bottom;
  const QRectF area = mContent.direction == StripDirection::across
                          ? QRectF(paper.bottom, paper.left, length, width)
                          : QRectF(paper.left, paper.length - paper.top, width, length);
  return {area.topLeft() * mScale, area.size() * mScale};
}

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
  if (mContent.direction == StripDirection::down) {
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
  const QPointF step = mContent.direction == StripDirection::across
                           ? QPointF(size.width() * position, 0)
                           : QPointF(0, size.height() * position);
  return {found.rect.topLeft() + step, size};
}

QRectF StripLayout::printableArea(int page) const noexcept {
  return printableInLabel().translated(label(page).topLeft());
}

PlacedPage StripLayout::placedPage(int page) const noexcept {
  const Size& points = mContent.pages[page];
  const QSizeF own(points.width, points.height);
  const QSizeF paper = paperAsShown(mContent);
  const bool isTurned = needsTurn(own, paper);
  const QSizeF lying = isTurned ? own.transposed() : own;
  const QRectF area = fits(lying, paper) ? label(page) : printableArea(page);
  const double shrink =
      fits(lying, paper)
          ? 1
          : std::min(area.width() / lying.width(), area.height() / lying.height()) / mScale;
  QRectF rect({0, 0}, lying * mScale * shrink);
  rect.moveCenter(area.center());
  return {rect, mScale * shrink, isTurned};
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
