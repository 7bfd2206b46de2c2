#include <QAccessible>
#include <QPainter>
#include <QSvgRenderer>
#include <functional>

#include "platform/ports/Drawing.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

constexpr QRgb kGround = 0xffffffff;
constexpr QRgb kGreen = 0xff00ff00;

struct Client : CustomViewClient {
  bool isFlipped() const noexcept override { return flipped; }
  void drawRect(const Rect& dirty, DrawingContext& context) noexcept override {
    lastDirty = dirty;
    ++drawn;
    if (draw) draw(context);
  }
  std::string accessibilityLabel() const noexcept override { return words; }
  std::string words;
  bool flipped = false;
  int drawn = 0;
  Rect lastDirty;
  std::function<void(DrawingContext&)> draw;
};

class QtCustomViewTest : public QtPanelFixture {
 protected:
  // The view as it would look on a screen with this pixel ratio.
  QImage shown(double scale = 1) {
    QImage image(widget->size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(kGround);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
  }
  // The rectangle that has the colour, in pixels.
  static QRect placeOf(QRgb colour, const QImage& image) {
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == colour) place |= QRect(x, y, 1, 1);
      }
    }
    return place;
  }
  void drawGreen(const Point& point, const Rect& fromRect = {}, double fraction = 1,
                 CompositingOperation operation = CompositingOperation::sourceOver) {
    client.draw = [=, this](DrawingContext& context) {
      context.drawAtPoint(*green, point, fromRect, operation, fraction);
    };
  }

  PictureFiles pictures;
  std::shared_ptr<Image> green =
      toolkit.imageWithContentsOfFile(pictures.addPlain("green.svg", "#00ff00"));
  Client client;
  std::shared_ptr<CustomView> view = toolkit.createCustomView({{10, 20}, {100, 60}}, &client);
  QWidget* widget = put<QWidget>(view);
};

TEST_F(QtCustomViewTest, DrawsWithTheLowerLeftCornerAtThePoint) {
  drawGreen({5, 10});
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(5, 60 - 10 - 20, 40, 20));
}

TEST_F(QtCustomViewTest, FlippedClientCountsDownwards) {
  client.flipped = true;
  drawGreen({5, 30});
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(5, 10, 40, 20));
}

TEST_F(QtCustomViewTest, DrawsAPartOfTheImage) {
  drawGreen({0, 0}, {{10, 5}, {8, 6}});
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(0, 54, 8, 6));
}

TEST_F(QtCustomViewTest, PartOfTheImageIsCountedUpwards) {
  const auto twoColours = toolkit.imageWithContentsOfFile(pictures.add(
      "two.svg",
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10" viewBox="0 0 10 10">
         <rect width="10" height="10" fill="#ff0000"/>
         <rect y="8" width="10" height="2" fill="#00ff00"/></svg>)"));
  client.draw = [&](DrawingContext& context) {
    context.drawAtPoint(*twoColours, {0, 0}, {{0, 0}, {10, 4}}, CompositingOperation::copy, 1);
  };
  const QImage image = shown();
  EXPECT_EQ(placeOf(kGreen, image), QRect(0, 58, 10, 2));
  EXPECT_EQ(placeOf(0xffff0000, image), QRect(0, 56, 10, 2));
}

TEST_F(QtCustomViewTest, FractionIsTheOpacity) {
  drawGreen({0, 0}, {}, 0.5);
  const QColor mixed = QColor(shown().pixel(5, 50));
  EXPECT_NEAR(mixed.red(), 127, 2);
  EXPECT_EQ(mixed.green(), 255);
  drawGreen({0, 0}, {}, 0);
  EXPECT_TRUE(placeOf(kGreen, shown()).isNull());
}

TEST_F(QtCustomViewTest, PictureIsCrispAtOneAndTwoPixelsAPoint) {
  const std::string path = pictures.add(
      "tape.svg",
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="80" height="40" viewBox="0 0 80 40">
         <circle cx="20" cy="20" r="13" fill="#3366cc"/><path d="M5 5L75 35" stroke="#cc3333"/></svg>)");
  const auto image = toolkit.imageWithContentsOfFile(path);
  client.draw = [&](DrawingContext& context) {
    context.drawAtPoint(*image, {4, 8}, {}, CompositingOperation::sourceOver, 1);
  };
  QSvgRenderer renderer(QString::fromStdString(path));
  for (const double scale : {1.0, 2.0}) {
    QImage direct(QSize(80, 40) * scale, QImage::Format_ARGB32_Premultiplied);
    direct.fill(kGround);
    QPainter painter(&direct);
    QImage alone(direct.size(), QImage::Format_ARGB32_Premultiplied);
    alone.fill(Qt::transparent);
    QPainter alonePainter(&alone);
    renderer.render(&alonePainter);
    alonePainter.end();
    painter.drawImage(0, 0, alone);
    painter.end();
    const QRect place(QPoint(4, 60 - 8 - 40) * scale, direct.size());
    QImage drawn = shown(scale).copy(place);
    drawn.setDevicePixelRatio(1);
    EXPECT_EQ(drawn, direct) << "at " << scale;
  }
}

TEST_F(QtCustomViewTest, BitmapsAreDrawnToo) {
  QImage bitmap(6, 4, QImage::Format_RGB32);
  bitmap.fill(kGreen);
  const QString path = QString::fromStdString(pictures.add("bitmap.png", {}));
  ASSERT_TRUE(bitmap.save(path));
  green = toolkit.imageWithContentsOfFile(path.toStdString());
  ASSERT_NE(green, nullptr);
  EXPECT_EQ(green->size(), (Size{6, 4}));
  drawGreen({0, 0});
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(0, 56, 6, 4));
}

