// The pictures of the cut panel's preview.
#pragma once

#include <string>
#include <string_view>

#include "bundle/resources/pictures/Flags.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

// The file of the picture with this name (of the table in Names.h), without its directory.
std::string fileNameOf(std::string_view name);

// The contents of that file.
std::string pictureOf(std::string_view name);

// Paper labels that come from a roll.
void drawRollPicture(Svg& svg, const Flags& flags);

// Tape of every kind.
void drawTapePicture(Svg& svg, const Flags& flags);

}  // namespace cutline::pictures
