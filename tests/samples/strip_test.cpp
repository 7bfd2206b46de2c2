#include "samples/printer/Strip.h"

#include <gtest/gtest.h>

#include "tests/samples/Dots.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using printer::Bitmap;
using printer::Place;
using printer::Strip;

constexpr std::uint32_t kInk = 0x101216;
constexpr std::uint32_t kTape = 0xffffff;
constexpr std::uint32_t kDesk = 0xdde3ea;
constexpr std::uint32_t kKnife = 0xd63f1b;
constexpr std::uint32_t kMachine = 0x3a4450;

// Its first dot is the first that is printed, at the tape's left side.
Bitmap label() { return bitmapOf({"#...", "....", "...."}); }

class StripTest : public ::testing::Test {
 protected:
  StripTest() { mStrip.setResolution({25, 25}); }  // a dot is about a millimetre
  PngPicture picture() {
    const std::string path = mFolder / "strip.png";
    std::FILE* file = std::fopen(path.c_str(), "wb");
    EXPECT_TRUE(mStrip.write(file));
    std::fclose(file);
    return PngPicture(path);
  }

  TemporaryFolder mFolder;
  Strip mStrip;
};

TEST_F(StripTest, ShowsATapeFromLeftToRightTurnedAgainstTheClock) {
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Full);
  mStrip.finish();
  const auto places = mStrip.labelPlaces();
  ASSERT_EQ(places.size(), 1U);
  EXPECT_EQ(places[0].width, 3U);
  EXPECT_EQ(places[0].height, 4U);
  const PngPicture strip = picture();
  EXPECT_EQ(strip.width(), mStrip.bounds().width);
  EXPECT_EQ(strip.height(), 4U + 2 * 3);
  EXPECT_EQ(strip.colourAt(places[0].x, places[0].y + 3), kInk);
  EXPECT_EQ(strip.inkIn(places[0]), 1U);
  EXPECT_EQ(strip.colourAt(0, 0), kDesk);
  EXPECT_EQ(strip.colourAt(strip.width() - 1, 5), kDesk);
}

TEST_F(StripTest, ShowsARollFromTopToBottomUpright) {
  mStrip.setDirection(Strip::Direction::Down);
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Full);
  mStrip.finish();
  const Place place = mStrip.labelPlaces().at(0);
  const PngPicture strip = picture();
  EXPECT_EQ(strip.width(), 4U + 2 * 3);
  EXPECT_EQ(place.width, 4U);
  EXPECT_EQ(place.height, 3U);
  EXPECT_EQ(strip.colourAt(place.x, place.y), kInk);
  EXPECT_EQ(strip.inkIn(place), 1U);
}

TEST_F(StripTest, PartsThePiecesByAGap) {
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Full);
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Full);
  mStrip.finish();
  const auto places = mStrip.labelPlaces();
  const PngPicture strip = picture();
  const auto gap = (places[0].x + places[0].width + places[1].x) / 2;
  EXPECT_EQ(strip.colourAt(gap, 5), kDesk);
  EXPECT_EQ(mStrip.cuts(Cut::Full), 2U);
  EXPECT_EQ(mStrip.cuts(Cut::Half), 0U);
}

TEST_F(StripTest, DashesAHalfCut) {
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Half);
  mStrip.addLabel(label());
  mStrip.finish();
  const Place first = mStrip.labelPlaces().at(0);
  const PngPicture strip = picture();
  EXPECT_EQ(strip.colourAt(first.x + first.width, first.y + first.height - 1), kKnife);
  EXPECT_EQ(strip.colourAt(first.x + first.width, first.y + first.height - 2), kTape);
  EXPECT_EQ(mStrip.cuts(Cut::Half), 1U);
  EXPECT_EQ(mStrip.cuts(Cut::Full), 0U);
}

TEST_F(StripTest, HangsFromThePrinterWhenItIsNotCutOff) {
  mStrip.addLabel(label());
  mStrip.finish();
  const PngPicture strip = picture();
  EXPECT_EQ(strip.colourAt(strip.width() - 1, 0), kMachine);
}

TEST_F(StripTest, LaysNarrowLabelsInTheMiddle) {
  mStrip.addLabel(Bitmap(9, 2));
  mStrip.addLabel(bitmapOf({"#..#", "####"}));
  mStrip.finish();
  const Place narrow = mStrip.labelPlaces().at(1);
  EXPECT_EQ(narrow.height, 4U);
  EXPECT_EQ(picture().inkIn(narrow), 6U);
}

TEST_F(StripTest, IgnoresACutWhereThereIsNothingToCut) {
  mStrip.addCut(Cut::Full);
  mStrip.addLabel(label());
  mStrip.addCut(Cut::Full);
  mStrip.addCut(Cut::Full);
  mStrip.finish();
  EXPECT_EQ(mStrip.cuts(Cut::Full), 1U);
}

TEST_F(StripTest, EndsWhereAPictureEnds) {
  for (int at = 0; at < 10; ++at) EXPECT_TRUE(mStrip.addLabel(Bitmap(1, 99'000)));
  EXPECT_FALSE(mStrip.addLabel(Bitmap(1, 99'000)));
  mStrip.finish();
  EXPECT_EQ(mStrip.labelPlaces().size(), 10U);
  EXPECT_EQ(picture().width(), mStrip.bounds().width);
}

TEST_F(StripTest, WritesNothingWithoutALabel) {
  mStrip.addBlank(10);
  mStrip.finish();
  std::FILE* file = std::fopen("/dev/null", "wb");
  EXPECT_FALSE(mStrip.write(file));
  std::fclose(file);
}

TEST_F(StripTest, SaysWhenItCannotBeWritten) {
  mStrip.addLabel(label());
  mStrip.finish();
  std::FILE* full = std::fopen("/dev/full", "wb");
  EXPECT_FALSE(mStrip.write(full));
  std::fclose(full);
}

}  // namespace
}  // namespace cutline::test
