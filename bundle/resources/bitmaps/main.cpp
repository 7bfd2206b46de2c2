// cutline_bitmaps FOLDER PICTURE.svg...
// Draws each vector picture into FOLDER as bitmaps: PICTURE@1x.png has a dot for each of its
// points, PICTURE@2x.png has two in each direction. The host draws them where they fit, which takes
// a fraction of the time (qt/DrawnBitmap.h).
#include <png.h>

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kScales[] = {1, 2};

// With the rights of an installation: a loader refuses what others may write.
constexpr QFile::Permissions kRights =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;

// Each row as it is, not as it differs from others: that is read in half the time, and these
// pictures become no larger.
bool write(const QImage& image, const QString& file) {
  png_image out = {};
  out.version = PNG_IMAGE_VERSION;
  out.width = static_cast<png_uint_32>(image.width());
  out.height = static_cast<png_uint_32>(image.height());
  out.format = PNG_FORMAT_RGBA;
  out.flags = PNG_IMAGE_FLAG_FAST;
  const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
  const auto row = static_cast<png_int_32>(pixels.bytesPerLine());
  return png_image_write_to_file(&out, QFile::encodeName(file).constData(), 0, pixels.constBits(),
                                 row, nullptr) != 0 &&
         QFile::setPermissions(file, kRights);
}

QImage drawn(QSvgRenderer& picture, int scale) {
  QImage image(picture.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  picture.render(&painter);
  painter.end();
  return image;
}

bool drawAll(const QString& folder, const QString& path) {
  QSvgRenderer picture(path);
  if (!picture.isValid()) return false;
  for (const int scale : kScales) {
    const QString name = QStringLiteral("%1/%2@%3x.png");
    const QString file = name.arg(folder, QFileInfo(path).completeBaseName()).arg(scale);
    if (!write(drawn(picture, scale), file)) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  for (int at = 2; at < argc; ++at) {
    if (drawAll(QFile::decodeName(argv[1]), QFile::decodeName(argv[at]))) continue;
    std::fprintf(stderr, "cutline_bitmaps: %s cannot be drawn\n", argv[at]);
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
