#include "bundle/resources/pictures/Printer.h"

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

constexpr Box kPrinterBody = {kMouth + 0.5, 4.5, 262.5, 79.5};
constexpr double kCorner = 7;
constexpr double kMiddle = 237.5;

constexpr Point kRoll = {kMiddle, 34};
constexpr double kRollRadius = 19;

void drawBody(Svg& svg) { svg.rect(kPrinterBody, edged(kBody, kBodyDark), kCorner); }

void drawReel(Svg& svg, Point centre) {
  svg.circle(centre, 6, edged(kBodyDark, kBodyDark));
  svg.circle(centre, 3.5, stroked(kBodyLight, 1.8, "2.2 1.5"));
}

}  // namespace

void drawSlot(Svg& svg, double top, double bottom) {
  svg.rect({kMouth - 4, top - 4, kMouth + 6, bottom + 4}, filled(kBodyDark), 2);
}

void drawTapePrinter(Svg& svg) {
  drawBody(svg);
  svg.rect({kMiddle - 18, 31.5, kMiddle + 18, 52.5}, edged(kBodyLight, kBodyDark), 3);
  drawReel(svg, {kMiddle - 8.5, 42});
  drawReel(svg, {kMiddle + 8.5, 42});
}

void drawRollPrinter(Svg& svg) {
  drawBody(svg);
  // The paper leaves the roll at its lowest point, towards the mouth.
  svg.rect({kMouth + 1, kRoll.y + kRollRadius - 3.5, kRoll.x, kRoll.y + kRollRadius},
           edged(kPaper, kEdge));
  for (const double radius : {kRollRadius, 15.5, 12.5, 9.5}) {
    svg.circle(kRoll, radius, edged(kPaper, kEdge));
  }
  svg.circle(kRoll, 6, edged(kBodyLight, kBodyDark));
}

}  // namespace cutline::pictures
