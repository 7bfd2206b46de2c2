// Which drivers our dialog is for.
#include <gtest/gtest.h>

#include "portal/MeantPrinter.h"
#include "tests/support/Command.h"
#include "tests/support/OtherDrivers.h"

namespace cutline::portal {
namespace {

using test::source;

bool isForLabels(const std::string& path) { return isLabelPrinter(**PpdFile::open(path)); }

TEST(LabelPrinter, HasCutOptions) {
  for (const std::string name : {"tape-a", "tape-b", "roll"})
    EXPECT_TRUE(isForLabels(source("samples/ppd/" + name + ".ppd"))) << name;
}

TEST(LabelPrinter, HasWordsForCuttingThatAreKnown) {
  EXPECT_TRUE(isLabelPrinter(*ppdFor(test::cutMediaPrinter())));
}

TEST(LabelPrinter, IsNoOfficePrinter) {
  EXPECT_FALSE(isForLabels(source("tests/portal/office.ppd")));
}

}  // namespace
}  // namespace cutline::portal
