// The traces of entry and exit, with typed arguments.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "bundle/diag/diagnostics.h"
#include "tests/bundle/DiagOutput.h"

namespace cutline::test {
namespace {

using Messages = std::vector<std::string>;

class Traces : public testing::Test {
 protected:
  LoggingPlatform platform;
  decltype(PDEProlog)* prolog = PDEProlog;
  decltype(PDEEpilog)* epilog = PDEEpilog;
  decltype(PDELog)* log = PDELog;
};

TEST_F(Traces, WithoutAnObjectTheMessageFollowsTheMarker) {
  log(nullptr, "x=%d", {5});
  EXPECT_EQ(platform.messages(), Messages{"LOG x=5"});
}

TEST_F(Traces, EachHasItsMarker) {
  prolog(nullptr, "a", {});
  epilog(nullptr, "b", {});
  log(nullptr, "c", {});
  EXPECT_EQ(platform.messages(), (Messages{"BEGIN a", "END b", "LOG c"}));
}

TEST_F(Traces, AnObjectIsDescribedBetweenMarkerAndMessage) {
  const TestObject panel("<panel>");
  prolog(&panel, "key:%s", {"LxHalfCut"});
  epilog(&panel, "%u", {7U});
  log(&panel, "", {});
  EXPECT_EQ(platform.messages(), (Messages{"BEGIN self(<panel>) key:LxHalfCut",
                                           "END self(<panel>) 7", "LOG self(<panel>) "}));
}

TEST_F(Traces, APercentInADescriptionIsReadAsAConversion) {
  const TestObject panel("<%d>");
  log(&panel, "and %d", {1, 2});
  EXPECT_EQ(platform.messages(), Messages{"LOG self(<1>) and 2"});
}

TEST_F(Traces, APercentInADescriptionReachesNothingThatIsNotGiven) {
  const TestObject hostile("%s%n%@%*.*f%p%");
  log(&hostile, "x", {});
  log(&hostile, "%s", {"only"});
  EXPECT_EQ(platform.messages(), (Messages{"LOG self((null)(null)(null)(null)%) x",
                                           "LOG self(only(null)(null)(null)%) (null)"}));
}

TEST_F(Traces, AConversionInAnArgumentIsNoConversion) {
  log(nullptr, "%s", {"%d%n"});
  EXPECT_EQ(platform.messages(), Messages{"LOG %d%n"});
}

TEST_F(Traces, ANullFormatIsNull) {
  const TestObject panel("<panel>");
  log(nullptr, nullptr, {});
  log(&panel, nullptr, {1});
  EXPECT_EQ(platform.messages(), (Messages{"LOG (null)", "LOG self(<panel>) (null)"}));
}

TEST_F(Traces, TheLogGetsValidText) {
  const TestObject panel("\xFF");
  log(&panel, "\xC3\xA9\x80", {});
  EXPECT_EQ(platform.messages(), Messages{"LOG self(?) \xC3\xA9?"});
}

TEST_F(Traces, WithoutASystemLogNothingHappens) {
  platform.dropLog();
  log(nullptr, "x=%d", {5});
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(Traces, ArgumentsAreReadAsTheirCStructure) {
  const struct {
    std::int32_t kind;
    std::int64_t value;
    std::size_t length;
  } items[] = {{0, -3, 0}, {99, 1, 0}};
  const struct {
    const void* items;
    std::size_t count;
  } list{items, 2};
  FormatArguments arguments;
  static_assert(sizeof list == sizeof arguments && sizeof items == 2 * sizeof(FormatArgument));
  std::memcpy(static_cast<void*>(&arguments), &list, sizeof list);
  log(nullptr, "%d %d", arguments);
  EXPECT_EQ(platform.messages(), Messages{"LOG -3 (null)"});
}

TEST_F(Traces, AListThatIsNotThereIsEmpty) {
  const struct {
    const void* items;
    std::size_t count;
  } list{nullptr, 4};
  FormatArguments arguments;
  std::memcpy(static_cast<void*>(&arguments), &list, sizeof list);
  log(nullptr, "%d", arguments);
  EXPECT_EQ(platform.messages(), Messages{"LOG (null)"});
}

}  // namespace
}  // namespace cutline::test
