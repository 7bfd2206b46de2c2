#include "host/dialog/LabelAsSeen.h"

namespace cutline {
namespace {

constexpr int kHalf = 180;
constexpr int kThreeQuarters = 270;

}  // namespace

bool runsAcross(const LabelPage& label) noexcept { return label.upright % kHalf != 0; }

QSizeF sizeAsSeen(const LabelPage& label) noexcept {
  return runsAcross(label) ? QSizeF(label.length, label.width) : QSizeF(label.width, label.length);
}

QRectF printableAsSeen(const LabelPage& label) noexcept {
  const double width = label.printableWidth();
  const double length = label.printableLength();
  switch (label.upright) {
    case kQuarterTurn:
      return {label.length - label.top, label.width - label.right, length, width};
    case kHalf:
      return {label.width - label.right, label.bottom, width, length};
    case kThreeQuarters:
      return {label.bottom, label.left, length, width};
    default:
      return {label.left, label.length - label.top, width, length};
  }
}

}  // namespace cutline
