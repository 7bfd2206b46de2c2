#include <gtest/gtest.h>

#include "plain/RecordingSystemLog.h"
#include "plain/StandardErrorLog.h"

namespace cutline {
namespace {

TEST(StandardErrorLog, PutsTimeAndProcessBeforeTheMessage) {
  StandardErrorLog log;
  testing::internal::CaptureStderr();
  log.log("LOG 100% of %s");
  const std::string written = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(written.ends_with("] LOG 100% of %s\n")) << written;
  EXPECT_NE(written.find(" plain_test["), std::string::npos) << written;
  EXPECT_EQ(written.find('-'), 4U) << written;
}

TEST(RecordingSystemLog, KeepsItsMessagesInOrder) {
  RecordingSystemLog log;
  log.log("first");
  log.log("second");
  EXPECT_EQ(log.messages(), (std::vector<std::string>{"first", "second"}));
}

}  // namespace
}  // namespace cutline
