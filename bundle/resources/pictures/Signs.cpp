#include "bundle/resources/pictures/Signs.h"

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

constexpr std::string_view kBlade = "M-5,-19 L5,-19 L5,-10 L0,0 L-5,-10 Z";
constexpr std::string_view kBevel = "M-5,-10 L5,-10";
constexpr std::string_view kScissorBlades = "M-3.2,-11 L2.4,4.4 M3.2,-11 L-2.4,4.4";
constexpr std::string_view kLeftLink =
    "M1,-4 L-6,-4 C-8.2,-4 -10,-2.2 -10,0 C-10,2.2 -8.2,4 -6,4 L1,4";
constexpr std::string_view kRightLink =
    "M-1,-4 L6,-4 C8.2,-4 10,-2.2 10,0 C10,2.2 8.2,4 6,4 L-1,4";
constexpr std::string_view kBin =
    "M-5.5,-4.5 L5.5,-4.5 M-2,-4.5 L-2,-6.5 L2,-6.5 L2,-4.5 M-4.2,-4.5 L-3.4,6 L3.4,6 L4.2,-4.5 "
    "M-1.3,-1.6 L-1.1,3.4 M1.3,-1.6 L1.1,3.4";
constexpr std::string_view kMirrorLeft = "M-2.5,-5 L-2.5,5 L-10,5 Z";
constexpr std::string_view kMirrorRight = "M2.5,-5 L2.5,5 L10,5 Z";

}  // namespace

void drawBlade(Svg& svg, Point tip, Colour colour) {
  svg.path(placed(kBlade, {tip}), filled(colour));
  svg.path(placed(kBevel, {tip}), stroked(kPaper, 1));
}

void drawNoBlade(Svg& svg, Point tip) {
  svg.path(placed(kBlade, {tip}), filled(kBody));
  svg.line({tip.x - 9, tip.y - 1}, {tip.x + 9, tip.y - 19}, stroked(kCut, 2.4));
}

void drawScissors(Svg& svg, Point pivot) {
  svg.path(placed(kScissorBlades, {pivot}), stroked(kHand, 2.2));
  for (const double side : {-1.0, 1.0}) {
    svg.circle({pivot.x + side * 3.9, pivot.y + 6.9}, 2.9, stroked(kHand, 2));
  }
}

void drawLinks(Svg& svg, Point centre) {
  svg.path(placed(kLeftLink, {{centre.x - 3, centre.y}}), stroked(kSign, 2.6));
  svg.path(placed(kRightLink, {{centre.x + 3, centre.y}}), stroked(kSign, 2.6));
}

void drawBin(Svg& svg, Point centre) { svg.path(placed(kBin, {centre}), stroked(kEdge, 1.2)); }

void drawMirror(Svg& svg, Point centre) {
  svg.path(placed(kMirrorLeft, {centre}), filled(kSign));
  svg.path(placed(kMirrorRight, {centre}), {kPaper, kSign, 1});
  svg.line({centre.x, centre.y - 7}, {centre.x, centre.y + 7}, stroked(kSign, 1.2, "2 1.5"));
}

}  // namespace cutline::pictures
