// The bundle's reporting field, with a user at it.
#include "tests/textinput/FieldTest.h"

namespace cutline {
namespace {

constexpr char kReport[] = "TextFieldResignFirstResponderNotification";

class ReportingFieldTest : public FieldTest {
 protected:
  int reports() const {
    int count = 0;
    for (const Notification& notification : platform.posted) {
      EXPECT_EQ(notification.name, kReport);
      EXPECT_EQ(notification.object, fieldItself());
      ++count;
    }
    return count;
  }
};

TEST_F(ReportingFieldTest, ClickingIntoItPostsNothing) {
  use("mReporting", "12");
  elsewhere->setFocus();
  platform.clear();
  QTest::mouseClick(line, Qt::LeftButton);
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(reports(), 0);
}

TEST_F(ReportingFieldTest, TabbingIntoItPostsNothingAndSelectsItsText) {
  use("mReporting", "12");
  elsewhere->setFocus();
  platform.clear();
  QWidget::setTabOrder(elsewhere, line);
  QTest::keyClick(elsewhere, Qt::Key_Tab);
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(line->selectedText(), "12");
  EXPECT_EQ(reports(), 0);
}

TEST_F(ReportingFieldTest, ThreeCharactersPostThreeTimes) {
  use("mReporting");
  user->type("1\xC3\xA9#");
  EXPECT_EQ(field->stringValue(), "1\xC3\xA9#");
  EXPECT_EQ(reports(), 3);
}

TEST_F(ReportingFieldTest, EveryChangePostsOnce) {
  use("mReporting", "12");
  user->paste("345");
  user->press(Qt::Key_Backspace);
  user->drop("x", 0);
  user->compose("y");
  EXPECT_EQ(reports(), 3);
  user->commit("z");
  user->undo();
  user->redo();
  user->assisted().insertText(0, "a");
  EXPECT_EQ(reports(), 7);
  field->setStringValue("99");
  EXPECT_EQ(reports(), 7);
}

TEST_F(ReportingFieldTest, KeepsItsChangesFromItsDelegate) {
  use("mReporting");
  user->type("12");
  EXPECT_TRUE(owner.textChanges.empty());
}

TEST_F(ReportingFieldTest, TabbingOutOfItPostsNothingAndEndsEditing) {
  use("mReporting");
  user->type("12");
  platform.clear();
  user->press(Qt::Key_Tab);
  EXPECT_FALSE(line->hasFocus());
  EXPECT_EQ(reports(), 0);
  EXPECT_EQ(owner.calls, (std::vector<std::string>{"run fieldDidEnd:"}));
}

TEST_F(ReportingFieldTest, ReturnPostsNothingAndLeavesTheKeyboard) {
  use("mReporting", "12");
  user->press(Qt::Key_Return);
  EXPECT_TRUE(line->hasFocus());
  EXPECT_EQ(reports(), 0);
}

TEST_F(ReportingFieldTest, SelectTextPostsOnceAndLeavesTheSelection) {
  use("mReporting", "1234");
  line->setSelection(3, -2);
  field->selectText(nullptr);
  EXPECT_EQ(reports(), 1);
  EXPECT_EQ(line->selectedText(), "23");
  EXPECT_EQ(line->cursorPosition(), 1);
}

TEST_F(ReportingFieldTest, RefusedCharactersAreNotReported) {
  use("mReportingByte", "25");
  user->type("6");
  ASSERT_EQ(platform.posted.size(), 1U);
  EXPECT_EQ(platform.posted[0].name, "FormatErrorNotification");
  EXPECT_EQ(platform.toolkit.beeps, 1);
  platform.clear();
  user->type("5");
  EXPECT_EQ(reports(), 1);
  EXPECT_EQ(field->stringValue(), "255");
}

}  // namespace
}  // namespace cutline
