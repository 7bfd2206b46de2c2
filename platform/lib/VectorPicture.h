// Tells pictures that are drawn from others, for toolkits.
#pragma once

#include <string_view>

namespace cutline {

// Whether the bytes begin as an SVG document does: XML whose outermost element is `svg`, in
// whatever namespace. What comes behind its name is not looked at.
bool isVectorPicture(std::string_view bytes) noexcept;

}  // namespace cutline
