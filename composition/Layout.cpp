#include "composition/Layout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cutline {
namespace {

constexpr double kTolerance = 1;  // points: sizes this close are the same
constexpr double kSideTolerance = 0.5;
constexpr double kInkTolerance = 0.1;
constexpr double kWhole = 100;
constexpr int kQuarter = 90;
constexpr int kHalf = 180;
constexpr int kThreeQuarters = 270;

bool isSquare(double width, double height) { return std::abs(width - height) < kTolerance; }

bool isQuarter(int turn) { return turn == kQuarter || turn == kThreeQuarters; }

// What a page covers once it is turned, at its own size.
struct Extent {
  double across;
  double along;
};

Extent extentOf(const PageSize& page, int turn) {
  return isQuarter(turn) ? Extent{page.height, page.width} : Extent{page.width, page.height};
}

int automaticTurn(const PageSize& page, const LabelPage& label) {
  const bool isSquareLabel = !label.isContinuous && isSquare(label.width, label.length);
  if (isSquareLabel || isSquare(page.width, page.height)) return label.upright;
  const bool isWideLabel = !label.isContinuous && label.width > label.length;
  return (page.width > page.height) == isWideLabel ? 0 : label.landscape;
}

double fitting(const Extent& extent, const LabelPage& label) {
  return std::min(label.printableWidth() / extent.across, label.printableLength() / extent.along);
}

double filling(const Extent& extent, const LabelPage& label) {
  return std::max(label.printableWidth() / extent.across, label.printableLength() / extent.along);
}

bool fits(const Extent& extent, const LabelPage& label) {
  return extent.across <= label.width + kTolerance && extent.along <= label.length + kTolerance;
}

double scaleOf(const PageSize& page, const Extent& extent, const LabelPage& label,
               const LayoutSettings& settings) {
  switch (settings.scaling) {
    case Scaling::actual:
      return 1;
    case Scaling::fit:
      return fitting(extent, label);
    case Scaling::fill:
      return filling(extent, label);
    case Scaling::percent:
      return settings.percent / kWhole;
    case Scaling::automatic:
      break;
  }
  return page.isStated && fits(extent, label) ? 1 : fitting(extent, label);
}

// Where between the near and the far edge: 0 at the near one, 1 at the far one.
struct Share {
  Position position;
  double across;
  double along;
};
constexpr std::array kShares = std::to_array<Share>({
    {Position::center, 0.5, 0.5},
    {Position::top, 0.5, 1},
    {Position::bottom, 0.5, 0},
    {Position::left, 0, 0.5},
    {Position::right, 1, 0.5},
    {Position::topLeft, 0, 1},
    {Position::topRight, 1, 1},
    {Position::bottomLeft, 0, 0},
    {Position::bottomRight, 1, 0},
});

Share shareOf(Position position) {
  const auto* found = std::ranges::find(kShares, position, &Share::position);
  return found != kShares.end() ? *found : kShares.front();
}

// One side of a label: what can be printed, and the paper around it.
struct Side {
  double low, high;
  double paper;
};

// What fits between the margins lies there; what is larger, such as a page that was made for the
// whole label, is placed on the paper.
double startOn(const Side& side, double extent, double share, bool fills) {
  const bool isWithin = fills || extent <= side.high - side.low + kSideTolerance;
  const double low = isWithin ? side.low : 0;
  const double high = isWithin ? side.high : side.paper;
  return low + (high - low - extent) * share;
}

Placement turned(const PageSize& page, double scale, int turn, double x, double y) {
  const double width = page.width * scale;
  const double height = page.height * scale;
  switch (turn) {
    case kQuarter:
      return {0, -scale, scale, 0, x, y + width, scale, turn};
    case kHalf:
      return {-scale, 0, 0, -scale, x + width, y + height, scale, turn};
    case kThreeQuarters:
      return {0, scale, -scale, 0, x + height, y, scale, turn};
    default:
      return {scale, 0, 0, scale, x, y, scale, 0};
  }
}

Area areaOn(const Placement& at, double left, double bottom, double right, double top) {
  const double x1 = at.a * left + at.c * bottom + at.e;
  const double y1 = at.b * left + at.d * bottom + at.f;
  const double x2 = at.a * right + at.c * top + at.e;
  const double y2 = at.b * right + at.d * top + at.f;
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

// The way back from a label to the page.
Placement inverse(const Placement& at) {
  const double determinant = at.a * at.d - at.b * at.c;
  return {at.d / determinant,
          -at.b / determinant,
          -at.c / determinant,
          at.a / determinant,
          (at.c * at.f - at.d * at.e) / determinant,
          (at.b * at.e - at.a * at.f) / determinant};
}

}  // namespace

int turnOf(const PageSize& page, const LabelPage& label, Turn turn) {
  switch (turn) {
    case Turn::automatic:
      return automaticTurn(page, label);
    case Turn::landscape:
      return kThreeQuarters;
    case Turn::reverseLandscape:
      return kQuarter;
    case Turn::reversePortrait:
      return kHalf;
    case Turn::portrait:
      break;
  }
  return 0;
}

Placement placed(const PageSize& page, const LabelPage& label, const LayoutSettings& settings) {
  const int turn = turnOf(page, label, settings.turn);
  const Extent extent = extentOf(page, turn);
  const double scale = scaleOf(page, extent, label, settings);
  const Share share = shareOf(settings.position);
  const bool fills = settings.scaling == Scaling::fill;
  const double x =
      startOn({label.left, label.right, label.width}, extent.across * scale, share.across, fills);
  const double y =
      startOn({label.bottom, label.top, label.length}, extent.along * scale, share.along, fills);
  return turned(page, scale, turn, x, y);
}

double lengthFor(const PageSize& page, const LabelPage& label, const LayoutSettings& settings,
                 const LengthBounds& bounds) {
  const Extent extent = extentOf(page, turnOf(page, label, settings.turn));
  LabelPage endless = label;
  endless.length = endless.top = extent.along * label.width / extent.across + extent.along;
  endless.bottom = 0;
  LayoutSettings byWidth = settings;
  // Along the tape there is nothing to cover.
  if (settings.scaling == Scaling::fill) byWidth.scaling = Scaling::fit;
  const double scale = scaleOf(page, extent, endless, byWidth);
  const double margins = label.bottom + label.length - label.top;
  return std::clamp(extent.along * scale + margins, bounds.shortest, bounds.longest);
}

bool isPrintable(const Area& ink, const LabelPage& label) {
  return ink.left >= label.left - kInkTolerance && ink.right <= label.right + kInkTolerance &&
         ink.bottom >= label.bottom - kInkTolerance && ink.top <= label.top + kInkTolerance;
}

std::optional<int> percentWithoutLoss(const PageSize& page, const LabelPage& label,
                                      const LayoutSettings& settings, const Area& ink) {
  if (isPrintable(ink, label)) return std::nullopt;
  const Placement now = placed(page, label, settings);
  const Area onPage = areaOn(inverse(now), ink.left, ink.bottom, ink.right, ink.top);
  LayoutSettings smaller = settings;
  smaller.scaling = Scaling::percent;
  for (int percent = static_cast<int>(now.scale * kWhole); percent > 0; --percent) {
    smaller.percent = percent;
    const Placement at = placed(page, label, smaller);
    const Area there = areaOn(at, onPage.left, onPage.bottom, onPage.right, onPage.top);
    if (isPrintable(there, label)) return percent;
  }
  return std::nullopt;
}

bool isWhollyPrintable(const PageSize& page, const LabelPage& label,
                       const LayoutSettings& settings) {
  return isPrintable(areaOn(placed(page, label, settings), 0, 0, page.width, page.height), label);
}

}  // namespace cutline