TEST_F(QtCustomViewTest, DirtyRectIsInTheViewsCoordinates) {
  show();
  client.drawn = 0;
  widget->repaint(0, 0, 100, 15);
  EXPECT_EQ(client.drawn, 1);
  EXPECT_EQ(client.lastDirty, (Rect{{0, 45}, {100, 15}}));
}

TEST_F(QtCustomViewTest, NeedsDisplayDrawsSoonButNotAtOnce) {
  show();
  QApplication::processEvents();
  client.drawn = 0;
  view->setNeedsDisplay(true);
  view->setNeedsDisplay(true);
  EXPECT_EQ(client.drawn, 0);
  QApplication::processEvents();
  EXPECT_EQ(client.drawn, 1);
  view->setNeedsDisplay(false);
  QApplication::processEvents();
  EXPECT_EQ(client.drawn, 1);
}

TEST_F(QtCustomViewTest, WithoutAClientNothingIsDrawn) {
  drawGreen({0, 0});
  view->setClient(nullptr);
  EXPECT_TRUE(placeOf(kGreen, shown()).isNull());
  EXPECT_EQ(client.drawn, 0);
}

TEST_F(QtCustomViewTest, SuperDrawsNothing) {
  client.draw = [this](DrawingContext& context) { view->drawSuper({{0, 0}, {100, 60}}, context); };
  const QImage drawn = shown();
  client.draw = {};
  EXPECT_EQ(drawn, shown());
}

TEST_F(QtCustomViewTest, WhatIsSavedIsRestored) {
  client.draw = [this](DrawingContext& context) {
    context.restoreGraphicsState();  // nothing to restore
    context.saveGraphicsState();
    context.lockFocus(*view);
    context.drawAtPoint(*green, {0, 0}, {}, CompositingOperation::sourceOver, 1);
    context.unlockFocus(*view);
    context.unlockFocus(*view);   // nothing to unlock
    context.saveGraphicsState();  // left open
  };
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(0, 40, 40, 20));
}

TEST_F(QtCustomViewTest, FocusOnASubviewDrawsInItsCoordinates) {
  const auto inner = toolkit.createView({{30, 12}, {50, 30}});
  view->addSubview(inner);
  client.draw = [&](DrawingContext& context) {
    context.lockFocus(*inner);
    context.drawAtPoint(*green, {1, 2}, {}, CompositingOperation::sourceOver, 1);
    context.unlockFocus(*inner);
  };
  EXPECT_EQ(placeOf(kGreen, shown()), QRect(31, 60 - 12 - 2 - 20, 40, 20));
}

TEST_F(QtCustomViewTest, ImageOfAnotherToolkitIsNotDrawn) {
  struct Foreign : Image {
    Size size() const noexcept override { return {10, 10}; }
    std::string path() const noexcept override { return {}; }
  } const foreign;
  client.draw = [&](DrawingContext& context) {
    context.drawAtPoint(foreign, {0, 0}, {}, CompositingOperation::sourceOver, 1);
  };
  const QImage drawn = shown();
  client.draw = {};
  EXPECT_EQ(drawn, shown());
}

QAccessibleInterface* spokenOf(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget);
}

TEST_F(QtCustomViewTest, IsAGraphicThatSaysWhatItShowsNow) {
  client.words = "Auto cut on, mirrored";
  EXPECT_EQ(spokenOf(widget)->role(), QAccessible::Graphic);
  EXPECT_EQ(spokenOf(widget)->text(QAccessible::Name), "Auto cut on, mirrored");
  EXPECT_EQ(view->accessibilityLabel(), "Auto cut on, mirrored");
  client.words = "D\u00e9coupe";
  EXPECT_EQ(spokenOf(widget)->text(QAccessible::Name), QString::fromUtf8("D\u00e9coupe"));
}

TEST_F(QtCustomViewTest, WithoutAClientItSaysNothing) {
  client.words = "Auto cut on";
  view->setClient(nullptr);
  EXPECT_EQ(spokenOf(widget)->text(QAccessible::Name), "");
  EXPECT_EQ(view->accessibilityLabel(), "");
}

TEST_F(QtCustomViewTest, ALabelThatWasSetIsTheNameAndTheWordsDescribeIt) {
  client.words = "Auto cut on";
  view->setAccessibilityLabel("Tape");
  EXPECT_EQ(view->accessibilityLabel(), "Tape");
  EXPECT_EQ(spokenOf(widget)->text(QAccessible::Name), "Tape");
  EXPECT_EQ(spokenOf(widget)->text(QAccessible::Description), "Auto cut on");
}

TEST_F(QtCustomViewTest, OtherPlainViewsAreNoGraphics) {
  const auto plain = toolkit.createView({{0, 0}, {10, 10}});
  EXPECT_NE(spokenOf(put<QWidget>(plain))->role(), QAccessible::Graphic);
}

}  // namespace
}  // namespace cutline
