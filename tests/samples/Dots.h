// Bitmaps as rows of letters, # for ink.
#pragma once

#include <string>
#include <vector>

#include "samples/printer/Bitmap.h"

namespace cutline::test {

inline printer::Bitmap bitmapOf(const std::vector<std::string>& rows) {
  printer::Bitmap bitmap(static_cast<std::uint32_t>(rows.front().size()),
                         static_cast<std::uint32_t>(rows.size()));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    for (std::size_t x = 0; x < rows[y].size(); ++x) {
      if (rows[y][x] == '#') bitmap.ink(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y));
    }
  }
  return bitmap;
}

inline std::vector<std::string> rowsOf(const printer::Bitmap& bitmap) {
  std::vector<std::string> rows(bitmap.height(), std::string(bitmap.width(), '.'));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    for (std::size_t x = 0; x < rows[y].size(); ++x) {
      if (bitmap.inkAt(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y)))
        rows[y][x] = '#';
    }
  }
  return rows;
}

}  // namespace cutline::test
