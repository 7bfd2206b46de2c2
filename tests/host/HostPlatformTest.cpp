#include <gtest/gtest.h>

#include "host/core/HostPlatform.h"
#include "plain/PlainToolkit.h"

namespace cutline {
namespace {

TEST(HostPlatform, AnswersTheVersionOfThePrintDialogPlatform) {
  HostSystemVersion version;
  std::int32_t part = -1;
  EXPECT_EQ(version.gestalt(gestaltSystemVersionMajor, &part), noErr);
  EXPECT_EQ(part, 11);
  EXPECT_EQ(version.gestalt(gestaltSystemVersionMinor, &part), noErr);
  EXPECT_EQ(part, 0);
  EXPECT_EQ(version.gestalt(gestaltSystemVersionBugFix, &part), noErr);
  EXPECT_EQ(part, 0);
}

TEST(HostPlatform, AnUnknownSelectorLeavesTheAnswerAlone) {
  HostSystemVersion version;
  std::int32_t part = 5;
  EXPECT_EQ(version.gestalt(fourCharCode("nope"), &part), gestaltUndefSelectorErr);
  EXPECT_EQ(part, 5);
}

TEST(HostPlatform, IsCurrentForAsLongAsItLives) {
  PlainToolkit toolkit;
  {
    const HostPlatform platform(toolkit);
    EXPECT_EQ(currentPlatform().toolkit, &toolkit);
    EXPECT_NE(currentPlatform().textEncodings, nullptr);
  }
  EXPECT_EQ(currentPlatform().toolkit, nullptr);
}

}  // namespace
}  // namespace cutline
