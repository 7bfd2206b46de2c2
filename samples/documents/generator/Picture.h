// A drawing as a picture.
#pragma once

#include <QImage>

#include "samples/documents/generator/Drawing.h"
#include "samples/documents/generator/Face.h"

namespace cutline::documents {

// In grey, and told to be as large as the drawing.
QImage pictureOf(const Drawing& drawing, const Faces& faces, double dotsPerInch);

}  // namespace cutline::documents
