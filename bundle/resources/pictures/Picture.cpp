#include "bundle/resources/pictures/Picture.h"

namespace cutline::pictures {

std::string fileNameOf(std::string_view name) { return std::string(name) + ".svg"; }

std::string pictureOf(std::string_view name) {
  const Flags flags = flagsOf(name);
  Svg svg;
  if (flags.family == Family::Roll) {
    drawRollPicture(svg, flags);
  } else {
    drawTapePicture(svg, flags);
  }
  return svg.text();
}

}  // namespace cutline::pictures
