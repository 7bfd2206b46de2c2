#include "bundle/resources/pictures/Signs.h"

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

// The printer's knife points downwards, its tip at (0, 0), its back towards the right.
constexpr std::string_view kKnifeBlade = "M-2.5,0 L2.5,-5.5 L2.5,-20 L-2.5,-20 Z";
constexpr std::string_view kKnifeScore = "M-1.9,-8 L1.9,-12";
constexpr std::string_view kLongHandle =
    "M-4,-17 L4,-17 L4,-31 C4,-33 3,-34 1,-34 L-1,-34 C-3,-34 -4,-33 -4,-31 Z";
constexpr std::string_view kShortHandle =
    "M-4,-13.5 L4,-13.5 L4,-23 C4,-25 3,-26 1,-26 L-1,-26 C-3,-26 -4,-25 -4,-23 Z";
constexpr double kFullCutTip = 37;
constexpr double kHalfCutTip = 31;
constexpr double kRestTip = 26.5;

constexpr std::string_view kScissorBlades = "M-3.2,-11 L2.4,4.4 M3.2,-11 L-2.4,4.4";
constexpr double kScissorScale = 1.25;
constexpr double kScissorPivot = 69.5;

constexpr std::string_view kBin =
    "M-5,-4.5 L5,-4.5 M-2,-4.5 L-2,-6.5 L2,-6.5 L2,-4.5 M-3.8,-4.5 L-3.2,6 L3.2,6 L3.8,-4.5";

constexpr std::string_view kLeftLink =
    "M-3.4,-3.6 L-7,-3.6 C-9,-3.6 -10.6,-2 -10.6,0 C-10.6,2 -9,3.6 -7,3.6 L-3.4,3.6";
constexpr std::string_view kRightLink =
    "M3.4,-3.6 L7,-3.6 C9,-3.6 10.6,-2 10.6,0 C10.6,2 9,3.6 7,3.6 L3.4,3.6";
constexpr std::string_view kLinkBar = "M-4.5,0 L4.5,0";

constexpr std::string_view kMirrorLeft = "M-2.6,-4.6 L-2.6,4.6 L-10.6,4.6 Z";
constexpr std::string_view kMirrorRight = "M2.6,-4.6 L2.6,4.6 L10.6,4.6 Z";

void drawKnife(Svg& svg, Point tip, std::string_view handle, Colour colour) {
  svg.path(placed(kKnifeBlade, {tip}), edged(kPaperShade, kBodyDark));
  svg.path(placed(kKnifeScore, {tip}), stroked(kBodyDark, 0.8));
  svg.path(placed(handle, {tip}), filled(colour));
}

void drawPlate(Svg& svg, Point centre) {
  svg.rect({centre.x - 17.5, centre.y - 8.5, centre.x + 17.5, centre.y + 8.5},
           edged(kPaper, kBodyDark), 5);
}

}  // namespace

void drawFullCutKnife(Svg& svg, double x) { drawKnife(svg, {x, kFullCutTip}, kLongHandle, kCut); }

void drawHalfCutKnife(Svg& svg, double x) {
  drawKnife(svg, {x, kHalfCutTip}, kShortHandle, kHalfCut);
}

void drawNoKnife(Svg& svg, double x) {
  drawKnife(svg, {x, kRestTip}, kShortHandle, kBody);
  svg.path(placed("M-9,-5 L9,-19", {{x, kRestTip}}), stroked(kCut, 2.6));
}

void drawScissors(Svg& svg, double x) {
  svg.path(placed(kScissorBlades, {{x, kScissorPivot}, kScissorScale}), stroked(kHand, 2.5));
  for (const double side : {-1.0, 1.0}) {
    const Point ring = {x + kScissorScale * side * 3.9, kScissorPivot + kScissorScale * 6.9};
    svg.circle(ring, kScissorScale * 2.9, stroked(kHand, 2.3));
  }
}

void drawBin(Svg& svg, Point centre) { svg.path(placed(kBin, {centre}), stroked(kEdge, 1.3)); }

void drawLinks(Svg& svg, Point centre) {
  drawPlate(svg, centre);
  for (const std::string_view outline : {kLeftLink, kRightLink}) {
    svg.path(placed(outline, {{centre.x, centre.y}}), stroked(kSign, 2.6));
  }
  svg.path(placed(kLinkBar, {centre}), stroked(kSign, 2.6));
}

void drawMirror(Svg& svg, Point centre) {
  drawPlate(svg, centre);
  svg.path(placed(kMirrorLeft, {centre}), filled(kSign));
  svg.path(placed(kMirrorRight, {centre}), {kPaper, kSign, 1});
  svg.line({centre.x, centre.y - 6}, {centre.x, centre.y + 6}, stroked(kSign, 1.2, "2 1.2"));
}

}  // namespace cutline::pictures
