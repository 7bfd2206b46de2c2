// What has to be known of a JPEG before its bytes are given on.
#pragma once

#include <string_view>

#include "composition/reader/PictureFacts.h"

namespace cutline {

struct JpegFacts {
  PictureFacts picture;
  int components = 0;
  // Four components of which more means less ink.
  bool isInverted = false;
};

// Throws a Refusal for what is no JPEG, or of a kind that a PDF cannot hold.
JpegFacts jpegFacts(std::string_view bytes);

// Whether all of the picture is there and can be decoded: what is cut short or broken, every reader
// draws in its own way.
bool isWholeJpeg(std::string_view bytes);

}  // namespace cutline
