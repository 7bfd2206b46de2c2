#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/lib/LocalNotificationCenter.h"
#include "platform/ports/Platform.h"

namespace cutline {
namespace {

constexpr char kPaper[] = "PaperDidChange";

class LocalNotificationCenterTest : public testing::Test {
 protected:
  // A handler that writes `word` into the log.
  NotificationCenter::Handler says(const std::string& word) {
    return [this, word](const Notification&) { log.push_back(word); };
  }

  LocalNotificationCenter center;
  std::vector<std::string> log;
  int first = 0;  // their addresses are the observers' identities
  int second = 0;
};

TEST_F(LocalNotificationCenterTest, DeliversInTheOrderOfRegistrationBeforePostingReturns) {
  center.addObserver(&first, says("first"), kPaper, {});
  center.addObserver(&second, says("second"), kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, (std::vector<std::string>{"first", "second"}));
}

TEST_F(LocalNotificationCenterTest, HandsNameAndObjectOver) {
  Notification heard;
  center.addObserver(&first, [&](const Notification& one) { heard = one; }, kPaper, {});
  center.postNotificationName(kPaper, std::string("tape"));
  EXPECT_EQ(heard.name, kPaper);
  EXPECT_EQ(heard.object, NotificationObject(std::string("tape")));
}

TEST_F(LocalNotificationCenterTest, OtherNamesAreNotHeard) {
  center.addObserver(&first, says("first"), kPaper, {});
  center.postNotificationName("SomethingElse", {});
  EXPECT_TRUE(log.empty());
}

struct ObjectRow {
  const char* name;
  NotificationObject registered;
  NotificationObject posted;
  bool heard;
};

const int kOneObject = 1;
const int kOtherObject = 2;

class NotificationObjects : public testing::TestWithParam<ObjectRow> {};

TEST_P(NotificationObjects, AreHeardWhenTheyMatch) {
  LocalNotificationCenter center;
  int calls = 0;
  center.addObserver(
      &center, [&](const Notification&) { ++calls; }, kPaper, GetParam().registered);
  center.postNotificationName(kPaper, GetParam().posted);
  EXPECT_EQ(calls, GetParam().heard ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NotificationObjects,
    testing::Values(
        ObjectRow{"AnyHearsNone", {}, {}, true},
        ObjectRow{"AnyHearsAnObject", {}, static_cast<const void*>(&kOneObject), true},
        ObjectRow{"AnyHearsText", {}, std::string("tape"), true},
        ObjectRow{"ObjectHearsItself", static_cast<const void*>(&kOneObject),
                  static_cast<const void*>(&kOneObject), true},
        ObjectRow{"ObjectIgnoresAnother", static_cast<const void*>(&kOneObject),
                  static_cast<const void*>(&kOtherObject), false},
        ObjectRow{"ObjectIgnoresNone", static_cast<const void*>(&kOneObject), {}, false},
        ObjectRow{"TextHearsEqualText", std::string("tape"), std::string("tape"), true},
        ObjectRow{"TextIgnoresOtherText", std::string("tape"), std::string("roll"), false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LocalNotificationCenterTest, RemovingWithoutAnObjectRemovesEveryObjectOfThatObserver) {
  center.addObserver(&first, says("any"), kPaper, {});
  center.addObserver(&first, says("text"), kPaper, std::string("tape"));
  center.addObserver(&second, says("second"), kPaper, {});
  center.removeObserver(&first, kPaper, {});
  center.postNotificationName(kPaper, std::string("tape"));
  EXPECT_EQ(log, std::vector<std::string>{"second"});
}

TEST_F(LocalNotificationCenterTest, RemovingWithAnObjectKeepsTheOthers) {
  center.addObserver(&first, says("tape"), kPaper, std::string("tape"));
  center.addObserver(&first, says("roll"), kPaper, std::string("roll"));
  center.addObserver(&first, says("any"), kPaper, {});
  center.removeObserver(&first, kPaper, std::string("tape"));
  center.postNotificationName(kPaper, std::string("tape"));
  center.postNotificationName(kPaper, std::string("roll"));
  EXPECT_EQ(log, (std::vector<std::string>{"any", "roll", "any"}));
}

TEST_F(LocalNotificationCenterTest, RemovingKeepsOtherNames) {
  center.addObserver(&first, says("paper"), kPaper, {});
  center.addObserver(&first, says("other"), "Other", {});
  center.removeObserver(&first, kPaper, {});
  center.postNotificationName("Other", {});
  EXPECT_EQ(log, std::vector<std::string>{"other"});
}

TEST_F(LocalNotificationCenterTest, RemovingAStrangerDoesNothing) {
  center.addObserver(&first, says("first"), kPaper, {});
  center.removeObserver(&second, kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, std::vector<std::string>{"first"});
}

TEST_F(LocalNotificationCenterTest, AnObserverRemovedDuringDeliveryIsNotCalledAnyMore) {
  center.addObserver(
      &first, [&](const Notification&) { center.removeObserver(&second, kPaper, {}); }, kPaper, {});
  center.addObserver(&second, says("second"), kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_TRUE(log.empty());
}

TEST_F(LocalNotificationCenterTest, AnObserverMayRemoveItself) {
  const std::string word = "a word too long to be kept inside of a string object";
  center.addObserver(&first,
                     [this, word](const Notification&) {
                       center.removeObserver(&first, kPaper, {});
                       log.push_back(word);  // what the handler holds is still there
                     },
                     kPaper, {});
  center.postNotificationName(kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, std::vector<std::string>{word});
}

TEST_F(LocalNotificationCenterTest, AnObserverAddedDuringDeliveryHearsTheNextOne) {
  center.addObserver(&first,
                     [&](const Notification&) {
                       if (log.empty()) center.addObserver(&second, says("second"), kPaper, {});
                       log.emplace_back("first");
                     },
                     kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, std::vector<std::string>{"first"});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, (std::vector<std::string>{"first", "first", "second"}));
}

TEST_F(LocalNotificationCenterTest, HandlersMayPost) {
  center.addObserver(&first, [&](const Notification&) { center.postNotificationName("Inner", {}); },
                     kPaper, {});
  center.addObserver(&first, says("inner"), "Inner", {});
  center.addObserver(&second, says("outer"), kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, (std::vector<std::string>{"inner", "outer"}));
}

TEST_F(LocalNotificationCenterTest, TheNotificationOutlivesWhatThePosterPassed) {
  auto name = std::make_unique<std::string>(kPaper);
  center.addObserver(&first, [&](const Notification&) { name.reset(); }, kPaper, {});
  center.addObserver(&second, [&](const Notification& one) { log.push_back(one.name); }, kPaper,
                     {});
  center.postNotificationName(*name, {});
  EXPECT_EQ(log, std::vector<std::string>{kPaper});
}

TEST_F(LocalNotificationCenterTest, AnEmptyHandlerIsNoObserver) {
  center.addObserver(&first, {}, kPaper, {});
  center.addObserver(&second, says("second"), kPaper, {});
  center.postNotificationName(kPaper, {});
  EXPECT_EQ(log, std::vector<std::string>{"second"});
}

TEST_F(LocalNotificationCenterTest, DefaultCentreIsOneAndThePlatformMayReplaceIt) {
  NotificationCenter& own = NotificationCenter::defaultCenter();
  EXPECT_EQ(&own, &NotificationCenter::defaultCenter());
  Platform platform = currentPlatform();
  platform.notificationCenter = &center;
  const Platform before = setCurrentPlatform(platform);
  EXPECT_EQ(&NotificationCenter::defaultCenter(), &center);
  setCurrentPlatform(before);
  EXPECT_EQ(&NotificationCenter::defaultCenter(), &own);
}

}  // namespace
}  // namespace cutline
