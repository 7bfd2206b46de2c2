// Bitmaps that a bundle has of its vector pictures, drawn when it was built. Reading one takes a
// fraction of the time that the picture takes, with the library that draws it.
#pragma once

#include <QImage>
#include <QSize>
#include <string>

namespace cutline {

// Beside the pictures, where nobody looks for pictures by their names.
inline constexpr char kBitmapFolder[] = "bitmaps";

// There NAME@1x.png has a dot for each point of NAME.svg, NAME@2x.png two in each direction.
inline constexpr int kDrawnScales[] = {1, 2};

// The size of the vector picture, in points, as its bitmap has it; empty where there is none, or no
// vector picture that it could be of.
QSize sizeOfDrawn(const std::string& picture);

// The bitmap of so many dots for a point; null where there is none that can be read.
QImage drawnBitmap(const std::string& picture, int scale);

}  // namespace cutline
