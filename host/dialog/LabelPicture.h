// Pictures of composed labels: as they are seen on the strip, and what of them is inked.
#pragma once

#include <QImage>
#include <optional>

#include "composition/LabelPage.h"
#include "composition/Layout.h"
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

// The part of the label that is inked, in the label's coordinates. A picture knows it to a pixel:
// the ink reaches at least as far as `surely`, and at most as far as `perhaps`.
struct Ink {
  Area surely;
  Area perhaps;
};
// Nothing on an empty label.
std::optional<Ink> inkOf(const PageImage& page, double scale, const LabelPage& label);

}  // namespace cutline
