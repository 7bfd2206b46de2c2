// The sample labels, for tape of 24 mm.
#pragma once

#include <vector>

#include "samples/documents/generator/Drawing.h"
#include "samples/documents/generator/Face.h"

namespace cutline::documents {

// Twelve labels for the things of a laboratory, each with its own number and bar code.
std::vector<Drawing> assetLabels(const Faces& faces);

// A label for a parcel.
Drawing parcelLabel(const Faces& faces);

}  // namespace cutline::documents
