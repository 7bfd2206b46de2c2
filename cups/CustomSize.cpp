#include "cups/CustomSize.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace cutline {

namespace {

struct Unit {
  std::string_view name;
  double points;
};

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;
constexpr std::string_view kPrefix = "Custom.";
constexpr std::array kUnits = std::to_array<Unit>({
    {"", 1},
    {"pt", 1},
    {"in", kPointsPerInch},
    {"ft", kPointsPerInch * 12},
    {"mm", kPointsPerInch / kMillimetresPerInch},
    {"cm", kPointsPerInch / kMillimetresPerInch * 10},
    {"m", kPointsPerInch / kMillimetresPerInch * 1000},
});

// Takes a positive number off the front of the text.
std::optional<double> takeNumber(std::string_view& text) {
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (error != std::errc() || !(number > 0) || !std::isfinite(number)) return std::nullopt;
  text.remove_prefix(end - text.data());
  return number;
}

std::string millimetres(double points) {
  constexpr double kTenths = 10;
  const double value = points / kPointsPerInch * kMillimetresPerInch;
  return decimalText(static_cast<float>(std::round(value * kTenths) / kTenths));
}

}  // namespace

std::optional<CustomSize> CustomSize::parse(const std::string& choice) {
  std::string_view rest = choice;
  if (!rest.starts_with(kPrefix)) return std::nullopt;
  rest.remove_prefix(kPrefix.size());
  const auto width = takeNumber(rest);
  if (!width || !rest.starts_with('x')) return std::nullopt;
  rest.remove_prefix(1);
  const auto length = takeNumber(rest);
  const auto* unit = std::ranges::find(kUnits, rest, &Unit::name);
  if (!length || unit == kUnits.end()) return std::nullopt;
  return CustomSize{*width * unit->points, *length * unit->points};
}

std::string CustomSize::choice() const {
  return std::string(kPrefix) + decimalText(static_cast<float>(width)) + 'x' +
         decimalText(static_cast<float>(length));
}

std::string CustomSize::text() const {
  return millimetres(width) + " x " + millimetres(length) + " mm";
}

std::string decimalText(float number) {
  std::array<char, 64> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return error == std::errc() ? std::string(buffer.data(), end) : std::string("0");
}

}  // namespace cutline
