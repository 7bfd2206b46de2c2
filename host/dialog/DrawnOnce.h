// Pictures of what is drawn again and again in the same way. Smooth edges take most of what
// painting them takes, so they are drawn once for each look and scale, and copied from then on.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QRectF>
#include <algorithm>
#include <cstddef>
#include <vector>

namespace cutline {

// Pixels of the screen to a point, where the rectangle lies on whole ones; 0 elsewhere, where
// nothing can be copied.
int wholeRatio(const QPainter& painter, const QRectF& rect);

// `Look` tells with == whether two look the same.
template <typename Look>
class DrawnOnce {
 public:
  // The picture of this look. It covers `room`, in whole points; `draw` draws it on a painter in
  // points where there is none yet. Borrowed until the next call.
  template <typename Draw>
  const QImage& picture(const Look& look, int ratio, const QRect& room, const Draw& draw) {
    const auto known = std::ranges::find_if(
        mKnown, [&](const Known& each) { return each.ratio == ratio && each.look == look; });
    if (known != mKnown.end()) return known->picture;
    if (mKnown.size() == kMost) mKnown.clear();  // another theme's, by now
    QImage picture(room.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(ratio, ratio);
    painter.translate(-room.topLeft());
    draw(painter);
    painter.end();
    return mKnown.emplace_back(Known{look, ratio, picture}).picture;
  }

 private:
  static constexpr std::size_t kMost = 64;
  struct Known {
    Look look;
    int ratio;
    QImage picture;
  };
  std::vector<Known> mKnown;
};

}  // namespace cutline
