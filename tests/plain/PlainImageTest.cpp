#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "plain/PlainImage.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

struct ImageRow {
  const char* name;
  std::string bytes;
  Size size;
};

// The start of a PNG file of 264 by 84 pixels.
const std::string kPng("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\x01\x08\0\0\0\x54", 24);

class PlainImages : public testing::TestWithParam<ImageRow> {};

TEST_P(PlainImages, TellTheSizeInTheirFile) {
  const test::TemporaryFolder folder;
  const std::string file = folder.write("picture", GetParam().bytes);
  const auto image = PlainImage::of(file);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->size(), GetParam().size);
  EXPECT_EQ(image->path(), file);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PlainImages,
    testing::Values(
        ImageRow{"Png", kPng, Size{264, 84}}, ImageRow{"CutPng", kPng.substr(0, 20), Size{}},
        ImageRow{"PngWithoutWidth", std::string(kPng).replace(16, 4, 4, '\0'), Size{}},
        ImageRow{"Svg", "<?xml version=\"1.0\"?>\n<svg width=\"264\" height=\"84\"/>",
                 Size{264, 84}},
        ImageRow{"Points", "<svg width='264pt' height='84px'>", Size{264, 84}},
        ImageRow{"LinesAndOtherNames", "<svg\n line-width=\"3\"\n height=\"84\"\n width=\"264\">",
                 Size{264, 84}},
        ImageRow{"ViewBox", "<svg viewBox=\"0 0 264 84\">", Size{264, 84}},
        ImageRow{"ViewBoxWithCommas", "<svg viewBox=\"0,0,264,84\">", Size{264, 84}},
        ImageRow{"PercentageAndViewBox",
                 "<svg width=\"100%\" height=\"100%\" viewBox=\"0 0 264 84\">", Size{264, 84}},
        ImageRow{"NoSize", "<svg>", Size{}},
        ImageRow{"ZeroSize", "<svg width=\"0\" height=\"84\">", Size{}},
        ImageRow{"NegativeSize", "<svg width=\"-1\" height=\"84\">", Size{}},
        ImageRow{"NotANumber", "<svg width=\"nan\" height=\"84\">", Size{}},
        ImageRow{"AttributeNotClosed", "<svg width=\"264 height=84>", Size{}},
        ImageRow{"TagNotClosed", "<svg width=\"264\" height=\"84\"", Size{}},
        ImageRow{"OtherTag", "<svgs width=\"264\" height=\"84\">", Size{}},
        ImageRow{"Words", "no picture", Size{}}, ImageRow{"Empty", "", Size{}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PlainImage, AMissingFileAndAFolderAreNoPictures) {
  EXPECT_FALSE(PlainImage::of("/nowhere/picture.svg"));
  EXPECT_FALSE(PlainImage::of(std::filesystem::temp_directory_path().string()));
}

TEST(PlainImage, IsReadWhenItsSizeIsAskedForAndThenNoMore) {
  const test::TemporaryFolder folder;
  const std::string file = folder.write("picture", "");
  const auto image = PlainImage::of(file);
  ASSERT_NE(image, nullptr);
  folder.write("picture", kPng);
  EXPECT_EQ(image->size(), (Size{264, 84}));
  folder.write("picture", "");
  EXPECT_EQ(image->size(), (Size{264, 84}));
}

}  // namespace
}  // namespace cutline
