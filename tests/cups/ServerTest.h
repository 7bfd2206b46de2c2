// What the tests with a print server share: one server a program, and a clean home a test.
#pragma once

#include <gtest/gtest.h>

#include "cups/Destinations.h"
#include "tests/support/PrivateServer.h"

namespace cutline::test {

class ServerTest : public testing::Test {
 protected:
  ServerTest();

  static PrivateServer& server();
  // The server's default printer and another one.
  static const std::string& printer();
  static const std::string& otherPrinter();
  // The user's file of saved options.
  std::string savedText() const;
  void writeSaved(const std::string& text) const;
};

}  // namespace cutline::test
