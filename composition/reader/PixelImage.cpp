#include "composition/reader/PixelImage.h"

#include <algorithm>

namespace cutline {
namespace {

constexpr int kByte = 8;
constexpr std::uint8_t kOpaque = 255;

}  // namespace

PixelPlane::PixelPlane()
    : mBytes("compressed pixels"), mFlate("pixels", &mBytes, Pl_Flate::a_deflate) {}

QPDFObjectHandle PixelPlane::image(QPDF& pdf, std::uint32_t width, std::uint32_t height,
                                   int components, int bits) {
  mFlate.finish();
  QPDFObjectHandle image = pdf.newStream();
  image.replaceStreamData(mBytes.getBufferSharedPointer(),
                          QPDFObjectHandle::newName("/FlateDecode"), QPDFObjectHandle::newNull());
  QPDFObjectHandle dictionary = image.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(width));
  dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(height));
  dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(bits));
  dictionary.replaceKey("/ColorSpace",
                        QPDFObjectHandle::newName(components == 1 ? "/DeviceGray" : "/DeviceRGB"));
  return image;
}

PixelImage::PixelImage(std::uint32_t width, std::uint32_t height, int channels)
    : mWidth(width),
      mHeight(height),
      mChannels(static_cast<std::size_t>(channels)),
      mColours(channels < 3 ? 1 : 3) {
  if (mChannels == mColours) return;
  mOpacity = std::make_unique<PixelPlane>();
  mColourRow.resize(width * mColours);
  mOpacityRow.resize(width);
}

void PixelImage::addRow(const std::uint8_t* pixels) {
  if (!mOpacity) return mColour.add(pixels, mWidth * mColours);
  for (std::size_t x = 0; x < mWidth; ++x) {
    std::copy_n(pixels + x * mChannels, mColours,
                mColourRow.begin() + static_cast<long>(x * mColours));
    mOpacityRow[x] = pixels[x * mChannels + mColours];
  }
  mIsOpaque =
      mIsOpaque && std::ranges::all_of(mOpacityRow, [](auto each) { return each == kOpaque; });
  mColour.add(mColourRow.data(), mColourRow.size());
  mOpacity->add(mOpacityRow.data(), mOpacityRow.size());
}

QPDFObjectHandle PixelImage::image(QPDF& pdf) {
  QPDFObjectHandle image = mColour.image(pdf, mWidth, mHeight, static_cast<int>(mColours), kByte);
  // What can be seen through takes drivers much longer: only where it is.
  if (mOpacity && !mIsOpaque)
    image.getDict().replaceKey("/SMask", mOpacity->image(pdf, mWidth, mHeight, 1, kByte));
  return image;
}

}  // namespace cutline
