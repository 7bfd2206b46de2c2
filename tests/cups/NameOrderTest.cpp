#include <gtest/gtest.h>
#include <strings.h>

#include <random>
#include <string>

#include "cups/NameOrder.h"

namespace cutline {
namespace {

int sign(int value) { return (value > 0) - (value < 0); }

int compared(const std::string& one, const std::string& other) {
  return nameComesBefore(one, other) ? -1 : nameComesBefore(other, one) ? 1 : 0;
}

TEST(NameOrder, ItIsThatOfNamesInSmallLetters) {
  const std::vector<std::string> names = {"",
                                          "a",
                                          "A",
                                          "b",
                                          "ab",
                                          "AB",
                                          "a_b",
                                          "aZ",
                                          "Other9",
                                          "Other10",
                                          "sixteenLettersX",
                                          "sixteenLettersXY",
                                          "SIXTEENLETTERSXY",
                                          "sixteenLettersXYa",
                                          "sixteenLettersXYB",
                                          "sixteenLettersXYb1",
                                          "eightLet",
                                          "eightLetX",
                                          "a-b",
                                          "a.b",
                                          "a+b",
                                          "a0",
                                          "z"};
  for (const std::string& one : names)
    for (const std::string& other : names)
      EXPECT_EQ(compared(one, other), sign(strcasecmp(one.c_str(), other.c_str())))
          << one << " and " << other;
}

TEST(NameOrder, AnyNamesAreInIt) {
  std::mt19937 random(20250601);
  const auto name = [&random] {
    std::string text(random() % 20, 'x');
    for (char& each : text) each = "aAbB_-1.zZ"[random() % 10];
    return text;
  };
  for (int i = 0; i < 20'000; ++i) {
    const std::string one = name(), other = i % 3 == 0 ? one + name() : name();
    ASSERT_EQ(compared(one, other), sign(strcasecmp(one.c_str(), other.c_str())))
        << one << " and " << other;
  }
}

TEST(NameOrder, WhatHasTheSameNameKeepsItsOrder) {
  std::vector<std::string> names = {"b1", "a1", "B2", "c1", "A2", "b3", "a3"};
  sortByName(names, [](const std::string& each) { return std::string_view(each).substr(0, 1); });
  EXPECT_EQ(names, (std::vector<std::string>{"a1", "A2", "a3", "b1", "B2", "b3", "c1"}));
}

}  // namespace
}  // namespace cutline
