// The command that runs the tests: its words, and what it shows of a failure.
#include <gtest/gtest.h>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

TEST(TestCommand, Helps) {
  const CommandResult result = run(source("test --help"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output.find("Usage: ./test"), 0U) << result.output;
  EXPECT_NE(result.output.find("--long"), std::string::npos);
}

TEST(TestCommand, KnowsItsWords) {
  EXPECT_EQ(run(source("test --lnog")).status, 2);
  const CommandResult result = run(source("test no_such_test"));
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.errors, "cutline: there is no test program no_such_test\n");
}

// What the script prints of a log.
std::string failuresIn(const std::string& log) {
  const TemporaryFolder folder;
  return run(source("scripts/failures ") + folder.write("log", log)).output;
}

TEST(Failures, AreThoseOfTheFailedTestsAlone) {
  EXPECT_EQ(failuresIn("Test project /build\n"
                       "    Start 1: some_test\n"
                       "1/2 Test #1: some_test ....***Failed    0.01 sec\n"
                       "Running main() from gtest_main.cc\n"
                       "[==========] Running 2 tests from 1 test suite.\n"
                       "[ RUN      ] Some.Good\n"
                       "chatter\n"
                       "[       OK ] Some.Good (0 ms)\n"
                       "[ RUN      ] Some.Bad\n"
                       "some_test.cpp:7: Failure\n"
                       "[  FAILED  ] Some.Bad (3 ms)\n"
                       "[----------] Global test environment tear-down\n"
                       "[  PASSED  ] 1 test.\n"
                       "[  FAILED  ] 1 test, listed below:\n"
                       "[  FAILED  ] Some.Bad\n"
                       "\n"
                       " 1 FAILED TEST\n"
                       "2/2 Test #2: other_test ....   Passed    0.01 sec\n"
                       "\n"
                       "50% tests passed, 1 tests failed out of 2\n"
                       "Total Test time (real) =   0.01 sec\n"),
            "1/2 Test #1: some_test ....***Failed    0.01 sec\n"
            "[ RUN      ] Some.Bad\n"
            "some_test.cpp:7: Failure\n"
            "[  FAILED  ] Some.Bad (3 ms)\n");
}

TEST(Failures, NameTheTestInWhichAProgramEnded) {
  EXPECT_EQ(failuresIn("1/1 Test #1: some_test ....***Exception: SegFault  0.01 sec\n"
                       "[ RUN      ] Some.Bad\n"
                       "last words\n"
                       "\n"
                       "0% tests passed, 1 tests failed out of 1\n"),
            "1/1 Test #1: some_test ....***Exception: SegFault  0.01 sec\n"
            "[ RUN      ] Some.Bad\n"
            "last words\n"
            "\n"
            "(the program ended here)\n");
}

TEST(Failures, AreShownThatComeAfterTheTests) {
  EXPECT_EQ(failuresIn("1/1 Test #1: some_test ....***Failed  0.01 sec\n"
                       "[ RUN      ] Some.Good\n"
                       "[       OK ] Some.Good (0 ms)\n"
                       "[----------] Global test environment tear-down\n"
                       "[==========] 1 test from 1 test suite ran. (0 ms total)\n"
                       "[  PASSED  ] 1 test.\n"
                       "ERROR: LeakSanitizer: detected memory leaks\n"),
            "1/1 Test #1: some_test ....***Failed  0.01 sec\n"
            "ERROR: LeakSanitizer: detected memory leaks\n");
}

}  // namespace
}  // namespace cutline::test
