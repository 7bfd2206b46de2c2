// The field that reports: what it posts, and what it hands on to the toolkit's field.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bundle/textinput/PDETextField13_v400_.h"
#include "plain/PlainControls.h"
#include "platform/ports/TextField.h"
#include "tests/bundle/TestPlatform.h"

namespace cutline::test {
namespace {

using Calls = std::vector<std::string>;

// A toolkit's field that does what a test says and notes what it is asked for.
class ScriptedTextField final : public PlainText<TextField> {
 public:
  ScriptedTextField() : PlainText<TextField>({}, nullptr) {}

  void setFormatter(std::shared_ptr<Formatter>) noexcept override { calls.emplace_back("format"); }
  Formatter* formatter() const noexcept override { return nullptr; }
  void setClient(std::shared_ptr<TextFieldClient>) noexcept override {}
  void selectText(View*) noexcept override { calls.emplace_back("select"); }
  bool superBecomeFirstResponder() noexcept override {
    calls.emplace_back("become");
    return becomes;
  }
  bool superResignFirstResponder() noexcept override {
    calls.emplace_back("resign");
    return resigns;
  }
  void superTextDidChange(const Notification&) noexcept override { calls.emplace_back("change"); }
  void superTextDidEndEditing(const Notification& notification) override {
    calls.push_back("end " + notification.name);
    if (raises) throw Exception{"raised by the toolkit"};
  }
  void setTextDidChange(std::function<void()>) noexcept override { calls.emplace_back("delegate"); }

  struct Exception {
    std::string reason;
  };

  bool becomes = true;
  bool resigns = true;
  bool raises = false;
  Calls calls;
};

class PDETextFieldTest : public testing::Test {
 protected:
  PDETextFieldTest() {
    platform.center.addObserver(
        this, [this](const Notification& notification) { posted.push_back(notification.object); },
        "TextFieldResignFirstResponderNotification", {});
  }

  TestPlatform platform;
  std::vector<NotificationObject> posted;
  ScriptedTextField field;
  PDETextField13_v400_ client{field};
  const NotificationObject fieldItself = static_cast<const void*>(static_cast<const View*>(&field));
  const Notification event{"NSControlTextDidChangeNotification", fieldItself};
};

TEST_F(PDETextFieldTest, OnlyAFalseFlagReports) {
  client.sendFirstResponderNotification(true);
  EXPECT_TRUE(posted.empty());
  client.sendFirstResponderNotification(false);
  EXPECT_EQ(posted, std::vector{fieldItself});
  EXPECT_EQ(field.calls, Calls());
}

TEST_F(PDETextFieldTest, ClickingIntoTheFieldPostsNothing) {
  EXPECT_TRUE(client.becomeFirstResponder());
  EXPECT_EQ(field.calls, Calls{"become"});
  EXPECT_TRUE(posted.empty());
}

TEST_F(PDETextFieldTest, AFieldThatDoesNotTakeTheKeyboardSaysSo) {
  field.becomes = false;
  EXPECT_FALSE(client.becomeFirstResponder());
  EXPECT_EQ(field.calls, Calls{"become"});
  EXPECT_TRUE(posted.empty());
}

TEST_F(PDETextFieldTest, TypingThreeCharactersPostsThreeTimesAboutTheField) {
  for (int i = 0; i < 3; ++i) client.textDidChange(event);
  EXPECT_EQ(posted, std::vector(3, fieldItself));
}

TEST_F(PDETextFieldTest, AChangeIsKeptFromTheToolkitsField) {
  client.textDidChange(event);
  EXPECT_EQ(field.calls, Calls());
}

TEST_F(PDETextFieldTest, TabbingOutPostsNothing) {
  client.textDidEndEditing({"ended", {}});
  EXPECT_EQ(field.calls, (Calls{"end ended", "resign"}));
  EXPECT_TRUE(posted.empty());
}

TEST_F(PDETextFieldTest, TabbingOutPostsNothingWhereTheKeyboardIsKept) {
  field.resigns = false;
  client.textDidEndEditing({"ended", {}});
  EXPECT_EQ(field.calls, (Calls{"end ended", "resign"}));
  EXPECT_TRUE(posted.empty());
}

TEST_F(PDETextFieldTest, AnExceptionOfTheToolkitPassesUnchanged) {
  field.raises = true;
  std::string reason;
  try {
    client.textDidEndEditing({"ended", {}});
  } catch (const ScriptedTextField::Exception& exception) {
    reason = exception.reason;
  }
  EXPECT_EQ(reason, "raised by the toolkit");
  EXPECT_EQ(field.calls, Calls{"end ended"});
  EXPECT_TRUE(posted.empty());
}

TEST_F(PDETextFieldTest, SelectingTheTextPostsOnceAndSelectsNothing) {
  client.selectText(&field);
  EXPECT_EQ(posted, std::vector{fieldItself});
  client.selectText(nullptr);
  EXPECT_EQ(posted, std::vector(2, fieldItself));
  EXPECT_EQ(field.calls, Calls());
}

TEST_F(PDETextFieldTest, AnEventsOwnObjectIsOfNoMatter) {
  client.textDidChange({"NSControlTextDidChangeNotification", std::string("another")});
  EXPECT_EQ(posted, std::vector{fieldItself});
}

TEST_F(PDETextFieldTest, ASessionOfEditingReportsItsChangesAlone) {
  client.becomeFirstResponder();
  client.textDidChange(event);
  client.textDidChange(event);
  client.textDidEndEditing({"ended", {}});
  EXPECT_EQ(posted, std::vector(2, fieldItself));
}

TEST_F(PDETextFieldTest, WithoutAPlatformTheProcessesOwnCentreHears) {
  const Platform before = setCurrentPlatform({});
  NotificationCenter& center = NotificationCenter::defaultCenter();
  int heard = 0;
  const char* const name = "TextFieldResignFirstResponderNotification";
  center.addObserver(
      &heard, [&](const Notification&) { ++heard; }, name, fieldItself);
  client.textDidChange(event);
  center.removeObserver(&heard, name, {});
  setCurrentPlatform(before);
  EXPECT_EQ(heard, 1);
  EXPECT_TRUE(posted.empty());
}

}  // namespace
}  // namespace cutline::test
