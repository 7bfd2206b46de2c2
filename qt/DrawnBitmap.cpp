#include "qt/DrawnBitmap.h"

#include <png.h>

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/lib/ResourceFile.h"

namespace cutline {

namespace {

constexpr std::string_view kVector = ".svg";

std::string bitmapPath(const std::string& picture, int scale) {
  const std::filesystem::path path(picture);
  const std::string name = path.stem().string() + '@' + std::to_string(scale) + "x.png";
  return path.parent_path() / kBitmapFolder / name;
}

// A PNG of a bundle's, as libpng reads it at once.
class Bitmap {
 public:
  explicit Bitmap(const std::string& path) : mBytes(readResource(path)) {
    mImage.version = PNG_IMAGE_VERSION;
    if (!mBytes || !png_image_begin_read_from_memory(&mImage, mBytes->data(), mBytes->size()))
      mImage.width = mImage.height = 0;
  }
  ~Bitmap() { png_image_free(&mImage); }
  Bitmap(const Bitmap&) = delete;
  Bitmap& operator=(const Bitmap&) = delete;

  // Empty where it is none, or has more dots than a bundle's picture.
  QSize size() const {
    if (static_cast<double>(mImage.width) * mImage.height > kMostPicturePixels) return {};
    return {static_cast<int>(mImage.width), static_cast<int>(mImage.height)};
  }

  QImage read() {
    QImage image(size(), QImage::Format_ARGB32);
    if (image.isNull()) return image;
    mImage.format =
        QSysInfo::ByteOrder == QSysInfo::LittleEndian ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    const auto row = static_cast<png_int_32>(image.bytesPerLine());
    if (!png_image_finish_read(&mImage, nullptr, image.bits(), row, nullptr)) return {};
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
  }

 private:
  std::optional<std::string> mBytes;
  png_image mImage = {};
};

}  // namespace

QSize sizeOfDrawn(const std::string& picture) {
  if (!picture.ends_with(kVector) || !isResourceFile(picture)) return {};
  return Bitmap(bitmapPath(picture, 1)).size();
}

QImage drawnBitmap(const std::string& picture, int scale) {
  return Bitmap(bitmapPath(picture, scale)).read();
}

}  // namespace cutline
