// A text field with a behaviour of a bundle's own.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <algorithm>

#include "plain/RecordingSystemLog.h"
#include "platform/ports/Platform.h"
#include "platform/ports/TextField.h"
#include "tests/platform/RecordingClient.h"
#include "tests/platform/ToolkitScope.h"
#include "tests/qt/LineUser.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

constexpr char kChange[] = "change NSTextDidChangeNotification";
constexpr char kEnd[] = "end NSTextDidEndEditingNotification";

class QtTextFieldClientTest : public QtPanelFixture {
 protected:
  QtTextFieldClientTest() {
    field->setStringValue("12");
    field->setClient(client);
    field->setTextDidChange([this] { events.emplace_back("handler"); });
    field->setAction(recorded());
  }

  void SetUp() override {
    show();
    other->setFocus();
    events.clear();
  }

  std::shared_ptr<TextField> field = toolkit.createTextField({{36, 100}, {80, 22}});
  std::shared_ptr<TextField> elsewhere = toolkit.createTextField({{36, 50}, {80, 22}});
  std::shared_ptr<RecordingClient> client = std::make_shared<RecordingClient>(*field, events);
  QLineEdit* line = put<QLineEdit>(field);
  QLineEdit* other = put<QLineEdit>(elsewhere);
  LineUser user{line};
};

TEST_F(QtTextFieldClientTest, BecomesFirstResponderByAClick) {
  QTest::mouseClick(line, Qt::LeftButton);
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(events, (Events{"become"}));
}

TEST_F(QtTextFieldClientTest, BecomesFirstResponderByTheTabKeyWithItsTextSelected) {
  QWidget::setTabOrder(other, line);
  QTest::keyClick(other, Qt::Key_Tab);
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(line->selectedText(), "12");
  EXPECT_EQ(events, (Events{"become"}));
}

TEST_F(QtTextFieldClientTest, BecomesFirstResponderByTheProgram) {
  line->setFocus();
  EXPECT_EQ(events, (Events{"become"}));
}

TEST_F(QtTextFieldClientTest, TakesTheKeyboardAsTheToolkitsFieldDoes) {
  EXPECT_TRUE(field->superBecomeFirstResponder());
  EXPECT_TRUE(line->hasFocus());
  EXPECT_TRUE(events.empty());
  field->setEnabled(false);
  EXPECT_FALSE(field->superBecomeFirstResponder());
}

TEST_F(QtTextFieldClientTest, MayRefuseTheKeyboard) {
  client->takesKeyboard = false;
  line->setFocus();
  EXPECT_FALSE(line->hasFocus());
  EXPECT_EQ(events, (Events{"become"}));
}

TEST_F(QtTextFieldClientTest, HearsOfEachChangeAndMayKeepItToItself) {
  client->passesOn = false;
  line->setFocus();
  user.type("34");
  user.undo();
  EXPECT_EQ(events, (Events{"become", kChange, kChange, kChange}));
  const View* view = field.get();
  EXPECT_EQ(client->lastObject, NotificationObject(static_cast<const void*>(view)));
  EXPECT_EQ(field->stringValue(), "12");
}

TEST_F(QtTextFieldClientTest, MayPassEachChangeOn) {
  line->setFocus();
  user.type("3");
  EXPECT_EQ(events, (Events{"become", kChange, "handler", "observer"}));
}

TEST_F(QtTextFieldClientTest, MayCorrectAChange) {
  field->setTextDidChange([this] { field->setStringValue("99"); });
  line->setFocus();
  user.type("3");
  EXPECT_EQ(line->text(), "99");
  user.undo();
  EXPECT_EQ(std::count(events.begin(), events.end(), kChange), 2);
}

TEST_F(QtTextFieldClientTest, HearsOfTheEndOfEditing) {
  line->setFocus();
  user.type("3");
  events.clear();
  other->setFocus();
  EXPECT_EQ(events, (Events{kEnd, "action", "observer"}));
  EXPECT_TRUE(client->resigned);
  line->setFocus();
  events.clear();
  user.press(Qt::Key_Return);
  other->setFocus();
  EXPECT_EQ(events, (Events{kEnd, kEnd}));
}

TEST_F(QtTextFieldClientTest, ReturnLeavesTheKeyboard) {
  line->setFocus();
  user.press(Qt::Key_Return);
  EXPECT_TRUE(line->hasFocus());
}

TEST_F(QtTextFieldClientTest, MayKeepTheEndOfEditingToItself) {
  client->passesOn = false;
  line->setFocus();
  user.type("3");
  events.clear();
  user.press(Qt::Key_Return);
  EXPECT_EQ(events, (Events{kEnd}));
}

TEST_F(QtTextFieldClientTest, IsAskedToSelectTheText) {
  line->setCursorPosition(1);
  field->selectText(elsewhere.get());
  EXPECT_EQ(events, (Events{"select"}));
  EXPECT_EQ(client->lastSender, elsewhere.get());
  EXPECT_FALSE(line->hasSelectedText());
}

TEST_F(QtTextFieldClientTest, WithoutOneTheTextIsSelected) {
  elsewhere->setStringValue("34");
  elsewhere->selectText(nullptr);
  EXPECT_EQ(other->selectedText(), "34");
}

TEST_F(QtTextFieldClientTest, WhatItRaisesGoesToTheLog) {
  RecordingSystemLog log;
  const ToolkitScope scope(&toolkit, &log);
  client->raises = true;
  line->setFocus();
  user.type("3");
  user.press(Qt::Key_Return);
  EXPECT_EQ(
      log.messages(),
      (std::vector<std::string>{"text field: an exception was raised at the end of editing"}));
  user.type("4");
  EXPECT_EQ(field->stringValue(), "1234");
}

TEST_F(QtTextFieldClientTest, FieldOutlivesTheCallThatLetsItGo) {
  const std::weak_ptr<TextField> watched = field;
  field->setAction([this](View*) {
    root.reset();
    field.reset();
  });
  line->setFocus();
  user.type("3");
  events.clear();
  user.press(Qt::Key_Return);
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(client->resigned);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(QtTextFieldClientTest, MayBeReplacedInItsOwnCall) {
  field->setTextDidChange([this] { field->setClient(nullptr); });
  client.reset();
  line->setFocus();
  user.type("3");
  events.clear();
  field->setTextDidChange([this] { events.emplace_back("handler"); });
  user.type("4");
  EXPECT_EQ(events, (Events{"handler", "observer"}));
}

}  // namespace
}  // namespace cutline
