// How failures show values of the ports: as they are written in a test. To be included wherever one
// of these is compared.
#pragma once

#include <ostream>

#include "platform/ports/Geometry.h"
#include "platform/ports/TextField.h"

namespace cutline {

inline void PrintTo(const Point& point, std::ostream* out) {
  *out << '{' << point.x << ", " << point.y << '}';
}

inline void PrintTo(const Size& size, std::ostream* out) {
  *out << '{' << size.width << ", " << size.height << '}';
}

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << '{';
  PrintTo(rect.origin, out);
  *out << ", ";
  PrintTo(rect.size, out);
  *out << '}';
}

inline void PrintTo(const TextRange& range, std::ostream* out) {
  *out << '{' << range.location << ", " << range.length << '}';
}

}  // namespace cutline
