#include <gtest/gtest.h>

#include <cstdint>

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

}  // namespace
}  // namespace cutline
