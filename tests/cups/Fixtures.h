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

// The text with one thing wherever the other stood.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

}  // namespace cutline::test
