#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
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

// In a window of 1000 by 300; nothing that waits for the loop of events has come.
struct ShownStrip {
  explicit ShownStrip(unsigned pages) : strip(new StripView(&window)) {
    (new QVBoxLayout(&window))->addWidget(strip);
    strip->setContent(jobOf(pages));
    window.resize(1000, 300);
    window.show();
  }

  QWidget window;
  StripView* strip;
};

TEST(StripViewInItsFirstFrame, HasNoBarsWhereAllIsSeen) {
  const ShownStrip shown(3);
  EXPECT_FALSE(shown.strip->horizontalScrollBar()->isVisible());
  EXPECT_FALSE(shown.strip->verticalScrollBar()->isVisible());
}

TEST(StripViewInItsFirstFrame, HasABarWhereThereIsMore) {
  const ShownStrip shown(400);
  EXPECT_TRUE(shown.strip->verticalScrollBar()->isVisible());
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
  run.pages = std::vector<unsigned>(run.pages.begin() + 1, run.pages.end());
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

// One lane after the other of a job that nobody could lay out label by label.
StripContent hundredMillion() {
  CutSettings settings = tapeSettings();
  settings.cutsAutomatically = true;
  StripContent content = jobOf(10'000, settings);
  LabelRun run = content.plan.run();
  run.copies = 10'000;
  content.plan = CutPlan(settings, run);
  return content;
}

TEST_F(StripViewTest, AHundredMillionLabelsAreScrolledThrough) {
  constexpr std::uint64_t kAll = 100'000'000;
  mStrip.setContent(hundredMillion());
  ASSERT_EQ(mStrip.labelCount(), kAll);
  QTest::keyClick(&mStrip, Qt::Key_End);
  EXPECT_EQ(mStrip.currentLabel(), kAll);
  EXPECT_EQ(mWanted.back().page, 9999);
  const QRectF seen(mStrip.offset(), QSizeF(mStrip.viewport()->size()));
  EXPECT_TRUE(seen.contains(mStrip.stripLayout()->label(kAll).center()));
  const std::uint64_t middle = kAll / 2 + 1;
  mStrip.setCurrentLabel(middle);
  const QPointF place = mStrip.stripLayout()->label(middle).center() - mStrip.offset();
  EXPECT_TRUE(mStrip.viewport()->rect().contains(place.toPoint()));
  QTest::mouseClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, place.toPoint());
  EXPECT_EQ(mStrip.currentLabel(), middle);
  for (int i = 0; i < 20; ++i) mStrip.zoomIn();
  QTest::keyClick(&mStrip, Qt::Key_End);
  const QRectF close(mStrip.offset(), QSizeF(mStrip.viewport()->size()));
  EXPECT_TRUE(close.intersects(mStrip.stripLayout()->label(kAll)));
}

// Copies of a page have one picture.
TEST_F(StripViewTest, WantsThePictureOfCopiesOnce) {
  mStrip.setContent(hundredMillion());
  ASSERT_EQ(mWanted.size(), 1U);
  EXPECT_EQ(mWanted.front().page, 0);
}

TEST_F(StripViewTest, TheSameJobAgainChangesNothing) {
  mWanted.clear();
  mStrip.setContent(jobOf(40));
  EXPECT_TRUE(mWanted.empty());
}

TEST_F(StripViewTest, EnterShowsALabelLargeAndEscapeGoesBack) {
  mStrip.setCurrentLabel(5);
  const QPointF before = mStrip.offset();
  const double height = mStrip.stripLayout()->breadth();
  QTest::keyClick(&mStrip, Qt::Key_Return);
  ASSERT_TRUE(mStrip.isLarge());
  EXPECT_GT(mStrip.stripLayout()->breadth(), 1.5 * height);
  const QRectF label = mStrip.stripLayout()->label(5).translated(-mStrip.offset());
  EXPECT_TRUE(QRectF(mStrip.viewport()->rect()).contains(label));
  QTest::keyClick(&mStrip, Qt::Key_Escape);
  EXPECT_FALSE(mStrip.isLarge());
  EXPECT_EQ(mStrip.offset(), before);
  EXPECT_EQ(mStrip.stripLayout()->breadth(), height);
}

TEST_F(StripViewTest, ADoubleClickShowsALabelLargeAndAClickGoesBack) {
  const auto placeOf = [this](std::uint64_t label) {
    return (mStrip.stripLayout()->label(label).center() - mStrip.offset()).toPoint();
  };
  QTest::mouseDClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(2));
  QTest::mouseRelease(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(2));
  EXPECT_TRUE(mStrip.isLarge());
  QTest::mouseClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, {250, 130});
  EXPECT_FALSE(mStrip.isLarge());
  // The second click of two that were meant to go back shows nothing large.
  QTest::keyClick(&mStrip, Qt::Key_Return);
  QTest::mouseClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, {250, 130});
  QTest::mouseDClick(mStrip.viewport(), Qt::LeftButton, Qt::NoModifier, {250, 130});
  EXPECT_FALSE(mStrip.isLarge());
}

