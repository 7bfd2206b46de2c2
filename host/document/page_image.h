// Pictures of pages, from the toolkit's form to that of the DocumentRenderer port.
#pragma once

#include "base/Result.h"
#include "host/core/DocumentRenderer.h"
#include "platform/ports/Geometry.h"

class QImage;

namespace cutline {

// On white where the picture is transparent.
PageImage pageImageFrom(const QImage& image);

// An error when there is no such page (its size is empty) or its picture would be too large.
Result<Done> checkPageImage(const Size& pageSize, double scale);

}  // namespace cutline
