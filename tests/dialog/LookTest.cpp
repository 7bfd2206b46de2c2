// The dialog's look: nothing is cut off, it fits small screens, both appearances draw something.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <cstdlib>

#include "host/dialog/Appearance.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/FakeDocument.h"
#include "tests/dialog/FontSize.h"
#include "tests/dialog/window_checks.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {

namespace {

class LookTest : public DialogTest, public testing::WithParamInterface<int> {
 protected:
  LookTest() : mFont(GetParam()) {}

 private:
  FontSize mFont;
};

TEST_P(LookTest, TheWholeDialogFitsASmallScreen) {
  for (const char* name : {"tape-a", "tape-b", "roll"}) {
    openQueue(samplePpd(name));
    const QSize least = dialog().minimumSizeHint();
    EXPECT_LE(least.width(), kSmallScreen.width()) << name;
    EXPECT_LE(least.height(), kSmallScreen.height()) << name;
    closeDialog();
  }
  openQueue(oddPpd("tape-all-shown"));
  EXPECT_LE(dialog().minimumSizeHint().height(), kSmallScreen.height());
}

TEST_P(LookTest, NoTextIsCutOffAtTheSmallestSize) {
  for (const char* name : {"tape-a", "roll"}) {
    openQueue(samplePpd(name));
    dialog().resize(dialog().minimumSizeHint());
    QTest::qWait(20);
    expectNothingCutOff(dialog());
    closeDialog();
  }
}

TEST_P(LookTest, NoTextIsCutOffWithMoreOptionsAndNotices) {
  openQueue(oddPpd("tape-all-shown"));
  click(buttonWithText<QPushButton>("&More printer options"));
  click(box("LxHalfCut"));
  click(box("LxSpecialTape"));
  dialog().resize(kSmallScreen);
  QTest::qWait(20);
  expectNothingCutOff(dialog());
}

TEST_P(LookTest, TheLayoutFormFitsAndIsWhole) {
  const test::TemporaryFolder folder;
  setPaths({folder.write("notes.txt", "one\n\ntwo\n")});
  for (const char* name : {"tape-a", "roll"}) {
    openQueue(samplePpd(name));
    click(named<QPushButton>("Change the layout"));
    JobLayout layout;
    layout.placing.scaling = Scaling::percent;
    model().setJobLayout(layout);
    QTest::qWait(20);
    EXPECT_LE(dialog().minimumSizeHint().width(), kSmallScreen.width()) << name;
    EXPECT_LE(dialog().minimumSizeHint().height(), 720) << name;
    dialog().resize(dialog().minimumSizeHint());
    QTest::qWait(20);
    expectNothingCutOff(dialog());
    closeDialog();
  }
}

TEST_P(LookTest, ThePreviewTakesTheSpaceThatIsLeft) {
  openQueue(samplePpd("tape-a"));
  auto* preview = named<QWidget>("Preview of the labels");
  dialog().resize(dialog().sizeHint());  // all settings without scrolling
  QTest::qWait(20);
  const QSize before = preview->size();
  const QSize growth(300, 200);
  dialog().resize(dialog().size() + growth);
  QTest::qWait(20);
  EXPECT_EQ(preview->width(), before.width() + growth.width());
  // The line below it may wrap no longer.
  EXPECT_GE(preview->height(), before.height() + growth.height());
}

TEST_P(LookTest, ThePanelKeepsItsOwnSize) {
  openQueue(samplePpd("tape-a"));
  View& view = *model().panels().front().view;
  const QWidget* panel = QtToolkit::widgetOf(view);
  const QSize designed(static_cast<int>(view.frame().size.width),
                       static_cast<int>(view.frame().size.height));
  EXPECT_EQ(panel->size(), designed);
  dialog().resize(kSmallScreen);
  QTest::qWait(20);
  EXPECT_EQ(panel->size(), designed);
  EXPECT_TRUE(panel->isVisible());
}

INSTANTIATE_TEST_SUITE_P(FontSizes, LookTest, testing::Values(9, 12));

class AppearanceTest : public DialogTest {
 protected:
  ~AppearanceTest() override { QApplication::setPalette(lightPalette()); }

  QImage picture() {
    openQueue(samplePpd("tape-a"));
    QImage image = dialog().grab().toImage();
    closeDialog();
    return image;
  }
};

int distance(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
         std::abs(qBlue(a) - qBlue(b));
}

TEST_F(AppearanceTest, LightAndDarkDifferInTheirGround) {
  const QImage light = picture();
  applyAppearance(true);
  const QImage dark = picture();
  const QPoint corner(3, 3);
  EXPECT_GT(light.pixelColor(corner).lightness(), 200);
  EXPECT_LT(dark.pixelColor(corner).lightness(), 80);
}

TEST_F(AppearanceTest, TextStandsOutInBothAppearances) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                       {QPalette::Text, QPalette::Base},
                                       {QPalette::ButtonText, QPalette::Button},
                                       {QPalette::HighlightedText, QPalette::Highlight}}) {
      const int contrast =
          std::abs(qGray(palette.color(text).rgb()) - qGray(palette.color(ground).rgb()));
      EXPECT_GT(contrast, 110) << text;
    }
  }
}

TEST_F(AppearanceTest, ThePreviewShowsTheDocumentsPages) {
  openQueue(samplePpd("tape-a"));
  const QImage picture = named<QWidget>("Preview of the labels")->grab().toImage();
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      pixels += distance(picture.pixel(x, y), FakeDocument::kColour) < 12 ? 1 : 0;
    }
  }
  EXPECT_GT(pixels, 10000);
}

}  // namespace

}  // namespace cutline
