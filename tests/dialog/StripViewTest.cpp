#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <cstdlib>

#include "host/dialog/LabelAsSeen.h"
#include "host/dialog/StripView.h"
#include "tests/dialog/StripJobs.h"

namespace cutline::test {

namespace {

// The tape is not quite white, and shines through.
bool isNear(const QColor& a, const QColor& b) {
  return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
             std::abs(a.blue() - b.blue()) <
         16;
}

class StripViewTest : public testing::Test {
 protected:
  StripViewTest() {
    QObject::connect(&mStrip, &StripView::pagesWanted,
                     [this](const std::deque<PageRequest>& wanted) { mWanted = wanted; });
    mStrip.resize(500, 260);
    mStrip.show();
    mStrip.setContent(jobOf(40));
  }

  // The scale that pictures are wanted in.
  double scale() const { return mWanted.front().scale; }
  QImage grabbed() { return mStrip.viewport()->grab().toImage(); }

  // Draws the page as one half red, one half blue, from left to right.
  void drawHalves(int page) {
    QImage image(40, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::blue);
    for (int y = 0; y < 10; ++y) {
      for (int x = 0; x < 20; ++x) image.setPixelColor(x, y, Qt::red);
    }
    mStrip.showPage(page, 1, image);
  }
  int leftmost(Qt::GlobalColor colour) {
    const QImage picture = mStrip.viewport()->grab().toImage();
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < picture.height(); ++y) {
        if (isNear(picture.pixelColor(x, y), colour)) return x;
      }
    }
    return -1;
  }

  StripView mStrip;
  std::deque<PageRequest> mWanted;
};

TEST_F(StripViewTest, WantsTheVisiblePagesOnly) {
  ASSERT_FALSE(mWanted.empty());
  EXPECT_EQ(mWanted.front().page, 0);
  EXPECT_LT(mWanted.size(), 20u);
}

TEST_F(StripViewTest, WantsThePagesThatItIsScrolledTo) {
  mStrip.verticalScrollBar()->setValue(mStrip.verticalScrollBar()->maximum());
  EXPECT_EQ(mWanted.back().page, 39);
}

TEST_F(StripViewTest, WantsNoPageTwice) {
  for (const PageRequest& request : std::deque<PageRequest>(mWanted)) {
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    mStrip.showPage(request.page, request.scale, image);
  }
  mStrip.zoomToFit();
  EXPECT_TRUE(mWanted.empty());
}

TEST_F(StripViewTest, KeysStepThroughTheLabels) {
  QTest::keyClick(&mStrip, Qt::Key_PageDown);
  EXPECT_EQ(mStrip.currentLabel(), 2U);
  QTest::keyClick(&mStrip, Qt::Key_End);
  EXPECT_EQ(mStrip.currentLabel(), 40U);
  QTest::keyClick(&mStrip, Qt::Key_PageDown);
  EXPECT_EQ(mStrip.currentLabel(), 40U);
  QTest::keyClick(&mStrip, Qt::Key_PageUp);
  EXPECT_EQ(mStrip.currentLabel(), 39U);
  QTest::keyClick(&mStrip, Qt::Key_Home);
  EXPECT_EQ(mStrip.currentLabel(), 1U);
}

TEST_F(StripViewTest, AClickChoosesALabel) {
  const QPoint place = (mStrip.stripLayout()->label(3).center() - mStrip.offset()).toPoint();
  QTest::mouseClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(mStrip.currentLabel(), 3U);
}

TEST_F(StripViewTest, KeysZoomWithinBounds) {
  QTest::keyClick(&mStrip, Qt::Key_Plus);
  EXPECT_GT(mStrip.zoom(), 1);
  QTest::keyClick(&mStrip, Qt::Key_0);
  EXPECT_EQ(mStrip.zoom(), 1);
  for (int i = 0; i < 50; ++i) QTest::keyClick(&mStrip, Qt::Key_Plus);
  EXPECT_FALSE(mStrip.canZoomIn());
  for (int i = 0; i < 50; ++i) QTest::keyClick(&mStrip, Qt::Key_Minus);
  EXPECT_FALSE(mStrip.canZoomOut());
}

