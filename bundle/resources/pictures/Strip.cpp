#include "bundle/resources/pictures/Strip.h"

#include <algorithm>

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

constexpr double kPeel = 9;        // of the corner that comes off
constexpr double kWeavePitch = 6;  // between neighbouring threads
constexpr double kSelvage = 4;     // from the fabric's edge to its stitches

// Edges lie on the middle of a pixel: a line one point wide is then sharp.
Box sharp(Span span, double top, double bottom) {
  return {span.left + 0.5, top + 0.5, span.right - 0.5, bottom - 0.5};
}

// Threads from upper right to lower left, as one path; the files know no clipping, so each thread
// is cut to the box here.
Outline threads(const Box& box) {
  Outline outline;
  const double reach = box.height();
  const int count = static_cast<int>((box.width() + reach) / kWeavePitch);
  for (int i = 1; i <= count; ++i) {
    const double x = box.left + i * kWeavePitch;
    const double over = std::max(0.0, x - box.right);
    const double under = std::max(0.0, box.left - (x - reach));
    outline.move({x - over, box.top + over}).line({x - reach + under, box.bottom - under});
  }
  return outline;
}

}  // namespace

void drawBacking(Svg& svg, Span span) {
  svg.rect(sharp(span, kTapeTop, kTapeBottom), edged(kBacking, kEdge));
}

void drawFace(Svg& svg, Span span) {
  svg.rect(sharp(span, kTapeTop, kTapeFaceBottom), edged(kPaper, kEdge));
}

void drawPeelingFace(Svg& svg, Span span) {
  const Box box = sharp(span, kTapeTop, kTapeFaceBottom);
  const Point across = {box.right - kPeel, box.bottom};
  const Point up = {box.right, box.bottom - kPeel};
  svg.path(Outline()
               .move({box.left, box.top})
               .line({box.right, box.top})
               .line(up)
               .line(across)
               .line({box.left, box.bottom})
               .close()
               .text(),
           edged(kPaper, kEdge));
  svg.path(Outline()
               .move(across)
               .line(up)
               .line({box.right - kPeel + 1, box.bottom - kPeel + 1})
               .close()
               .text(),
           edged(kPaperShade, kEdge));
}

void drawFabric(Svg& svg, Span span) {
  const Box box = sharp(span, kTapeTop, kTapeBottom);
  svg.rect(box, filled(kFabric));
  svg.path(threads(box).text(), stroked(kWeave, 1));
  for (const double y : {box.top + kSelvage, box.bottom - kSelvage}) {
    svg.line({box.left, y}, {box.right, y}, stroked(kStitch, 1.4, "5 3"));
  }
  svg.rect(box, stroked(kStitch, 1));
}

void drawPaper(Svg& svg, Span span) {
  svg.rect(sharp(span, kPaperTop, kPaperBottom), edged(kPaper, kEdge));
}

}  // namespace cutline::pictures
