// The dialog's look: nothing is cut off, it fits small screens, both appearances draw something.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTest>
#include <cstdlib>

#include "host/dialog/Appearance.h"
#include "host/dialog/ControlDrawing.h"
#include "host/dialog/NoticeView.h"
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

// How many dots of a widget's picture have this colour.
int dotsOf(QWidget& widget, const QColor& colour) {
  const QImage picture = widget.grab().toImage();
  int dots = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      dots += distance(picture.pixel(x, y), colour.rgb()) < 6 ? 1 : 0;
  return dots;
}

TEST_F(AppearanceTest, PrintHasTheAccentWhileItCanBePressed) {
  openQueue(samplePpd("tape-a"));
  const QColor accent = QApplication::palette().color(QPalette::Highlight);
  const int area = printButton()->width() * printButton()->height();
  EXPECT_GT(dotsOf(*printButton(), accent), area / 2);
  EXPECT_EQ(dotsOf(*buttonWithText<QPushButton>("Cancel"), accent), 0);
  printButton()->setEnabled(false);
  EXPECT_EQ(dotsOf(*printButton(), accent), 0);
}

TEST_F(AppearanceTest, ATickedBoxHasTheAccent) {
  QCheckBox tick(QStringLiteral("Collate"));
  const QColor accent = tick.palette().color(QPalette::Highlight);
  EXPECT_EQ(dotsOf(tick, accent), 0);
  tick.setChecked(true);
  EXPECT_GT(dotsOf(tick, accent), 50);
}

TEST_F(AppearanceTest, AChoiceThatIsLongerThanItsListEndsInDots) {
  QComboBox list;
  list.resize(90, 26);
  list.addItem(QStringLiteral("A choice of many words"));
  const QImage cut = list.grab().toImage();
  QStyleOptionComboBox option;
  option.initFrom(&list);
  const QRect room = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                  QStyle::SC_ComboBoxEditField, &list);
  constexpr int kMargins = 2;
  list.setItemText(0, list.fontMetrics().elidedText(list.currentText(), Qt::ElideRight,
                                                    room.width() - kMargins));
  EXPECT_TRUE(list.currentText().endsWith(QChar(0x2026)));
  EXPECT_EQ(list.grab().toImage(), cut);
}

TEST_F(AppearanceTest, TheHandleOfAScrollBarReachesBothEnds) {
  QScrollBar bar(Qt::Vertical);
  bar.resize(kScrollBarExtent, 200);
  bar.setRange(0, 1000);
  bar.setPageStep(100);
  const auto handle = [&bar] {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.value();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                       &bar);
  };
  EXPECT_EQ(handle().top(), 0);
  QTest::mousePress(&bar, Qt::LeftButton, {}, handle().center());
  QTest::mouseMove(&bar, QPoint(kScrollBarExtent / 2, 199));
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(kScrollBarExtent / 2, 199));
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_EQ(handle().bottom(), 199);
}

TEST_F(AppearanceTest, NoticesStayReadableWhileAJobIsOnItsWay) {
  NoticeView notices;
  notices.setNotice(NoticeTopic::printer, QStringLiteral("The printer is paused"));
  notices.setEnabled(false);
  const auto* text = notices.findChild<QLabel*>();
  EXPECT_EQ(text->palette().color(QPalette::Disabled, QPalette::WindowText),
            lightPalette().color(QPalette::Active, QPalette::WindowText));
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
