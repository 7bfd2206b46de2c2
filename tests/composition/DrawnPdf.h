// PDF files whose pages show what a test says.
#pragma once

#include <string>
#include <vector>

namespace cutline::test {

struct DrawnPage {
  double width = 100;  // points
  double height = 50;
  std::string contents;  // as a page's stream has it: "0 0 10 10 re f"
};

// The file's bytes.
std::string drawnPdf(const std::vector<DrawnPage>& pages);

}  // namespace cutline::test
