#include "host/dialog/DrawnOnce.h"

#include <QTransform>
#include <cmath>

namespace cutline {
namespace {

bool isWhole(double pixels) { return std::abs(pixels - std::round(pixels)) < 1e-6; }

}  // namespace

int wholeRatio(const QPainter& painter, const QRectF& rect) {
  const QTransform device = painter.deviceTransform();
  if (device.type() > QTransform::TxScale || device.m11() != device.m22()) return 0;
  const double ratio = device.m11();
  const QRectF pixels = device.mapRect(rect);
  const bool lies = isWhole(pixels.left()) && isWhole(pixels.top()) && isWhole(pixels.width()) &&
                    isWhole(pixels.height());
  return lies && isWhole(ratio) ? static_cast<int>(std::round(ratio)) : 0;
}

}  // namespace cutline
