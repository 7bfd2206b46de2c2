#include "composition/reader/PngStream.h"

#include <string>

namespace cutline {
namespace {

constexpr std::size_t kSignature = 8;
constexpr std::size_t kNumber = 4;  // the length before a chunk, its name, the checksum behind it
constexpr int kPngPredictors = 15;

std::size_t numberAt(std::string_view bytes) {
  std::size_t value = 0;
  for (std::size_t at = 0; at < kNumber; ++at)
    value = value << 8 | static_cast<unsigned char>(bytes[at]);
  return value;
}

// What the chunks of pixels hold, one behind the other.
std::string packedPixels(std::string_view file) {
  std::string packed;
  file.remove_prefix(kSignature);
  while (file.size() >= 3 * kNumber) {
    const std::size_t length = numberAt(file);
    const std::string_view name = file.substr(kNumber, kNumber);
    if (length > file.size() - 3 * kNumber) break;
    if (name == "IDAT") packed += file.substr(2 * kNumber, length);
    file.remove_prefix(length + 3 * kNumber);
  }
  return packed;
}

QPDFObjectHandle palette(png_structp png, png_infop info) {
  png_colorp colours = nullptr;
  int count = 0;
  png_get_PLTE(png, info, &colours, &count);
  std::string bytes;
  for (int at = 0; at < count; ++at) {
    for (const png_byte part : {colours[at].red, colours[at].green, colours[at].blue})
      bytes += static_cast<char>(part);
  }
  return QPDFObjectHandle::newArray(
      {QPDFObjectHandle::newName("/Indexed"), QPDFObjectHandle::newName("/DeviceRGB"),
       QPDFObjectHandle::newInteger(count - 1), QPDFObjectHandle::newString(bytes)});
}

QPDFObjectHandle colourSpace(png_structp png, png_infop info) {
  switch (png_get_color_type(png, info)) {
    case PNG_COLOR_TYPE_PALETTE:
      return palette(png, info);
    case PNG_COLOR_TYPE_GRAY:
      return QPDFObjectHandle::newName("/DeviceGray");
    default:
      return QPDFObjectHandle::newName("/DeviceRGB");
  }
}

}  // namespace

bool canGoAlong(png_structp png, png_infop info) {
  constexpr int kByte = 8;
  return png_get_interlace_type(png, info) == PNG_INTERLACE_NONE &&
         png_get_bit_depth(png, info) <= kByte &&
         (png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA) == 0 &&
         png_get_valid(png, info, PNG_INFO_tRNS) == 0;
}

QPDFObjectHandle packedImage(QPDF& pdf, std::string_view file, png_structp png, png_infop info) {
  const auto number = [](long long value) { return QPDFObjectHandle::newInteger(value); };
  QPDFObjectHandle packing = QPDFObjectHandle::newDictionary();
  packing.replaceKey("/Predictor", number(kPngPredictors));
  packing.replaceKey("/Colors", number(png_get_channels(png, info)));
  packing.replaceKey("/BitsPerComponent", number(png_get_bit_depth(png, info)));
  packing.replaceKey("/Columns", number(png_get_image_width(png, info)));
  QPDFObjectHandle image = pdf.newStream();
  image.replaceStreamData(packedPixels(file), QPDFObjectHandle::newName("/FlateDecode"), packing);
  QPDFObjectHandle dictionary = image.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dictionary.replaceKey("/Width", number(png_get_image_width(png, info)));
  dictionary.replaceKey("/Height", number(png_get_image_height(png, info)));
  dictionary.replaceKey("/BitsPerComponent", number(png_get_bit_depth(png, info)));
  dictionary.replaceKey("/ColorSpace", colourSpace(png, info));
  return image;
}

}  // namespace cutline
