// A picture under construction: elements in painting order, written with the features of SVG Tiny.
#pragma once

#include <string>
#include <string_view>

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Palette.h"

namespace cutline::pictures {

struct Paint {
  Colour fill = "none";
  Colour stroke = "none";
  double strokeWidth = 1;
  std::string_view dashes = {};  // lengths of dash and gap; empty: a solid line
};

constexpr Paint filled(Colour colour) { return {colour}; }
constexpr Paint stroked(Colour colour, double width, std::string_view dashes = {}) {
  return {"none", colour, width, dashes};
}
constexpr Paint edged(Colour fill, Colour edge) { return {fill, edge, 1}; }

class Svg {
 public:
  void rect(const Box& box, const Paint& paint, double radius = 0);
  void circle(Point centre, double radius, const Paint& paint);
  void line(Point from, Point to, const Paint& paint);
  void path(std::string_view outline, const Paint& paint);  // an outline in the picture's own space

  // Elements drawn until end() belong to a group that a reader of the file finds by its id.
  void begin(std::string_view id);
  void end();

  // The whole file.
  std::string text() const;

 private:
  std::string mElements;
};

}  // namespace cutline::pictures
