// The pictures' colours. A colour that stands on the dialog's own background is of middle
// brightness, so that it reads on a light and on a dark one; the others stand on the light tape.
#pragma once

#include <string_view>

namespace cutline::pictures {

using Colour = std::string_view;

// On the tape
inline constexpr Colour kPaper = "#fdfdfb";
inline constexpr Colour kPaperShade = "#d3d8dd";
inline constexpr Colour kBacking = "#f2b544";
inline constexpr Colour kInk = "#1f2a36";
inline constexpr Colour kFaintInk = "#9aa5b0";
inline constexpr Colour kFabric = "#e6eef8";
inline constexpr Colour kWeave = "#b4c6dd";
inline constexpr Colour kStitch = "#5f83b5";

// On any background
inline constexpr Colour kEdge = "#76808b";
inline constexpr Colour kCut = "#e5432d";
inline constexpr Colour kHalfCut = "#cc6f0c";
inline constexpr Colour kHand = "#1c8f6b";

// The printer
inline constexpr Colour kBody = "#8e99a5";
inline constexpr Colour kBodyLight = "#b9c2cb";
inline constexpr Colour kBodyDark = "#4b5561";
inline constexpr Colour kSign = "#1d62b8";

}  // namespace cutline::pictures
