// What the tests of the whole share: one print server a program, a clean home a test, and what was
// printed since the test began.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/support/Command.h"
#include "tests/support/PrintedJob.h"

namespace cutline::test {

// The sample printers' queues.
inline constexpr const char* kPrinters[] = {"tape24", "tapeb", "roll62"};

// Runs the program's tests with a print server, whose client this process is from now on. libcups
// reads the environment once a thread, so this comes before its first call. `arguments` as for
// PrivateServer. Answers main's status.
int runAllTestsWithServer(const std::string& arguments = {});
// That server.
PrivateServer& server();
// Twelve labels on as many pages.
std::string labels();
constexpr int kLabels = 12;

class EndToEndTest : public testing::Test {
 protected:
  EndToEndTest();

  // The one job that was printed since the test began, or since the last call. Fails the test, and
  // answers an empty job, unless there is exactly one.
  PrintedJob newJob();
  // All of them, in their order.
  std::vector<PrintedJob> newJobs();
  // Whether nothing was printed since then; waits until the server has no job left.
  bool nothingNew() const;

 private:
  std::set<int> mBefore;
};

}  // namespace cutline::test
