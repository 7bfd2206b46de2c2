#include "bundle/resources/pictures/Printer.h"

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

constexpr Box kPrinterBody = {kMouth + 0.5, 6.5, 261.5, 77.5};
constexpr double kCorner = 8;

void drawBody(Svg& svg) { svg.rect(kPrinterBody, edged(kBody, kBodyDark), kCorner); }

}  // namespace

void drawSlot(Svg& svg, double top, double bottom) {
  svg.rect({kMouth - 4, top - 4, kMouth + 6, bottom + 4}, filled(kBodyDark), 2);
}

void drawTapePrinter(Svg& svg) {
  drawBody(svg);
}

void drawRollPrinter(Svg& svg) {
  drawBody(svg);
  const Point core = {236, 34};
  for (const double radius : {19.5, 15.5, 11.5}) {
    svg.circle(core, radius, edged(kPaper, kEdge));
  }
  svg.circle(core, 6, edged(kBodyLight, kBodyDark));
}

}  // namespace cutline::pictures
