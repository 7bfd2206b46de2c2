// How pictures come to lie on labels of 100 by 200 points, with margins of 10 and 20 points.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/Pictures.h"

namespace cutline::test {
namespace {

// As large as stated, in the middle: 40 by 80 points from 30, 60 on; the mark is its upper left
// quarter of a quarter.
void expectMarked(Composed& composed, const std::string& what) {
  ASSERT_EQ(composed.problem(), std::nullopt) << what;
  EXPECT_EQ(composed.report().pages[0].size, (PageSize{40, 80, true})) << what;
  EXPECT_TRUE(composed.isBlackAt(31, 139)) << what;
  EXPECT_TRUE(composed.isBlackAt(39, 131)) << what;
  EXPECT_TRUE(composed.isWhiteAt(41, 139)) << what;
  EXPECT_TRUE(composed.isWhiteAt(31, 129)) << what;
  EXPECT_TRUE(composed.isWhiteAt(29, 139)) << what;
  EXPECT_TRUE(composed.isWhiteAt(31, 141)) << what;
}

TEST(PicturesTest, APictureIsAsLargeAsItStates) {
  for (const unsigned channels : {1U, 2U, 3U, 4U}) {
    Composed png(pngOf(markedPixels(80, 160, channels), {143.9926, 143.9926}));
    ASSERT_EQ(png.problem(), std::nullopt);
    EXPECT_NEAR(png.report().pages[0].size.width, 40, 0.01);
    EXPECT_TRUE(png.isBlackAt(31, 139));
    EXPECT_TRUE(png.isWhiteAt(41, 139));
  }
  Composed jpeg(jpegOf(markedPixels(80, 160), {144, 144}));
  expectMarked(jpeg, "jpeg");
}

TEST(PicturesTest, APictureThatStatesNoSizeFillsTheLabel) {
  for (const std::string& picture :
       {pngOf(markedPixels(80, 160)), jpegOf(markedPixels(80, 160)), webpOf(markedPixels(80, 160)),
        webpOf(markedPixels(80, 160, 4))}) {
    Composed composed(picture);
    ASSERT_EQ(composed.problem(), std::nullopt);
    EXPECT_EQ(composed.report().pages[0].size, (PageSize{80, 160, false}));
    EXPECT_DOUBLE_EQ(composed.report().pages[0].scale, 1);
    EXPECT_TRUE(composed.isBlackAt(11, 179));
    EXPECT_TRUE(composed.isBlackAt(29, 161));
    EXPECT_TRUE(composed.isWhiteAt(31, 179));
  }
}

}  // namespace
}  // namespace cutline::test
