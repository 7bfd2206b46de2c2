#include "tests/pictures/PictureFiles.h"

#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "bundle/resources/pictures/Names.h"
#include "bundle/resources/pictures/Picture.h"

namespace cutline::pictures {

namespace {

constexpr int kClear = 48;  // of 255: a difference that an eye sees at once

bool differClearly(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) > kClear ||
         std::abs(qGreen(one) - qGreen(other)) > kClear ||
         std::abs(qBlue(one) - qBlue(other)) > kClear ||
         std::abs(qAlpha(one) - qAlpha(other)) > kClear;
}

}  // namespace

QString pathOf(std::string_view name) {
  return QString::fromStdString(CUTLINE_SOURCE_DIR "/bundle/resources/" + fileNameOf(name));
}

QImage imageOf(std::string_view name, double scale) {
  return imageOn(name, scale, QColor(Qt::transparent));
}

QImage imageOn(std::string_view name, double scale, const QColor& ground) {
  QSvgRenderer renderer(pathOf(name));
  if (!renderer.isValid()) return {};
  QImage image(QSizeF(kPictureWidth * scale, kPictureHeight * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(ground);
  QPainter painter(&image);
  renderer.render(&painter, QRectF(image.rect()));
  return image;
}

double differenceOf(const QImage& one, const QImage& other) {
  int different = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      different += differClearly(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
    }
  }
  return static_cast<double>(different) / (one.width() * one.height());
}

std::string mirroredNameOf(std::string_view name) {
  if (!name.ends_with("Off")) return {};
  const std::string mirrored = std::string(name.substr(0, name.size() - 3)) + "On";
  const bool exists =
      std::find(kPictureNames.begin(), kPictureNames.end(), mirrored) != kPictureNames.end();
  return exists ? mirrored : std::string();
}

}  // namespace cutline::pictures
