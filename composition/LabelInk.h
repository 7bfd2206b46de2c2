// What of a composed label is inked, as a picture of it shows.
#pragma once

#include <cstdint>
#include <optional>

#include "composition/LabelPage.h"
#include "composition/Layout.h"
#include "composition/PageDrawer.h"

namespace cutline {

// As many labels of a job are looked at; the rest are taken to be like them.
inline constexpr int kMostInks = 200;

// From 0 for white to 255 for black.
int inkIn(std::uint32_t pixel) noexcept;

// The part of the label that is inked, in the label's coordinates. A picture knows it to a pixel:
// the ink reaches at least as far as `surely`, and at most as far as `perhaps`.
struct Ink {
  Area surely;
  Area perhaps;
};
// Nothing on an empty label. `scale` is that of `page` in pixels a point.
std::optional<Ink> inkOf(const PageImage& page, double scale, const LabelPage& label);

// The scale at which a label is drawn to find its ink: fine enough for its edges, and small.
double inkScale(const LabelPage& label);

}  // namespace cutline
