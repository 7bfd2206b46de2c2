#include "bundle/ppd/text_bytes.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/bundle/TestPlatform.h"

namespace cutline::test {
namespace {

TEST(TextBytes, ReadsTheLeadingInteger) {
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
  for (const auto& [text, value] : expected) EXPECT_EQ(integerValue(text), value) << text;
}

TEST(TextBytes, ConvertsWithThePlatformsEncodingsOnly) {
  TestPlatform platform;
  EXPECT_EQ(decodedText("ä", TextEncoding::utf8), "ä");
  EXPECT_EQ(decodedText("ä", TextEncoding::ascii), std::nullopt);
  EXPECT_EQ(decodedText(nullptr, TextEncoding::utf8), std::nullopt);
  EXPECT_EQ(encodedText("ä", TextEncoding::ascii), std::nullopt);
  platform.dropTextEncodings();
  EXPECT_EQ(decodedText("a", TextEncoding::utf8), std::nullopt);
  EXPECT_EQ(encodedText("a", TextEncoding::utf8), std::nullopt);
}

}  // namespace
}  // namespace cutline::test
