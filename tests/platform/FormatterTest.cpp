#include <gtest/gtest.h>

#include "tests/platform/RecordingFormatter.h"

namespace cutline {
namespace {

TEST(DisplayedText, IsTheTextItselfWithoutAFormatter) {
  EXPECT_EQ(displayedText(nullptr, "12"), "12");
}

TEST(DisplayedText, IsTheValueAsTheFormatterShowsIt) {
  RecordingFormatter formatter;
  formatter.showMillimetres();
  EXPECT_EQ(displayedText(&formatter, "12"), "12 mm");
  EXPECT_EQ(displayedText(&formatter, "12 mm"), "12 mm");
}

TEST(DisplayedText, IsTheTextItselfWhenItStandsForNoValue) {
  RecordingFormatter formatter;
  formatter.showMillimetres();
  EXPECT_EQ(displayedText(&formatter, "abc"), "abc");
}

TEST(DisplayedText, IsTheTextItselfWhenItsValueCannotBeShown) {
  RecordingFormatter formatter;
  formatter.show = [](const std::string&) { return std::nullopt; };
  EXPECT_EQ(displayedText(&formatter, "12"), "12");
}

}  // namespace
}  // namespace cutline
