#include "bundle/ppd/text_bytes.h"

#include <gtest/gtest.h>

#include "tests/bundle/TestPlatform.h"

namespace cutline::test {
namespace {

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
