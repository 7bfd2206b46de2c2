// One figure, which looks different from each side and in a mirror, in every kind of document.
#pragma once

#include <string>
#include <vector>

namespace cutline::test {

// The figure's page in points, either wide or tall. Pictures have 180 pixels an inch, the sample
// printers' dots.
struct FigureSize {
  double width;
  double height;
};
inline constexpr FigureSize kWideFigure{120, 56};
inline constexpr FigureSize kTallFigure{56, 120};

struct FigureKind {
  const char* name;  // also the file's ending, after a dash
  void (*write)(const std::string& path, FigureSize size);
  int pages = 1;
};

// PDF, PostScript, PNG, JPEG (plain, and turned by what it says of its orientation), TIFF of two
// pages, WebP, SVG and text. Writing throws when it fails. Text has no figure and no size of its
// own: it says a few words.
const std::vector<FigureKind>& figureKinds();

}  // namespace cutline::test
