#include <gtest/gtest.h>

#include "platform/ports/Platform.h"
#include "platform/ports/System.h"

namespace cutline {
namespace {

class ElevenPointTwo : public SystemVersion {
 public:
  OSStatus gestalt(std::uint32_t selector, std::int32_t* response) noexcept override {
    if (selector != gestaltSystemVersionMajor && selector != gestaltSystemVersionMinor) {
      return gestaltUndefSelectorErr;
    }
    *response = selector == gestaltSystemVersionMajor ? 11 : 2;
    return noErr;
  }
};

class SystemVersionTest : public testing::Test {
 protected:
  void setVersion(SystemVersion* version) {
    Platform platform = currentPlatform();
    platform.systemVersion = version;
    setCurrentPlatform(platform);
  }
  void TearDown() override { setCurrentPlatform(mBefore); }

 private:
  Platform mBefore = currentPlatform();
};

TEST_F(SystemVersionTest, GestaltAsksTheCurrentPlatform) {
  ElevenPointTwo version;
  setVersion(&version);
  std::int32_t response = -1;
  EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, &response), noErr);
  EXPECT_EQ(response, 11);
  EXPECT_EQ(Gestalt(gestaltSystemVersionMinor, &response), noErr);
  EXPECT_EQ(response, 2);
}

TEST_F(SystemVersionTest, AnUnknownSelectorLeavesTheResponse) {
  ElevenPointTwo version;
  setVersion(&version);
  std::int32_t response = -1;
  EXPECT_EQ(Gestalt(fourCharCode("none"), &response), gestaltUndefSelectorErr);
  EXPECT_EQ(response, -1);
}

TEST_F(SystemVersionTest, APlatformWithoutAVersionKnowsNoSelector) {
  setVersion(nullptr);
  std::int32_t response = -1;
  EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, &response), gestaltUndefSelectorErr);
  EXPECT_EQ(response, -1);
}

TEST(FourCharCode, PutsTheFirstCharacterHighest) {
  EXPECT_EQ(gestaltSystemVersionMajor, 0x73797331U);
}

}  // namespace
}  // namespace cutline
