// What a camera says of its picture beside the pixels.
#pragma once

#include <string_view>

#include "composition/reader/PictureFacts.h"

namespace cutline {

// Takes orientation, and the density where there is none yet, from a block of Exif, which begins
// with its byte order; leaves alone what the block does not say well.
void readExif(std::string_view block, PictureFacts& facts);

}  // namespace cutline
