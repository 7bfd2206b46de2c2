// The characters of a scheme, at the edges of their ranges.
#include <gtest/gtest.h>

#include "bundle/options/uri_scheme.h"

namespace cutline {
namespace {

TEST(UriSchemeBounds, EveryLetterDigitAndThreeSignsBelong) {
  for (int i = 1; i < 256; ++i) {
    const char c = static_cast<char>(i);
    if (c == ':') continue;
    const bool isLetter = (i >= 'a' && i <= 'z') || (i >= 'A' && i <= 'Z');
    const bool isDigit = i >= '0' && i <= '9';
    const bool isSign = c == '+' || c == '-' || c == '.';
    const std::string behind = std::string("x") + c;
    EXPECT_EQ(schemeOfURI(behind + "://x"), isLetter || isDigit || isSign ? behind : "") << i;
    const std::string first = std::string(1, c) + "x";
    EXPECT_EQ(schemeOfURI(first + "://x"), isLetter ? first : "") << i;
  }
}

TEST(UriSchemeBounds, ASchemeMayBeOneLetterAndEndsAtTheFirstColon) {
  EXPECT_EQ(schemeOfURI("a:"), "a");
  EXPECT_EQ(schemeOfURI("a:b:c"), "a");
  EXPECT_EQ(schemeOfURI(":"), "");
  EXPECT_EQ(schemeOfURI(""), "");
}

}  // namespace
}  // namespace cutline
