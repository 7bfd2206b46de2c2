// Writes a picture of few colours row by row, so that a long strip never lies in memory as a whole.
#pragma once

#include <png.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <span>

namespace cutline::printer {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
};

struct PngFormat {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint32_t dotsPerInchX = 0;
  std::uint32_t dotsPerInchY = 0;
  std::span<const Rgb> palette;  // at most 256
};

class PngWriter {
 public:
  // The stream stays the caller's.
  explicit PngWriter(std::FILE* stream);
  ~PngWriter();
  PngWriter(const PngWriter&) = delete;
  PngWriter& operator=(const PngWriter&) = delete;

  // Each gives no when the picture can't be written.
  bool begin(const PngFormat& format);
  bool row(std::span<const std::uint8_t> colours);
  bool end();

 private:
  std::FILE* mStream;
  png_structp mPng = nullptr;
  png_infop mInfo = nullptr;
};

}  // namespace cutline::printer
