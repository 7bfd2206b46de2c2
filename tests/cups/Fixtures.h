// The PPD files of these tests.
#pragma once

#include <string>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

inline std::string fixturePath(const std::string& name) {
  return source("tests/cups/fixtures/" + name);
}

inline std::string fixtureText(const std::string& name) { return contentsOf(fixturePath(name)); }

}  // namespace cutline::test
