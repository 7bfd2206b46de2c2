#include <gtest/gtest.h>

#include "host/core/OptionTable.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

class OptionCheck : public testing::Test {
 protected:
  Result<Done> check(const OptionList& options) { return checkOptions(*mPpd, options); }
  std::string complaint(const OptionList& options) {
    const Result<Done> checked = check(options);
    return checked ? "" : checked.error().message;
  }
  std::shared_ptr<PpdFile> mPpd = test::ppdFor(test::fullTapePrinter());
};

TEST_F(OptionCheck, TakesThePpdsOptionsWhateverTheirCapitals) {
  EXPECT_TRUE(check({{"LxHalfCut", "ON"}, {"lxmirror", "on"}, {"PageSize", "W24"}}));
}

TEST_F(OptionCheck, TakesStandardJobAttributes) {
  EXPECT_TRUE(check({{"job-priority", "70"}, {"landscape", "true"}, {"fit-to-page", "true"}}));
}

TEST_F(OptionCheck, AnUnknownChoiceListsTheChoices) {
  const std::string text = complaint({{"LxHalfCut", "MAYBE"}});
  for (const char* part : {"LxHalfCut", "MAYBE", "OFF", "ON"})
    EXPECT_NE(text.find(part), std::string::npos) << text;
}

TEST_F(OptionCheck, AnUnknownOptionNamesNearOnes) {
  EXPECT_NE(complaint({{"LxHalfCuts", "ON"}}).find("LxHalfCut"), std::string::npos);
  EXPECT_NE(complaint({{"job-prioritty", "1"}}).find("job-priority"), std::string::npos);
  EXPECT_NE(complaint({{"Zebrastripes", "1"}}).find("no such option"), std::string::npos);
}

TEST_F(OptionCheck, EachPartOfMediaIsChecked) {
  EXPECT_TRUE(check({{"media", "W24"}}));
  EXPECT_NE(complaint({{"media", "W24,Parchment"}}).find("Parchment"), std::string::npos);
}

}  // namespace
}  // namespace cutline
