// The diagnostic functions under their exported names, called with plain C arguments in the staged
// module.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/bundle/DiagModule.h"
#include "tests/bundle/diag_calls.h"

namespace cutline::test {
namespace {

using Messages = std::vector<std::string>;

class CCalls : public testing::Test {
 protected:
  LoggingPlatform platform;
  Diagnostics functions = {diagnostic<decltype(_PDEProlog)>("_PDEProlog"),
                           diagnostic<decltype(_PDEEpilog)>("_PDEEpilog"),
                           diagnostic<decltype(_PDELog)>("_PDELog"),
                           diagnostic<decltype(::debugLog)>("debugLog"),
                           diagnostic<decltype(::debugLogFd)>("debugLogFd"),
                           diagnostic<decltype(::memoryCheck)>("memoryCheck"),
                           diagnostic<decltype(::memoryCheckFd)>("memoryCheckFd")};
};

TEST_F(CCalls, TracesTakePlainArguments) {
  callTraces(&functions);
  EXPECT_EQ(platform.messages(), (Messages{"LOG x=5", "BEGIN LxHalfCut has 3 of 4 choices, 75.0%",
                                           "END A0x10", "LOG no conversion", "LOG (null)"}));
}

TEST_F(CCalls, AnObjectOfTheBundleIsNamed) {
  const TestObject object("<panel>");
  callTraceOf(&functions, static_cast<const Describable*>(&object));
  EXPECT_EQ(platform.messages(), Messages{"LOG self(<panel>) x=5"});
}

TEST_F(CCalls, ADescriptionReachesNoArgumentThatTheFormatDoesNotName) {
  const TestObject number("<%d|%d>");
  callTraceOf(&functions, static_cast<const Describable*>(&number));
  const TestObject text("<%s|%s|%@|%n|%*.*f>");
  callTraceOf(&functions, static_cast<const Describable*>(&text));
  EXPECT_EQ(platform.messages(), (Messages{"LOG self(<5|(null)>) x=(null)",
                                           "LOG self(<(null)|(null)|(null)||(null)>) x=(null)"}));
}

TEST_F(CCalls, EveryLengthIsTakenAsItIs) {
  callWithEveryLength(&functions);
  EXPECT_EQ(platform.messages(), (Messages{"LOG 1 1 -1 -2 -3 -4 5 -6", "LOG ff 10000000000 10 7",
                                           "LOG 0.5 0.25 1.000000e+03"}));
}

TEST_F(CCalls, StarsAreTakenBeforeTheirValue) {
  callWithStars(&functions);
  EXPECT_EQ(platform.messages(), Messages{"LOG [   7] [7   ] [1.50] [   te]"});
}

TEST_F(CCalls, TextsAreReadNoFurtherThanTheyGo) {
  callWithOddTexts(&functions);
  EXPECT_EQ(platform.messages(),
            (Messages{"LOG abc|object|(null)|(null)", "LOG no count77", "LOG %y 1 %"}));
}

TEST_F(CCalls, StreamsTakePlainArguments) {
  std::string onDescriptor;
  const std::string onError =
      onStandardError([&] { onDescriptor = onPipe([&](int to) { callStreams(&functions, to); }); });
  EXPECT_EQ(onError, "DEBUG: x=5\nDEBUG: ");
  EXPECT_EQ(onDescriptor, "y=6\n");
}

TEST_F(CCalls, DumpsTakePlainArguments) {
  std::string onDescriptor;
  const std::string onError =
      onStandardError([&] { onDescriptor = onPipe([&](int to) { callDumps(&functions, to); }); });
  EXPECT_EQ(onError, "DEBUG:01abff");
  EXPECT_EQ(onDescriptor, "01abff\n");
}

}  // namespace
}  // namespace cutline::test
