// The bitmaps that a build draws of the pictures.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <string>

#include "bundle/resources/pictures/Names.h"
#include "tests/pictures/PictureFiles.h"

namespace cutline::pictures {
namespace {

constexpr char kFolder[] =
    CUTLINE_BUILD_DIR "/lib/cutline/plugins/CutOptions.plugin/Contents/Resources/bitmaps/";

// A bitmap keeps colours apart from how much of them is seen, which may round each.
constexpr int kRounding = 1;

int farthestApart(const QImage& one, const QImage& other) {
  int farthest = 0;
  for (int y = 0; y < one.height(); ++y) {
    const uchar* const a = one.constScanLine(y);
    const uchar* const b = other.constScanLine(y);
    for (int at = 0; at < 4 * one.width(); ++at)
      farthest = std::max(farthest, std::abs(a[at] - b[at]));
  }
  return farthest;
}

TEST(Bitmaps, AreThePictures) {
  for (const std::string_view name : kPictureNames) {
    for (const int scale : {1, 2}) {
      const std::string file = std::string(name) + '@' + std::to_string(scale) + "x.png";
      const QImage bitmap(QString::fromStdString(kFolder + file));
      const QImage picture = imageOf(name, scale);
      ASSERT_FALSE(picture.isNull()) << name;
      ASSERT_EQ(bitmap.size(), picture.size()) << file;
      EXPECT_LE(farthestApart(bitmap.convertToFormat(picture.format()), picture), kRounding)
          << file;
    }
  }
}

}  // namespace
}  // namespace cutline::pictures
