#include <QPainter>
#include <filesystem>

#include "platform/ports/Drawing.h"
#include "qt/QtPicture.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

class QtPictureTest : public testing::Test {
 protected:
  static QImage painted(QtPicture& picture, const QRectF& target) {
    QImage image(80, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.draw(painter, target);
    painter.end();
    return image;
  }
  PictureFiles files;
  QtToolkit toolkit;
};

TEST_F(QtPictureTest, ImageTellsItsSizeAndFile) {
  const std::string path = files.addPlain("plain.svg", "#00ff00");
  const auto image = toolkit.imageWithContentsOfFile(path);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->size(), (Size{40, 20}));
  EXPECT_EQ(image->path(), path);
}

TEST_F(QtPictureTest, WhatIsNoPictureHasNoSizeAndDrawsNothing) {
  for (const std::string& path : {files.add("text.svg", "no picture"),
                                  files.add("other.svg", "<html/>"), files.add("empty.png", "")}) {
    const auto image = toolkit.imageWithContentsOfFile(path);
    ASSERT_NE(image, nullptr) << path;
    EXPECT_EQ(image->size(), Size()) << path;
    QtPicture picture(path);
    EXPECT_EQ(painted(picture, {0, 0, 80, 40}).pixel(40, 20), 0xffffffff) << path;
  }
}

TEST_F(QtPictureTest, DamagedPictureDrawsNothing) {
  QtPicture picture(files.add("damaged.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\"><rect"));
  const QImage image = painted(picture, {0, 0, 80, 40});
  EXPECT_EQ(image.pixel(40, 20), 0xffffffff);
}

TEST_F(QtPictureTest, ABitmapThatIsNotWholeDrawsNothing) {
  QImage whole(400, 200, QImage::Format_RGB32);
  whole.fill(Qt::black);
  QtPicture picture(files.add("half.bmp", ""));
  ASSERT_TRUE(whole.save(QString::fromStdString(picture.path())));
  std::filesystem::resize_file(picture.path(), 100'000);
  EXPECT_EQ(painted(picture, {0, 0, 80, 40}).pixel(40, 20), 0xffffffff);
}

TEST_F(QtPictureTest, IsReadOnlyOnce) {
  const std::string path = files.addPlain("plain.svg", "#00ff00");
  QtPicture picture(path);
  EXPECT_EQ(picture.size(), QSizeF(40, 20));
  files.addPlain("plain.svg", "#ff0000");
  EXPECT_EQ(painted(picture, {0, 0, 80, 40}).pixel(40, 20), 0xff00ff00);
}

TEST_F(QtPictureTest, FitsIntoRoomOfOtherProportions) {
  QtPicture picture(files.addPlain("plain.svg", "#00ff00"));
  EXPECT_EQ(picture.fittedInto({0, 0, 80, 80}), QRectF(0, 20, 80, 40));
  EXPECT_EQ(picture.fittedInto({10, 0, 80, 20}), QRectF(30, 0, 40, 20));
  QtPicture missing("/nonexistent/picture.svg");
  EXPECT_TRUE(missing.fittedInto({0, 0, 80, 80}).isEmpty());
}

TEST_F(QtPictureTest, DrawsIntoItsTargetOnly) {
  QtPicture picture(files.addPlain("plain.svg", "#00ff00"));
  const QImage image = painted(picture, {20, 10, 40, 20});
  EXPECT_EQ(image.pixel(19, 20), 0xffffffff);
  EXPECT_EQ(image.pixel(20, 10), 0xff00ff00);
  EXPECT_EQ(image.pixel(59, 29), 0xff00ff00);
  EXPECT_EQ(image.pixel(60, 20), 0xffffffff);
}

TEST_F(QtPictureTest, ManySizesAreAllDrawnRight) {
  QtPicture picture(files.addPlain("plain.svg", "#00ff00"));
  for (const int width : {80, 60, 40, 20, 80, 20}) {
    const QImage image = painted(picture, QRectF(0, 0, width, width / 2.0));
    EXPECT_EQ(image.pixel(width - 1, width / 2 - 1), 0xff00ff00) << width;
  }
}

}  // namespace
}  // namespace cutline