TEST_F(StripViewTest, KeysStepThroughLargeLabels) {
  QTest::keyClick(&mStrip, Qt::Key_Return);
  QTest::keyClick(&mStrip, Qt::Key_PageDown);
  EXPECT_TRUE(mStrip.isLarge());
  const QRectF label = mStrip.stripLayout()->label(2).translated(-mStrip.offset());
  EXPECT_TRUE(QRectF(mStrip.viewport()->rect()).contains(label));
}

QAction* actionOf(const QWidget& view, const char* text) {
  for (const QMenu* menu : view.findChildren<QMenu*>()) {
    for (QAction* action : menu->actions()) {
      if (action->text() == QLatin1String(text)) return action;
    }
  }
  return nullptr;
}

TEST_F(StripViewTest, TheMenuOfALabelAsksForThisOneAlone) {
  unsigned wanted = 0;
  QObject::connect(&mStrip, &StripView::onlyThisWanted, [&](unsigned page) { wanted = page; });
  StripContent content = jobOf(12);
  LabelRun run = content.plan.run();
  run.pages = std::vector<unsigned>(std::reverse_iterator(run.pages.end()),
                                    std::reverse_iterator(run.pages.begin()));
  content.plan = CutPlan(tapeSettings(), run);
  mStrip.setContent(content);
  const QPoint place = (mStrip.stripLayout()->label(3).center() - mStrip.offset()).toPoint();
  QContextMenuEvent click(QContextMenuEvent::Mouse, place, mStrip.mapToGlobal(place));
  QApplication::sendEvent(mStrip.viewport(), &click);
  EXPECT_EQ(mStrip.currentLabel(), 3U);
  QAction* only = actionOf(mStrip, "Print this label only");
  ASSERT_NE(only, nullptr);
  only->trigger();
  EXPECT_EQ(wanted, 10U);
  QAction* large = actionOf(mStrip, "Show large");
  ASSERT_NE(large, nullptr);
  large->trigger();
  EXPECT_TRUE(mStrip.isLarge());
}

TEST_F(StripViewTest, AWheelMovesLanesThatLieSideBySide) {
  CutSettings settings;
  settings.isRoll = true;
  mStrip.setContent(jobOf(100, settings, {175.748, 82.205, 4, 4, 171, 78}));
  ASSERT_GT(mStrip.horizontalScrollBar()->maximum(), 0);
  ASSERT_EQ(mStrip.verticalScrollBar()->maximum(), 0);
  const QPointF middle(200, 100);
  QWheelEvent down(middle, mStrip.viewport()->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(mStrip.viewport(), &down);
  EXPECT_GT(mStrip.horizontalScrollBar()->value(), 0);
}

TEST_F(StripViewTest, AJobWithoutLabelsDoesNoHarm) {
  StripContent content = jobOf(12);
  content.plan = CutPlan(tapeSettings(), LabelRun{});
  mStrip.setContent(content);
  EXPECT_EQ(mStrip.labelCount(), 0U);
  EXPECT_FALSE(grabbed().isNull());
  QTest::keyClick(&mStrip, Qt::Key_End);
  QTest::keyClick(&mStrip, Qt::Key_Return);
  EXPECT_FALSE(mStrip.isLarge());
}

}  // namespace

}  // namespace cutline::test
