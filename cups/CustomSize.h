// A paper size by its measures, as the page size option takes it: "Custom.24x100mm".
#pragma once

#include <optional>
#include <string>

namespace cutline {

struct CustomSize {
  double width = 0;  // points
  double length = 0;

  // Custom.WIDTHxLENGTH[pt|in|ft|mm|cm|m], points without a unit; nothing for any other text.
  static std::optional<CustomSize> parse(const std::string& choice);
  // The choice in points.
  std::string choice() const;
  // In millimetres, for people.
  std::string text() const;
};

// The shortest decimal text of a number, with a point in every locale.
std::string decimalText(float number);

}  // namespace cutline
