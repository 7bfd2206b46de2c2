#include <gtest/gtest.h>

#include "cups/PpdFacts.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

using Programs = std::vector<std::string>;

std::shared_ptr<PpdFile> ppdWith(const std::string& lines) {
  test::TestPrinter printer;
  printer.more = lines;
  return test::ppdFor(printer);
}

TEST(PpdFacts, NameTheFilterPrograms) {
  EXPECT_EQ(filterPrograms(*ppdWith("")), Programs());
  EXPECT_EQ(filterPrograms(*ppdWith("*cupsFilter: \"application/vnd.cups-raster 50 one\"\n"
                                    "*cupsFilter: \"image/x-y 0 /usr/lib/filters/two\"\n")),
            (Programs{"one", "two"}));
  EXPECT_EQ(filterPrograms(*ppdWith("*cupsFilter2: \"image/pwg-raster image/x-y 100 three \"\n")),
            Programs{"three"});
  EXPECT_EQ(filterPrograms(*ppdWith("*cupsFilter2: \"image/pwg-raster image/pwg-raster 100 -\"\n")),
            Programs());
  EXPECT_EQ(filterPrograms(
                *ppdWith("*cupsFilter2: \"a/b c/d 1 one\"\n*cupsFilter2: \"e/f c/d 1 one\"\n")),
            Programs{"one"});
}

TEST(PpdFacts, SayWhoMakesCopies) {
  EXPECT_TRUE(printerMakesCopies(*ppdWith("")));
  EXPECT_TRUE(printerMakesCopies(*ppdWith("*cupsManualCopies: False\n")));
  EXPECT_FALSE(printerMakesCopies(*ppdWith("*cupsManualCopies: True\n")));
}

TEST(PpdFacts, HaveTheOptionsOfAFinishing) {
  const auto ppd = ppdWith(
      "*cupsIPPFinishings 60/trim-after-pages: \"*CutMedia EndOfPage\"\n"
      "*cupsIPPFinishings 20/staple: \"*One A *Two B odd\"\n"
      "*cupsIPPFinishings 21/other: \"One A * B *Two C\"\n");
  EXPECT_EQ(optionsForFinishing(*ppd, 60), (OptionList{{"CutMedia", "EndOfPage"}}));
  EXPECT_EQ(optionsForFinishing(*ppd, 20), (OptionList{{"One", "A"}, {"Two", "B"}}));
  EXPECT_EQ(optionsForFinishing(*ppd, 21), (OptionList{{"Two", "C"}}));
  EXPECT_EQ(optionsForFinishing(*ppd, 3), OptionList());
  EXPECT_EQ(optionsForFinishing(*ppd, 6), OptionList());
}

}  // namespace
}  // namespace cutline
