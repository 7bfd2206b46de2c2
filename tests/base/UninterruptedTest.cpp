#include <gtest/gtest.h>

#include "base/Uninterrupted.h"

namespace cutline {
namespace {

// A call that is broken off this often, and then gives the answer with that reason.
struct Call {
  int interruptions = 0;
  int answer = 0;
  int reason = 0;
  int made = 0;

  int make() {
    const bool isBrokenOff = made++ < interruptions;
    errno = isBrokenOff ? EINTR : reason;
    return isBrokenOff ? -1 : answer;
  }
};

TEST(Uninterrupted, MakesTheCallUntilNoSignalBreaksItOff) {
  Call call{.interruptions = 3, .answer = 7};
  EXPECT_EQ(uninterrupted([&] { return call.make(); }), 7);
  EXPECT_EQ(call.made, 4);
}

TEST(Uninterrupted, LeavesOtherErrorsToItsCaller) {
  Call call{.interruptions = 1, .answer = -1, .reason = EIO};
  EXPECT_EQ(uninterrupted([&] { return call.make(); }), -1);
  EXPECT_EQ(errno, EIO);
  EXPECT_EQ(call.made, 2);
}

TEST(Uninterrupted, MakesACallThatAnswersAtOnceOnce) {
  Call call{.reason = EINTR};
  EXPECT_EQ(uninterrupted([&] { return call.make(); }), 0);
  EXPECT_EQ(call.made, 1);
}

}  // namespace
}  // namespace cutline
