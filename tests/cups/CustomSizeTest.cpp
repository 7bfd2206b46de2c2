#include <gtest/gtest.h>

#include "cups/CustomSize.h"

namespace cutline {
namespace {

TEST(CustomSize, ReadsEveryUnit) {
  struct Row {
    const char* text;
    double width, length;
  };
  for (const Row& row : {Row{"Custom.72x144", 72, 144}, Row{"Custom.72.5x144pt", 72.5, 144},
                         Row{"Custom.1x2in", 72, 144}, Row{"Custom.0.5x1ft", 432, 864},
                         Row{"Custom.25.4x50.8mm", 72, 144}, Row{"Custom.2.54x5.08cm", 72, 144},
                         Row{"Custom.0.0254x1m", 72, 72 / 0.0254}}) {
    const auto size = CustomSize::parse(row.text);
    ASSERT_TRUE(size) << row.text;
    EXPECT_NEAR(size->width, row.width, 1e-9) << row.text;
    EXPECT_NEAR(size->length, row.length, 1e-9) << row.text;
  }
}

TEST(CustomSize, RefusesOtherTexts) {
  for (const char* text : {"", "Custom", "Custom.", "Custom.24", "Custom.24x", "Custom.x100",
                           "Custom.24x100km", "Custom.0x100", "Custom.-1x100", "W24H100",
                           "Custom.24x100mm ", "Custom.nanx1", "Custom.infx1", "custom.1x1"}) {
    EXPECT_FALSE(CustomSize::parse(text)) << text;
  }
}

TEST(CustomSize, IsWrittenInPointsForThePrinterAndInMillimetresForPeople) {
  const CustomSize size{68.03, 283.46};
  EXPECT_EQ(size.choice(), "Custom.68.03x283.46");
  EXPECT_EQ(size.text(), "24 x 100 mm");
}

}  // namespace
}  // namespace cutline
