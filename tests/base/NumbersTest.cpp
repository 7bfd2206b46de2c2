#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/Numbers.h"

namespace cutline {
namespace {

TEST(Numbers, AllOfTheTextIsTheNumber) {
  EXPECT_EQ(numberIn<int>("0"), 0);
  EXPECT_EQ(numberIn<int>("-12"), -12);
  EXPECT_EQ(numberIn<int>("007"), 7);
  for (const char* other : {"", " 1", "1 ", "+1", "1.5", "0x1", "one", "1-"})
    EXPECT_EQ(numberIn<int>(other), std::nullopt) << other;
}

TEST(Numbers, WhatTheTypeCannotHoldIsNone) {
  EXPECT_EQ(numberIn<std::uint8_t>("255"), 255);
  EXPECT_EQ(numberIn<std::uint8_t>("256"), std::nullopt);
  EXPECT_EQ(numberIn<unsigned>("-1"), std::nullopt);
  EXPECT_EQ(numberIn<int>("99999999999"), std::nullopt);
}

TEST(Numbers, TheBaseCanBeGiven) {
  EXPECT_EQ(numberIn<unsigned>("7f", 16), 0x7fU);
  EXPECT_EQ(numberIn<unsigned>("7g", 16), std::nullopt);
}

TEST(Numbers, TheLeadingIntegerIsReadAndClamped) {
  const std::vector<std::pair<std::string, int>> expected = {{"12", 12},
                                                             {" \t7 labels", 7},
                                                             {"-3", -3},
                                                             {"+4", 4},
                                                             {"abc", 0},
                                                             {"", 0},
                                                             {"   ", 0},
                                                             {"-", 0},
                                                             {"1.9", 1},
                                                             {"- 1", 0},
                                                             {"007", 7},
                                                             {"99999999999999999999", INT_MAX},
                                                             {"-99999999999", INT_MIN}};
  for (const auto& [text, value] : expected) EXPECT_EQ(leadingInteger(text), value) << text;
}

TEST(Numbers, OneIsTakenOffTheTextAndNoneLeavesItAsItWas) {
  std::string_view text = "-1.5e1 mm";
  EXPECT_EQ(takeNumber(text), -15);
  EXPECT_EQ(text, " mm");
  EXPECT_EQ(takeNumber(text), std::nullopt);
  EXPECT_EQ(text, " mm");
  std::string_view vast = "1e999";
  EXPECT_EQ(takeNumber(vast), std::nullopt);
  EXPECT_EQ(vast, "1e999");
}

}  // namespace
}  // namespace cutline
