#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "composition/HelperExchange.h"
#include "host/EarlyComposer.h"

namespace cutline {
namespace {

// Whether one is started; it ends here.
bool isStarted(const std::vector<const char*>& arguments) {
  WaitingHelper helper;
  const bool isEarly =
      startEarlyComposer(static_cast<int>(arguments.size()), arguments.data(), helper);
  if (isEarly) const HelperExchange ends(helper);
  EXPECT_EQ(isEarly, helper.process > 0);
  return isEarly;
}

TEST(EarlyComposerTest, IsStartedWhereDocumentsAreToBeComposed) {
  EXPECT_TRUE(isStarted({"cutline", "--print", "-d", "tape24", "labels.pdf"}));
  EXPECT_TRUE(isStarted({"cutline", "-d", "tape24", "labels.pdf", "--print"}));
  EXPECT_TRUE(isStarted({"cutline", "--print", "-d", "tape24", "drawing.pdf"}));
  EXPECT_TRUE(isStarted({"cutline", "--dry-run", "out.pdf", "labels.pdf"}));
  EXPECT_TRUE(isStarted({"cutline", "--dry-run=out.pdf", "labels.pdf"}));
}

TEST(EarlyComposerTest, IsNotStartedOtherwise) {
  EXPECT_FALSE(isStarted({"cutline"}));
  EXPECT_FALSE(isStarted({"cutline", "labels.pdf"}));
  EXPECT_FALSE(isStarted({"cutline", "--options", "-d", "tape24"}));
  EXPECT_FALSE(isStarted({"cutline", "--print", "-o", "raw", "-d", "tape24", "labels.bin"}));
  EXPECT_FALSE(isStarted({"cutline", "--print", "-oraw", "-d", "tape24", "labels.bin"}));
  EXPECT_FALSE(isStarted({"cutline", "--print", "-o", "media=W24 raw", "labels.bin"}));
}

TEST(EarlyComposerTest, IsTheProgramBesideThisOne) {
  WaitingHelper helper;
  const char* const arguments[] = {"cutline", "--print"};
  ASSERT_TRUE(startEarlyComposer(2, arguments, helper));
  HelperExchange composer(helper);
  // It gets no files, and says nothing.
  const HelperAnswer answer = composer.ask("", {}, std::chrono::seconds(10));
  EXPECT_TRUE(answer.isInTime);
  EXPECT_EQ(answer.text, "");
  EXPECT_NE(answer.status, 0);
}

}  // namespace
}  // namespace cutline
