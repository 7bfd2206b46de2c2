#include "bundle/resources/pictures/Svg.h"

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

std::string attribute(std::string_view name, std::string_view value) {
  std::string text = " ";
  text += name;
  text += "=\"";
  text += value;
  text += '"';
  return text;
}

std::string attribute(std::string_view name, double value) {
  return attribute(name, numberText(value));
}

std::string attributes(const Paint& paint) {
  std::string text = attribute("fill", paint.fill);
  if (paint.stroke == "none") return text;
  text += attribute("stroke", paint.stroke);
  if (paint.strokeWidth != 1) text += attribute("stroke-width", paint.strokeWidth);
  if (!paint.dashes.empty()) return text + attribute("stroke-dasharray", paint.dashes);
  return text + attribute("stroke-linecap", "round") + attribute("stroke-linejoin", "round");
}

}  // namespace

void Svg::rect(const Box& box, const Paint& paint, double radius) {
  mElements += "<rect" + attribute("x", box.left) + attribute("y", box.top) +
               attribute("width", box.width()) + attribute("height", box.height());
  if (radius > 0) mElements += attribute("rx", radius) + attribute("ry", radius);
  mElements += attributes(paint) + "/>\n";
}

void Svg::circle(Point centre, double radius, const Paint& paint) {
  mElements += "<circle" + attribute("cx", centre.x) + attribute("cy", centre.y) +
               attribute("r", radius) + attributes(paint) + "/>\n";
}

void Svg::line(Point from, Point to, const Paint& paint) {
  path(Outline().move(from).line(to).text(), paint);
}

void Svg::path(std::string_view outline, const Paint& paint) {
  mElements += "<path" + attribute("d", outline) + attributes(paint) + "/>\n";
}

void Svg::begin(std::string_view id) { mElements += "<g" + attribute("id", id) + ">\n"; }

void Svg::end() { mElements += "</g>\n"; }

std::string Svg::text() const {
  const std::string width = numberText(kPictureWidth);
  const std::string height = numberText(kPictureHeight);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\"" +
         attribute("width", width) + attribute("height", height) +
         attribute("viewBox", "0 0 " + width + ' ' + height) + ">\n" + mElements + "</svg>\n";
}

}  // namespace cutline::pictures
