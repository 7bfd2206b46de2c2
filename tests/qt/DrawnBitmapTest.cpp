#include <gtest/gtest.h>

#include <QPainter>
#include <filesystem>

#include "qt/DrawnBitmap.h"
#include "qt/QtPicture.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

// A green picture of 40 by 20 points, with bitmaps in other colours, so that it tells what is
// drawn.
class DrawnBitmapTest : public testing::Test {
 protected:
  std::string addBitmap(const std::string& name, const QSize& size, const QColor& color) {
    const std::string path = files.add(QString::fromStdString("bitmaps/" + name), "");
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    EXPECT_TRUE(image.save(QString::fromStdString(path), "PNG"));
    return path;
  }
  QRgb colorDrawn(int width) const {
    QImage image(width, width / 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtPicture(mPicture).draw(painter, QRectF(image.rect()));
    return image.pixel(width / 2, width / 4);
  }

  PictureFiles files;
  const std::string mPicture = files.addPlain("plain.svg", "#00ff00");
  static constexpr QRgb kPicture = 0xff00ff00;
  static constexpr QRgb kOnce = 0xff0000ff;
  static constexpr QRgb kTwice = 0xffff0000;
};

TEST_F(DrawnBitmapTest, IsDrawnWhereItFits) {
  addBitmap("plain@1x.png", {40, 20}, QColor::fromRgb(kOnce));
  addBitmap("plain@2x.png", {80, 40}, QColor::fromRgb(kTwice));
  EXPECT_EQ(colorDrawn(40), kOnce);
  EXPECT_EQ(colorDrawn(80), kTwice);
  EXPECT_EQ(colorDrawn(60), kPicture);
  EXPECT_EQ(colorDrawn(20), kPicture);
  EXPECT_EQ(QtPicture(mPicture).size(), QSizeF(40, 20));
}

TEST_F(DrawnBitmapTest, NeedNotBeThere) {
  EXPECT_TRUE(sizeOfDrawn(mPicture).isEmpty());
  EXPECT_TRUE(drawnBitmap(mPicture, 1).isNull());
  EXPECT_EQ(colorDrawn(40), kPicture);
  addBitmap("plain@1x.png", {40, 20}, QColor::fromRgb(kOnce));
  EXPECT_EQ(colorDrawn(40), kOnce);
  EXPECT_EQ(colorDrawn(80), kPicture);
}

TEST_F(DrawnBitmapTest, IsLeftOutWhereItIsNoBitmapOfThePicture) {
  addBitmap("plain@1x.png", {40, 20}, QColor::fromRgb(kOnce));
  addBitmap("plain@2x.png", {81, 40}, QColor::fromRgb(kTwice));
  EXPECT_EQ(colorDrawn(80), kPicture);
  files.add("bitmaps/plain@2x.png", "no PNG");
  EXPECT_EQ(colorDrawn(80), kPicture);
  const std::string damaged = addBitmap("plain@2x.png", {80, 40}, QColor::fromRgb(kTwice));
  std::filesystem::resize_file(damaged, std::filesystem::file_size(damaged) / 2);
  EXPECT_EQ(colorDrawn(80), kPicture);
  files.add("bitmaps/plain@1x.png", "");
  EXPECT_EQ(colorDrawn(40), kPicture);
}

TEST_F(DrawnBitmapTest, IsOfVectorPicturesAlone) {
  addBitmap("other@1x.png", {40, 20}, QColor::fromRgb(kOnce));
  EXPECT_TRUE(sizeOfDrawn(mPicture.substr(0, mPicture.size() - 9) + "other.svg").isEmpty());
  EXPECT_TRUE(sizeOfDrawn(files.addPlain("other.png", "#000000")).isEmpty());
  EXPECT_TRUE(sizeOfDrawn("").isEmpty());
}

TEST_F(DrawnBitmapTest, KeepsWhatIsTransparent) {
  addBitmap("plain@1x.png", {40, 20}, QColor(255, 0, 0, 128));
  const QImage drawn = drawnBitmap(mPicture, 1);
  EXPECT_EQ(drawn.size(), QSize(40, 20));
  EXPECT_EQ(drawn.pixelColor(3, 3), QColor(255, 0, 0, 128));
}

TEST_F(DrawnBitmapTest, HasNoMoreDotsThanABundlesPicture) {
  addBitmap("plain@1x.png", {5000, 4000}, Qt::black);
  EXPECT_TRUE(sizeOfDrawn(mPicture).isEmpty());
  EXPECT_TRUE(drawnBitmap(mPicture, 1).isNull());
}

}  // namespace
}  // namespace cutline
