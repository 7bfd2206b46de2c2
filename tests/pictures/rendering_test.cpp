// What a person sees of the pictures: each is drawn without complaint, whole, and like no other.
#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "bundle/resources/pictures/Names.h"
#include "bundle/resources/pictures/Palette.h"
#include "tests/pictures/PictureFiles.h"

namespace cutline::pictures {
namespace {

constexpr double kListScale = 0.5;       // as in the list of presets
constexpr double kClearlyApart = 0.008;  // of all pixels
constexpr int kMargin = 40;

QStringList& messages() {
  static QStringList list;
  return list;
}

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  messages() += message;
}

// Collects what the toolkit says for as long as it lives.
class MessageKeeper {
 public:
  MessageKeeper() : mFormer(qInstallMessageHandler(keepMessage)) { messages().clear(); }
  MessageKeeper(const MessageKeeper&) = delete;
  MessageKeeper& operator=(const MessageKeeper&) = delete;
  ~MessageKeeper() { qInstallMessageHandler(mFormer); }

 private:
  QtMessageHandler mFormer;
};

// The picture with a margin on each side, one pixel a point.
QImage imageWithSurroundings(std::string_view name) {
  QSvgRenderer renderer(pathOf(name));
  renderer.setViewBox(
      QRectF(-kMargin, -kMargin, kPictureWidth + 2 * kMargin, kPictureHeight + 2 * kMargin));
  QImage image(renderer.viewBox().size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter, QRectF(image.rect()));
  return image;
}

int paintedPixelsOf(const QImage& image, const QRect& except) {
  int painted = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      painted += !except.contains(x, y) && qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    }
  }
  return painted;
}

double luminanceOf(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrastOf(const QColor& one, const QColor& other) {
  const double first = luminanceOf(one) + 0.05;
  const double second = luminanceOf(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QColor colourOf(Colour colour) {
  return QColor(QString::fromUtf8(colour.data(), static_cast<qsizetype>(colour.size())));
}

TEST(PictureRendering, EachIsReadAndDrawnWithoutAWarningInItsOwnSize) {
  const MessageKeeper keeper;
  for (const std::string_view name : kPictureNames) {
    const QSvgRenderer renderer(pathOf(name));
    EXPECT_TRUE(renderer.isValid()) << name;
    EXPECT_EQ(renderer.defaultSize(), QSize(264, 84)) << name;
    EXPECT_FALSE(imageOf(name, 2).isNull()) << name;
  }
  EXPECT_TRUE(messages().isEmpty()) << messages().join('\n').toStdString();
}

TEST(PictureRendering, EachShowsATapeAndAPrinterOverATransparentGround) {
  for (const std::string_view name : kPictureNames) {
    const QImage image = imageOf(name, 1);
    const double painted =
        static_cast<double>(paintedPixelsOf(image, {})) / (image.width() * image.height());
    EXPECT_GT(painted, 0.35) << name;
    EXPECT_LT(painted, 0.8) << name;
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << name;
    EXPECT_EQ(qAlpha(image.pixel(263, 83)), 0) << name;
  }
}

TEST(PictureRendering, NonePaintsOutsideItsBox) {
  const QRect box(kMargin, kMargin, static_cast<int>(kPictureWidth),
                  static_cast<int>(kPictureHeight));
  for (const std::string_view name : kPictureNames) {
    const QImage image = imageWithSurroundings(name);
    EXPECT_EQ(paintedPixelsOf(image, box), 0) << name;
    EXPECT_GT(paintedPixelsOf(image, {}), 0) << name;
  }
}

TEST(PictureRendering, AnyTwoAreClearlyDifferentAsSmallAsInAList) {
  for (const QColor ground : {QColor(Qt::white), QColor(0x2b, 0x2b, 0x2b)}) {
    for (std::size_t i = 0; i < kPictureNames.size(); ++i) {
      const QImage one = imageOn(kPictureNames.at(i), kListScale, ground);
      for (std::size_t k = i + 1; k < kPictureNames.size(); ++k) {
        const QImage other = imageOn(kPictureNames.at(k), kListScale, ground);
        EXPECT_GT(differenceOf(one, other), kClearlyApart)
            << kPictureNames.at(i) << ' ' << kPictureNames.at(k);
      }
    }
  }
}

TEST(PictureRendering, ColoursOnTheDialogsGroundReadInLightAndInDark) {
  for (const Colour colour : {kEdge, kCut, kHalfCut, kHand}) {
    for (const char* const ground : {"#ffffff", "#efefef", "#2b2b2b"}) {
      EXPECT_GE(contrastOf(colourOf(colour), QColor(ground)), 3.0) << colour << " on " << ground;
    }
  }
}

TEST(PictureRendering, ColoursOnTheTapeReadOnIt) {
  EXPECT_GE(contrastOf(colourOf(kInk), colourOf(kPaper)), 7.0);
  EXPECT_GE(contrastOf(colourOf(kInk), colourOf(kWeave)), 7.0);
  EXPECT_GE(contrastOf(colourOf(kHand), colourOf(kFabric)), 3.0);
  EXPECT_GE(contrastOf(colourOf(kSign), colourOf(kPaper)), 4.5);
}

TEST(PictureRendering, EdgesOfTheTapeAreSharp) {
  // An edge on the middle of a pixel leaves the pixels beside it alone.
  const QImage image = imageOn("AHCMOffOffOffOff", 1, Qt::white);
  const int x = 190;
  const int top = 28;
  EXPECT_EQ(image.pixelColor(x, top - 1), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(x, top), colourOf(kEdge));
  EXPECT_EQ(image.pixelColor(x, top + 1), colourOf(kPaper));
}

}  // namespace
}  // namespace cutline::pictures
