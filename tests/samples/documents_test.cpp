#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/Command.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

constexpr const char* kFonts = "/usr/share/fonts/truetype/dejavu";

std::string textOf(int page) {
  const std::string number = std::to_string(page);
  return run("pdftotext -f " + number + " -l " + number + " " +
             source("samples/documents/labels.pdf") + " -")
      .output;
}

TEST(Documents, AreWhatTheGeneratorDraws) {
  const TemporaryFolder folder;
  const CommandResult result =
      run(built("tests/cutline-sample-documents ") + kFonts + ' ' + folder.path());
  ASSERT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(contentsOf(folder / "labels.pdf"), contentsOf(source("samples/documents/labels.pdf")));
  const PngPicture drawn(folder / "label.png");
  const PngPicture kept(source("samples/documents/label.png"));
  const printer::Place whole = {0, 0, kept.width(), kept.height()};
  ASSERT_EQ(drawn.width(), kept.width());
  ASSERT_EQ(drawn.height(), kept.height());
  EXPECT_TRUE(kept.isSame(whole, drawn, whole));
}

TEST(Documents, HaveTwelveLabelsOfTheDefaultSize) {
  const CommandResult info = run("pdfinfo " + source("samples/documents/labels.pdf"));
  EXPECT_NE(info.output.find("Pages:           12\n"), std::string::npos) << info.output;
  EXPECT_NE(info.output.find("Page size:       141.73 x 68.03 pts"), std::string::npos);
  for (int page = 1; page <= 12; ++page) {
    EXPECT_NE(textOf(page).find("No. " + std::to_string(104200 + page)), std::string::npos);
  }
}

TEST(Documents, HaveAPictureOfTheSameSize) {
  const PngPicture picture(source("samples/documents/label.png"));
  EXPECT_EQ(picture.width(), 709U);  // 50 mm at 360 dots an inch
  EXPECT_EQ(picture.height(), 340U);
}

}  // namespace
}  // namespace cutline::test
