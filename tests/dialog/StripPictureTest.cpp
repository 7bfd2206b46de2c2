// What is painted of a strip is what its plan says: the picture, read back, against the plan.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>
#include <random>

#include "bundle/resources/pictures/Palette.h"
#include "host/dialog/Appearance.h"
#include "tests/dialog/StripJobs.h"
#include "tests/dialog/StripReading.h"
#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

constexpr bool CutSettings::*kTicks[] = {
    &CutSettings::cutsAutomatically, &CutSettings::cutsAtEnd,
    &CutSettings::halfCuts,          &CutSettings::chains,
    &CutSettings::isSpecialTape,     &CutSettings::printsCutMarks};

std::optional<double> anyLength(Dice& dice) {
  if (upTo(dice, 3) == 0) return std::nullopt;
  return upTo(dice, 3) == 0 ? 0.0 : 4.0 + upTo(dice, 20);
}

StripContent pictureJob(Dice& dice) {
  CutSettings settings;
  for (bool CutSettings::*tick : kTicks) settings.*tick = upTo(dice, 2) == 0;
  settings.labelsPerCut = 1 + upTo(dice, 4);
  settings.isRoll = upTo(dice, 3) == 0;
  settings.leader = anyLength(dice);
  settings.feed = anyLength(dice);
  const int upright = settings.isRoll ? 0 : 90;
  return jobOf(1 + upTo(dice, 30), settings, tapeLabel(60 + upTo(dice, 200), upright));
}

class StripPicture : public testing::Test {
 protected:
  StripPicture() {
    mStrip.resize(1100, 420);
    mStrip.show();
  }
  ~StripPicture() override { QApplication::setPalette(lightPalette()); }

  std::string read(const StripContent& content) {
    mStrip.setContent(content);
    return StripReading(mStrip).outline();
  }
  QImage pictureOf(const StripContent& content) {
    mStrip.setContent(content);
    return mStrip.viewport()->grab().toImage();
  }

  StripView mStrip;
};

TEST_F(StripPicture, IsThatOfThePlan) {
  const unsigned rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 3'000 : 120;
  for (unsigned round = 0; round < rounds && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    Dice dice(round);
    const StripContent content = pictureJob(dice);
    EXPECT_EQ(read(content), outlineOf(content.plan));
  }
}

TEST_F(StripPicture, IsThatOfThePlanInTheDarkToo) {
  applyAppearance(true);
  for (unsigned round = 1000; round < 1020 && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    Dice dice(round);
    const StripContent content = pictureJob(dice);
    EXPECT_EQ(read(content), outlineOf(content.plan));
  }
}

// The reading itself sees a difference.
TEST_F(StripPicture, OfOneJobIsNotThatOfAnother) {
  CutSettings each = tapeSettings();
  each.cutsAutomatically = true;
  EXPECT_EQ(read(jobOf(3, each)), "~|L|L|L~|");
  CutSettings half = tapeSettings();
  half.halfCuts = true;
  EXPECT_EQ(read(jobOf(3, half)), "~:L:L:L:~");
  CutSettings marked = tapeSettings();
  marked.printsCutMarks = marked.chains = true;
  EXPECT_EQ(read(jobOf(3, marked)), "+L+L+L+");
}

TEST_F(StripPicture, FollowsEachTick) {
  const QImage plain = pictureOf(jobOf(5));
  for (bool CutSettings::*tick : kTicks) {
    CutSettings settings = tapeSettings();
    settings.*tick = true;
    EXPECT_NE(pictureOf(jobOf(5, settings)), plain);
  }
  CutSettings unknown = tapeSettings();
  unknown.leader.reset();
  EXPECT_NE(pictureOf(jobOf(5, unknown)), plain);
}

// The knives in the panel's pictures, beside the strip, have the same colours.
TEST_F(StripPicture, HasTheColoursOfThePanel) {
  const StripColours colours = StripColours::of(lightPalette());
  const auto is = [](const QColor& colour, std::string_view name) {
    return colour.name().toStdString() == name;
  };
  EXPECT_TRUE(is(colours.fullCut, pictures::kCut));
  EXPECT_TRUE(is(colours.halfCut, pictures::kHalfCut));
  EXPECT_TRUE(is(colours.cutMark, pictures::kHand));
  EXPECT_TRUE(is(colours.backing, pictures::kBacking));
  EXPECT_TRUE(is(colours.face, pictures::kPaper));
}

}  // namespace
}  // namespace cutline::test
