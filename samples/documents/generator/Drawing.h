// What is on a label: filled boxes and lines of text, one over the other. Lengths are millimetres,
// y grows downwards from the label's upper left corner.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace cutline::documents {

enum class Shade { Black, White };

struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  Shade shade = Shade::Black;
};

struct Text {
  double x = 0;
  double baseline = 0;
  double size = 0;
  bool bold = false;
  std::string letters;  // ASCII
  Shade shade = Shade::Black;
};

struct Drawing {
  double width = 0;
  double height = 0;
  std::vector<std::variant<Box, Text>> marks;
};

}  // namespace cutline::documents
