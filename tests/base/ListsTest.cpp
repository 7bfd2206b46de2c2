#include <gtest/gtest.h>

#include "base/Lists.h"

namespace cutline {
namespace {

using Texts = std::vector<std::string>;

TEST(Lists, ATextIsPartedAtItsCommas) {
  EXPECT_EQ(partsBetweenCommas("1-4,7"), (Texts{"1-4", "7"}));
  EXPECT_EQ(partsBetweenCommas("one"), Texts{"one"});
  EXPECT_EQ(partsBetweenCommas(""), Texts{""});
  EXPECT_EQ(partsBetweenCommas(",a,,"), (Texts{"", "a", "", ""}));
}

TEST(Lists, NamesAreListedWithCommasAndBlanks) {
  EXPECT_EQ(listed({}), "");
  EXPECT_EQ(listed({"one"}), "one");
  EXPECT_EQ(listed({"one", "two"}), "one, two");
}

}  // namespace
}  // namespace cutline
