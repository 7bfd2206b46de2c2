#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "samples/printer/RasterPages.h"
#include "tests/samples/RasterFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using printer::Halftone;
using printer::RasterPages;

class RasterPagesTest : public ::testing::Test {
 protected:
  ~RasterPagesTest() override {
    if (mInput >= 0) ::close(mInput);
  }
  RasterPages pagesOf(const cups_page_header2_t& header, int pages, const Shading& shading,
                      Halftone halftone = Halftone::Sharp, int rows = -1) {
    writeRaster(mFolder / "raster", header, pages, shading, rows);
    return opened(halftone);
  }
  RasterPages opened(Halftone halftone = Halftone::Sharp) {
    mInput = ::open((mFolder / "raster").c_str(), O_RDONLY);
    return RasterPages(mInput, halftone);
  }
  void expectRefused(const cups_page_header2_t& header, const char* problem) {
    RasterPages pages = pagesOf(header, 1, [](unsigned, unsigned) { return 255; });
    EXPECT_FALSE(pages.next());
    EXPECT_EQ(pages.problem(), problem);
    ::close(mInput);
    mInput = -1;
  }

  TemporaryFolder mFolder;
  int mInput = -1;
};

unsigned inkOf(const printer::Bitmap& label) {
  unsigned count = 0;
  for (std::uint32_t y = 0; y < label.height(); ++y) {
    for (std::uint32_t x = 0; x < label.width(); ++x) count += label.inkAt(x, y) ? 1 : 0;
  }
  return count;
}

TEST_F(RasterPagesTest, PutsThePrintOnTheWholeLabel) {
  RasterPages pages = pagesOf(tapePage(), 1, [](unsigned x, unsigned y) {
    return static_cast<unsigned char>(x == 0 && y == 0 ? 0 : 255);
  });
  ASSERT_TRUE(pages.next());
  EXPECT_EQ(pages.label().width(), 170U);   // 24 mm
  EXPECT_EQ(pages.label().height(), 354U);  // 50 mm
  EXPECT_EQ(inkOf(pages.label()), 1U);
  EXPECT_TRUE(pages.label().inkAt(7, 14));  // 1 mm and 2 mm
  EXPECT_EQ(pages.dotsAcross(), 180U);
  EXPECT_FALSE(pages.next());
  EXPECT_EQ(pages.problem(), "");
}

TEST_F(RasterPagesTest, ReadsEveryPage) {
  RasterPages pages = pagesOf(tapePage(), 3, [](unsigned, unsigned) { return 255; });
  for (int page = 0; page < 3; ++page) EXPECT_TRUE(pages.next());
  EXPECT_FALSE(pages.next());
}

TEST_F(RasterPagesTest, TakesThePrintForTheLabelWhereTheSizeIsMissing) {
  cups_page_header2_t header = tapePage();
  header.cupsPageSize[0] = header.cupsPageSize[1] = 0;
  for (float& edge : header.cupsImagingBBox) edge = 0;
  RasterPages pages = pagesOf(header, 1, [](unsigned, unsigned) { return 0; });
  ASSERT_TRUE(pages.next());
  EXPECT_EQ(pages.label().width(), 156U);
  EXPECT_EQ(inkOf(pages.label()), 156U * 326U);
}

TEST_F(RasterPagesTest, KnowsInkAsBlackAndAsFull) {
  cups_page_header2_t header = tapePage();
  header.cupsColorSpace = CUPS_CSPACE_K;
  RasterPages pages = pagesOf(
      header, 1, [](unsigned x, unsigned) { return static_cast<unsigned char>(x == 3 ? 255 : 0); });
  ASSERT_TRUE(pages.next());
  EXPECT_EQ(inkOf(pages.label()), 326U);
}

TEST_F(RasterPagesTest, MakesGreyBlackOrWhiteByHalftone) {
  const auto grey = [](unsigned, unsigned) { return static_cast<unsigned char>(160); };
  RasterPages sharp = pagesOf(tapePage(), 1, grey);
  ASSERT_TRUE(sharp.next());
  EXPECT_EQ(inkOf(sharp.label()), 0U);
  ::close(mInput);
  RasterPages dots = pagesOf(tapePage(), 1, grey, Halftone::Dots);
  ASSERT_TRUE(dots.next());
  EXPECT_NEAR(inkOf(dots.label()) / (156.0 * 326), 1 - 160 / 256.0, 0.07);
}

TEST_F(RasterPagesTest, RefusesPagesItCannotPrint) {
  cups_page_header2_t colour = tapePage();
  colour.cupsColorSpace = CUPS_CSPACE_RGB;
  colour.cupsNumColors = 3;
  colour.cupsBitsPerPixel = 24;
  colour.cupsBytesPerLine = 3 * colour.cupsWidth;
  expectRefused(colour, "the page is not in 8 bit grey");
  cups_page_header2_t unknown = tapePage();
  unknown.HWResolution[0] = 0;
  expectRefused(unknown, "the page's resolution is unknown");
  cups_page_header2_t huge = tapePage();
  huge.cupsPageSize[1] = 1e9F;
  expectRefused(huge, "the page is too large");
  cups_page_header2_t large = tapePage();
  large.cupsPageSize[0] = large.cupsPageSize[1] = 100'000;
  expectRefused(large, "the page is too large");
}

TEST_F(RasterPagesTest, RefusesAPageThatBreaksOff) {
  RasterPages pages = pagesOf(
      tapePage(), 2,
      [](unsigned x, unsigned y) { return static_cast<unsigned char>(x * 7 + y * 13); },
      Halftone::Sharp, 10);
  EXPECT_TRUE(pages.next());
  EXPECT_FALSE(pages.next());
  EXPECT_EQ(pages.problem(), "the page is not complete");
}

TEST_F(RasterPagesTest, RefusesWhatIsNoRaster) {
  writeFile(mFolder / "raster", "%PDF-1.4 and more");
  RasterPages pages = opened();
  EXPECT_FALSE(pages.next());
  EXPECT_EQ(pages.problem(), "the data is no CUPS raster");
}

}  // namespace
}  // namespace cutline::test
