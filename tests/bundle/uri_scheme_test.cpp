#include "bundle/options/uri_scheme.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace cutline::test {
namespace {

TEST(UriScheme, StandsBeforeTheFirstColon) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"usb://maker/model?serial=1", "usb"},
      {"LXKMUSB://x", "LXKMUSB"},
      {"USB://x", "USB"},
      {"ipp+usb.v-2:x", "ipp+usb.v-2"},
      {"usb", ""},
      {"", ""},
      {":x", ""},
      {"1usb:x", ""},
      {"us b:x", ""},
      {"/dev/usb:1", ""},
  };
  for (const auto& [uri, scheme] : expected) EXPECT_EQ(schemeOfURI(uri), scheme) << uri;
}

}  // namespace
}  // namespace cutline::test
