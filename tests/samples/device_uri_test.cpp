#include <gtest/gtest.h>

#include "samples/printer/DeviceUri.h"

namespace cutline::test {
namespace {

using printer::deviceUriOf;

TEST(DeviceUri, NamesAFolder) {
  const auto uri = deviceUriOf("cutline-strip:/var/labels");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/var/labels");
  EXPECT_EQ(uri->pace, 0U);
}

TEST(DeviceUri, MayNameAPace) {
  const auto uri = deviceUriOf("cutline-strip:/labels?pace=250");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/labels");
  EXPECT_EQ(uri->pace, 250U);
}

TEST(DeviceUri, ResolvesEscapes) {
  const auto uri = deviceUriOf("cutline-strip:/my%20labels/%3f");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/my labels/?");
}

TEST(DeviceUri, RefusesWhatItIsNot) {
  for (const char* text :
       {"", "cutline-strip", "cutline-strip:", "cutline-strip:relative", "file:/labels",
        "cutline-strip:/a%2", "cutline-strip:/a%zz", "cutline-strip:/a%00b",
        "cutline-strip:/a?pace=", "cutline-strip:/a?pace=-1", "cutline-strip:/a?pace=9999999",
        "cutline-strip:/a?speed=1", "cutline-strip:/a?pace=1x"}) {
    EXPECT_FALSE(deviceUriOf(text)) << text;
  }
}

}  // namespace
}  // namespace cutline::test
