// Pixels, taken row by row, compressed at once, as an image of a PDF.
#pragma once

#include <cstdint>
#include <memory>
#include <qpdf/Pl_Buffer.hh>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDF.hh>
#include <vector>

namespace cutline {

// One plane of an image: its colours or its opacity.
class PixelPlane {
 public:
  PixelPlane();
  void add(const std::uint8_t* bytes, std::size_t count) { mFlate.write(bytes, count); }
  // An image of what was added; nothing can be added any more.
  QPDFObjectHandle image(QPDF& pdf, std::uint32_t width, std::uint32_t height, int components,
                         int bits);

 private:
  Pl_Buffer mBytes;
  Pl_Flate mFlate;
};

class PixelImage {
 public:
  // Channels of 8 bits: 1 for grey, 2 for grey with opacity, 3 and 4 for red, green and blue.
  PixelImage(std::uint32_t width, std::uint32_t height, int channels);

  // `pixels` is the next row from above.
  void addRow(const std::uint8_t* pixels);
  QPDFObjectHandle image(QPDF& pdf);

 private:
  std::uint32_t mWidth;
  std::uint32_t mHeight;
  std::size_t mChannels;
  std::size_t mColours;
  PixelPlane mColour;
  std::unique_ptr<PixelPlane> mOpacity;
  bool mIsOpaque = true;
  std::vector<std::uint8_t> mColourRow;
  std::vector<std::uint8_t> mOpacityRow;
};

}  // namespace cutline
