// Ask queues as an administrator makes and removes them in a shell.
#include <gtest/gtest.h>

#include "tests/e2e/Program.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

class AskQueueCommand : public EndToEndTest {
 protected:
  ~AskQueueCommand() override { run("lpadmin -x tape24_ask 2>&1"); }
};

TEST_F(AskQueueCommand, AddsListsAndRemoves) {
  const CommandResult added = runProgram("--ask-queue add tape24");
  EXPECT_EQ(added.status, 0);
  EXPECT_EQ(added.output, "programs print to tape24_ask now to be asked for tape24\n");

  outputOf("lp -d tape24_ask " + labels());
  EXPECT_EQ(runProgram("--ask-queue list").output, "tape24_ask: asks for tape24; 1 waiting\n");
  const CommandResult tooEarly = runProgram("--ask-queue remove tape24");
  EXPECT_EQ(tooEarly.status, 1);
  EXPECT_NE(tooEarly.errors.find("jobs still wait"), std::string::npos) << tooEarly.errors;

  outputOf("cancel -a tape24_ask");
  const CommandResult removed = runProgram("--ask-queue remove tape24");
  EXPECT_EQ(removed.status, 0);
  EXPECT_EQ(removed.output, "tape24_ask is gone; tape24 stays\n");
  EXPECT_EQ(runProgram("--ask-queue list").output, "");
  EXPECT_EQ(outputOf("lpstat -e").find("tape24_ask"), std::string::npos);
}

TEST_F(AskQueueCommand, SaysWhatItCannotDo) {
  const struct {
    const char* words;
    const char* says;
  } cases[] = {
      {"add nosuch", "has no printer \"nosuch\""},
      {"remove tape24", "\"tape24\" has no ask queue"},
      {"list -h /nonexistent/socket", "/nonexistent/socket"},
  };
  for (const auto& [words, says] : cases) {
    const CommandResult result = runProgram(std::string("--ask-queue ") + words);
    EXPECT_EQ(result.status, 1) << words;
    EXPECT_NE(result.errors.find(says), std::string::npos) << result.errors;
  }
}

}  // namespace

}  // namespace cutline::test
