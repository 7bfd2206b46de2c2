// Pictures of composed labels, as they are seen on the strip.
#pragma once

#include <QImage>

#include "composition/LabelPage.h"
#include "composition/PageDrawer.h"

namespace cutline {

// How a printer's labels look.
struct PrinterLook {
  bool isMonochrome = false;  // colours come out as greys
  friend bool operator==(const PrinterLook&, const PrinterLook&) = default;
};

// The label as a reader holds it, at the scale of `page` in pixels a point. What is inked outside
// the printable area, and so will not be printed, is red.
QImage pictureOf(const PageImage& page, double scale, const LabelPage& label,
                 const PrinterLook& look);

// What of the picture lies on the tape. Where it is black, white and grey alone that is its ink,
// black with alpha, which is drawn much faster than a picture that is multiplied with the tape's
// colour; any other is answered as it is, without alpha.
QImage inkAlone(const QImage& picture);

}  // namespace cutline