TEST_F(StripViewTest, MirroringTurnsTheTextRound) {
  drawHalves(0);
  const int before = leftmost(Qt::red);
  ASSERT_GE(before, 0);
  ASSERT_LT(before, leftmost(Qt::blue));
  CutSettings mirroring = tapeSettings();
  mirroring.mirrors = true;
  mStrip.setContent(jobOf(40, mirroring));
  EXPECT_GT(leftmost(Qt::red), leftmost(Qt::blue));
}

TEST_F(StripViewTest, ShowsOnlyThePagesThatArePrinted) {
  drawHalves(0);
  ASSERT_GE(leftmost(Qt::red), 0);
  StripContent content = jobOf(40);
  LabelRun run = content.plan.run();
  run.pages.erase(run.pages.begin());
  content.plan = CutPlan(tapeSettings(), run);
  mStrip.setContent(content);
  EXPECT_EQ(leftmost(Qt::red), -1);
  EXPECT_EQ(mStrip.labelCount(), 39U);
}

TEST_F(StripViewTest, PicturesOfWhatIsNoMoreAskedForAreDimmed) {
  drawHalves(0);
  mStrip.setDimmed(true);
  EXPECT_EQ(leftmost(Qt::red), -1);
  mStrip.setDimmed(false);
  EXPECT_GE(leftmost(Qt::red), 0);
}

// A picture in the wanted scale is shown as it is: no pixel is mixed with its neighbour.
TEST_F(StripViewTest, APictureLiesPixelUponPixel) {
  const QSizeF seen = sizeAsSeen(tapeLabel()) * scale();
  QImage image(seen.toSize(), QImage::Format_ARGB32_Premultiplied);
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y)
      image.setPixel(x, y, (x + y) % 2 == 0 ? 0xffff0000 : 0xff0000ff);
  }
  mStrip.showPage(0, scale(), image);
  const QImage picture = grabbed();
  const QPointF label = mStrip.stripLayout()->label(1).topLeft() - mStrip.offset();
  const QPoint corner = label.toPoint() + QPoint(20, 12);
  for (int x = 0; x < 40; ++x) {
    for (int y = 0; y < 30; ++y) {
      const QColor pixel = picture.pixelColor(corner + QPoint(x, y));
      EXPECT_TRUE(isNear(pixel, Qt::red) || isNear(pixel, Qt::blue)) << x << ' ' << y;
    }
  }
}

TEST_F(StripViewTest, OldPicturesStayUntilThereAreNewOnes) {
  drawHalves(0);
  mStrip.setPicturesOld();
  EXPECT_GE(leftmost(Qt::red), 0);
  EXPECT_EQ(mWanted.front().page, 0);
}

TEST_F(StripViewTest, PicturesOfAnotherLabelGo) {
  drawHalves(0);
  mStrip.setContent(jobOf(40, tapeSettings(), tapeLabel(170)));
  EXPECT_EQ(leftmost(Qt::red), -1);
}

TEST_F(StripViewTest, TheCurrentLabelStaysWhereItIs) {
  mStrip.setCurrentLabel(7);
  mStrip.setContent(jobOf(12));
  EXPECT_EQ(mStrip.currentLabel(), 7U);
  mStrip.setContent(jobOf(3));
  EXPECT_EQ(mStrip.currentLabel(), 3U);
}

TEST_F(StripViewTest, WithoutADocumentAnEmptyLabelIsShown) {
  StripContent content = jobOf(1);
  content.hasDocument = false;
  mStrip.setContent(content);
  EXPECT_EQ(mStrip.labelCount(), 0U);
  const QRectF label = mStrip.stripLayout()->label(1);
  EXPECT_TRUE(isNear(grabbed().pixelColor(label.center().toPoint()), QColor(0xfffdfdfb)));
  QTest::mouseClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, label.center().toPoint());
  QTest::keyClick(&mStrip, Qt::Key_PageDown);
  EXPECT_EQ(mStrip.currentLabel(), 1U);
}

}  // namespace

}  // namespace cutline::test
