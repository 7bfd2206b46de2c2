#include "bundle/resources/pictures/Outline.h"

#include <array>
#include <charconv>
#include <cmath>

namespace cutline::pictures {

namespace {

constexpr std::string_view kNumberCharacters = "-.0123456789";

// Takes the number at the front of `rest` off it.
double numberTaken(std::string_view& rest) {
  double value = 0;
  const char* const end = std::from_chars(rest.data(), rest.data() + rest.size(), value).ptr;
  rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
  return value;
}

Point pointTaken(std::string_view& rest) {
  const double x = numberTaken(rest);
  rest.remove_prefix(1);  // the comma
  return {x, numberTaken(rest)};
}

std::string pointText(Point point) { return numberText(point.x) + ',' + numberText(point.y); }

}  // namespace

std::string numberText(double value) {
  const double rounded = std::round(value * 100) / 100;
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                    rounded == 0 ? 0.0 : rounded, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

std::string placed(std::string_view outline, const Placement& placement) {
  const double across = placement.mirrored ? -placement.scale : placement.scale;
  std::string text;
  while (!outline.empty()) {
    if (kNumberCharacters.find(outline.front()) == std::string_view::npos) {
      text += outline.front();
      outline.remove_prefix(1);
      continue;
    }
    const Point point = pointTaken(outline);
    text += pointText(
        {placement.origin.x + across * point.x, placement.origin.y + placement.scale * point.y});
  }
  return text;
}

Outline& Outline::move(Point to) {
  append('M');
  append(to);
  return *this;
}

Outline& Outline::line(Point to) {
  append('L');
  append(to);
  return *this;
}

Outline& Outline::curve(Point leaving, Point arriving, Point to) {
  append('C');
  append(leaving);
  mText += ' ';
  append(arriving);
  mText += ' ';
  append(to);
  return *this;
}

Outline& Outline::close() {
  append('Z');
  return *this;
}

void Outline::append(char command) {
  if (!mText.empty()) mText += ' ';
  mText += command;
}

void Outline::append(Point point) { mText += pointText(point); }

}  // namespace cutline::pictures
