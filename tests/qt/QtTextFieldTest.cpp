#include <QClipboard>
#include <QLineEdit>
#include <algorithm>

#include "platform/ports/TextField.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class QtTextFieldTest : public QtPanelFixture {
 protected:
  QtTextFieldTest() { field->setStringValue("1"); }

  // What the number field of the panel does with every keystroke.
  void clampWhileTyping() {
    field->setTextDidChange([this] {
      events.emplace_back("change");
      field->setStringValue(std::to_string(std::clamp(field->intValue(), 1, 99)));
    });
  }
  void showFocused() {
    show();
    widget->setFocus();
    widget->end(false);
  }
  void type(const char* text) { QTest::keyClicks(widget, text); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(widget, key, modifiers);
  }
  void selectAll() { press(Qt::Key_A, Qt::ControlModifier); }
  void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
  void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  std::string shown() const { return widget->text().toStdString(); }

  std::shared_ptr<TextField> field = toolkit.createTextField({{36, 100}, {52, 22}});
  QLineEdit* widget = put<QLineEdit>(field);
};

TEST_F(QtTextFieldTest, EveryKeystrokeIsReportedThenTheObserverIsTold) {
  field->setTextDidChange([this] { events.emplace_back(field->stringValue()); });
  showFocused();
  type("23");
  EXPECT_EQ(events, (Events{"12", "observer", "123", "observer"}));
  EXPECT_EQ(observer.lastSender, field.get());
}

TEST_F(QtTextFieldTest, SettersReportNothing) {
  field->setTextDidChange([this] { events.emplace_back("change"); });
  field->setAction(recorded());
  field->setStringValue("12");
  EXPECT_EQ(shown(), "12");
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldTest, EqualTextKeepsSelectionAndUndo) {
  showFocused();
  type("2");
  widget->setSelection(0, 1);
  field->setStringValue("12");
  EXPECT_EQ(widget->selectedText(), "1");
  EXPECT_TRUE(widget->isUndoAvailable());
}

TEST_F(QtTextFieldTest, ReturnAndLeavingAreOneAction) {
  field->setAction(recorded());
  showFocused();
  type("2");
  press(Qt::Key_Return);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  press(Qt::Key_Return);
  widget->clearFocus();
  EXPECT_EQ(events.size(), 2U);
}

TEST_F(QtTextFieldTest, LeavingWithoutAnEditRunsNothing) {
  field->setAction(recorded());
  showFocused();
  widget->clearFocus();
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldTest, LeavingAfterAnEditRunsTheAction) {
  field->setAction(recorded());
  showFocused();
  type("2");
  widget->clearFocus();
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtTextFieldTest, NumberThatIsTooLargeIsCorrectedAtOnce) {
  clampWhileTyping();
  showFocused();
  selectAll();
  type("250");
  EXPECT_EQ(field->stringValue(), "99");
  EXPECT_EQ(shown(), "99");
  EXPECT_EQ(widget->cursorPosition(), 2);
  EXPECT_EQ(std::count(events.begin(), events.end(), "change"), 3);
}

TEST_F(QtTextFieldTest, NonsenseBecomesTheSmallestNumber) {
  clampWhileTyping();
  showFocused();
  selectAll();
  type("0");
  EXPECT_EQ(shown(), "1");
  EXPECT_EQ(widget->cursorPosition(), 1);
  selectAll();
  type("x");
  EXPECT_EQ(shown(), "1");
}

TEST_F(QtTextFieldTest, EmptiedFieldCanBeTypedInto) {
  clampWhileTyping();
  showFocused();
  press(Qt::Key_Backspace);
  EXPECT_EQ(shown(), "1");
  type("25");
  EXPECT_EQ(shown(), "25");
}

TEST_F(QtTextFieldTest, CursorStaysBeforeWhatFollowsIt) {
  field->setStringValue("5");
  clampWhileTyping();
  showFocused();
  press(Qt::Key_Home);
  type("0");
  EXPECT_EQ(shown(), "5");
  EXPECT_EQ(widget->cursorPosition(), 0);
}

TEST_F(QtTextFieldTest, UndoGoesBackBeyondACorrection) {
  field->setStringValue("7");
  clampWhileTyping();
  showFocused();
  selectAll();
  type("250");
  ASSERT_EQ(shown(), "99");
  undo();
  EXPECT_EQ(shown(), "7");
  EXPECT_EQ(field->stringValue(), "7");
  redo();
  EXPECT_EQ(shown(), "99");
  EXPECT_EQ(field->stringValue(), "99");
}

TEST_F(QtTextFieldTest, UndoGoesBackBeyondACorrectedDeletion) {
  field->setStringValue("12");
  clampWhileTyping();
  showFocused();
  press(Qt::Key_Backspace);
  press(Qt::Key_Backspace);
  ASSERT_EQ(shown(), "1");
  undo();
  EXPECT_EQ(shown(), "12");
}

TEST_F(QtTextFieldTest, PastedTextIsCorrectedToo) {
  clampWhileTyping();
  showFocused();
  QApplication::clipboard()->setText("4711");
  selectAll();
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(shown(), "99");
  undo();
  EXPECT_EQ(shown(), "1");
}

TEST_F(QtTextFieldTest, UndoToATextThatIsNoLongerAllowedEndsInTheCorrection) {
  field->setStringValue("");
  clampWhileTyping();
  showFocused();
  type("2");
  undo();
  EXPECT_EQ(shown(), "1");
  EXPECT_EQ(field->stringValue(), "1");
}

TEST_F(QtTextFieldTest, HandlerMayLetGoOfTheField) {
  field->setTextDidChange([this] {
    const auto kept = root->subviews();
    root.reset();
    field.reset();
  });
  showFocused();
  type("2");
  EXPECT_TRUE(events.empty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(QtTextFieldTest, FieldThatGoesWhileItHasTheFocusRunsNothing) {
  field->setAction(recorded());
  showFocused();
  type("2");
  root.reset();
  field.reset();
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldTest, DisablingOrHidingIsNotTheUsersDoing) {
  field->setAction(recorded());
  showFocused();
  type("2");
  field->setEnabled(false);
  ASSERT_FALSE(widget->hasFocus());
  field->setEnabled(true);
  widget->setFocus();
  type("3");
  field->setHidden(true);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldTest, TextOutlivesTheWindow) {
  showFocused();
  type("2");
  window.reset();
  EXPECT_EQ(field->stringValue(), "12");
  field->setStringValue("3");
  EXPECT_EQ(field->stringValue(), "3");
}

}  // namespace
}  // namespace cutline
