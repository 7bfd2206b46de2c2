// A text field whose formatter judges every way in which a user can change the text.
#include <gtest/gtest.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <functional>

#include "platform/ports/TextField.h"
#include "qt/QtFieldEditor.h"
#include "qt/TextEdits.h"
#include "tests/platform/RecordingFormatter.h"
#include "tests/qt/LineUser.h"
#include "tests/qt/PrintEditedText.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {

namespace {

class QtTextFieldVettingTest : public QtPanelFixture {
 protected:
  QtTextFieldVettingTest() {
    field->setFormatter(formatter);
    field->setTextDidChange([this] { events.emplace_back(field->stringValue()); });
    field->setAction(recorded());
  }

  void SetUp() override {
    field->setStringValue("12");
    show();
    line->setFocus();
    line->end(false);
  }

  // "1234" with "23" selected from right to left, one step to undo and one to redo.
  void editSomewhat() {
    user.paste("34");
    user.paste("56");
    user.undo();
    line->setSelection(3, -2);
    formatter->asked.clear();
    events.clear();
  }

  EditedText state() const {
    const int caret = line->cursorPosition();
    if (!line->hasSelectedText()) return {line->text(), caret, caret};
    const bool backwards = caret == line->selectionStart();
    return {line->text(), backwards ? line->selectionEnd() : line->selectionStart(), caret};
  }

  std::shared_ptr<TextField> field = toolkit.createTextField({{36, 100}, {200, 22}});
  std::shared_ptr<RecordingFormatter> formatter = std::make_shared<RecordingFormatter>();
  QtFieldEditor* line = put<QtFieldEditor>(field);
  LineUser user{line};
};

struct WayRow {
  const char* name;
  std::function<void(LineUser&, QtFieldEditor&)> act;  // on editSomewhat's text
  AskedEdit asked;
  EditedText after;
};

void PrintTo(const WayRow& row, std::ostream* out) { *out << row.name; }

class QtTextFieldWays : public QtTextFieldVettingTest,
                        public testing::WithParamInterface<WayRow> {};

TEST_P(QtTextFieldWays, AreAskedForAndTaken) {
  editSomewhat();
  const EditedText before = state();
  GetParam().act(user, *line);
  EXPECT_EQ(formatter->asked, std::vector{GetParam().asked});
  EXPECT_EQ(state(), GetParam().after);
  const std::string text = GetParam().after.text.toStdString();
  EXPECT_EQ(field->stringValue(), text);
  EXPECT_EQ(events, (Events{text, "observer"}));
  EXPECT_FALSE(line->canRedo());
  user.undo();
  EXPECT_EQ(state(), before);
  user.redo();
  EXPECT_EQ(state(), GetParam().after);
  EXPECT_EQ(formatter->asked.size(), 1U);
}

TEST_P(QtTextFieldWays, LeaveEverythingAsItWasWhenRefused) {
  editSomewhat();
  const EditedText before = state();
  formatter->refuseEverything();
  GetParam().act(user, *line);
  EXPECT_EQ(formatter->asked, std::vector{GetParam().asked});
  EXPECT_EQ(state(), before);
  EXPECT_EQ(field->stringValue(), "1234");
  EXPECT_TRUE(events.empty());
  user.redo();
  EXPECT_EQ(state(), (EditedText{"123456", 6, 6}));
  user.undo();
  EXPECT_EQ(state(), (EditedText{"1234", 4, 4}));
  user.undo();
  EXPECT_EQ(state(), (EditedText{"12", 2, 2}));
  EXPECT_FALSE(line->canUndo());
  EXPECT_EQ(formatter->asked.size(), 1U);
}

void insertAssisted(LineUser& user, QtFieldEditor& /*line*/) { user.assisted().insertText(0, "x"); }

INSTANTIATE_TEST_SUITE_P(
    Rows, QtTextFieldWays,
    testing::Values(
        WayRow{"Typing",
               [](LineUser& user, auto&) { user.type("x"); },
               {"1234", {1, 2}, "1x4", {2, 0}},
               {"1x4", 2, 2}},
        WayRow{"TypingBeyondTheBasicPlane",
               [](LineUser& user, auto&) { user.type("\xF0\x9F\x99\x82"); },
               {"1234",
                {1, 2},
                "1\xF0\x9F\x99\x82"
                "4",
                {3, 0}},
               {"1\xF0\x9F\x99\x82"
                "4",
                3, 3}},
        WayRow{"Backspace",
               [](LineUser& user, auto&) { user.press(Qt::Key_Backspace); },
               {"1234", {1, 2}, "14", {1, 0}},
               {"14", 1, 1}},
        WayRow{"Delete",
               [](LineUser& user, auto&) { user.press(Qt::Key_Delete); },
               {"1234", {1, 2}, "14", {1, 0}},
               {"14", 1, 1}},
        WayRow{"WordDeletion",
               [](LineUser& user, auto&) { user.press(Qt::Key_Backspace, Qt::ControlModifier); },
               {"1234", {1, 2}, "4", {0, 0}},
               {"4", 0, 0}},
        WayRow{"Paste",
               [](LineUser& user, auto&) { user.paste("xyz"); },
               {"1234", {1, 2}, "1xyz4", {4, 0}},
               {"1xyz4", 4, 4}},
        WayRow{"Cut",
               [](LineUser& user, auto&) { user.cut(); },
               {"1234", {1, 2}, "14", {1, 0}},
               {"14", 1, 1}},
        WayRow{"PasteByMenu",
               [](LineUser&, QtFieldEditor& line) {
                 QApplication::clipboard()->setText("xyz");
                 line.paste();
               },
               {"1234", {1, 2}, "1xyz4", {4, 0}},
               {"1xyz4", 4, 4}},
        WayRow{"CutByMenu",
               [](LineUser&, QtFieldEditor& line) { line.cut(); },
               {"1234", {1, 2}, "14", {1, 0}},
               {"14", 1, 1}},
        WayRow{"DropAtTheEnd",
               [](LineUser& user, auto&) { user.drop("xy", 4); },
               {"1234", {4, 0}, "1234xy", {6, 0}},
               {"1234xy", 6, 6}},
        WayRow{"DropBeforeTheSelection",
               [](LineUser& user, auto&) { user.drop("xy", 0); },
               {"1234", {0, 0}, "xy1234", {2, 0}},
               {"xy1234", 2, 2}},
        WayRow{"InputMethod",
               [](LineUser& user, auto&) { user.commit("xy"); },
               {"1234", {1, 2}, "1xy4", {3, 0}},
               {"1xy4", 3, 3}},
        WayRow{"InputMethodAfterComposing",
               [](LineUser& user, auto&) {
                 user.compose("q");
                 user.compose("qr");
                 user.commit("xy");
               },
               {"1234", {1, 2}, "1xy4", {3, 0}},
               {"1xy4", 3, 3}},
        WayRow{"InputMethodThatGoesOnComposing",
               [](LineUser& user, auto&) {
                 user.compose("q");
                 user.commit("x", "r");
                 user.compose("");
               },
               {"1234", {1, 2}, "1x4", {2, 0}},
               {"1x4", 2, 2}},
        WayRow{"InsertionByAssistance",
               insertAssisted,
               {"1234", {0, 0}, "x1234", {1, 0}},
               {"x1234", 5, 5}},
        WayRow{"DeletionByAssistance",
               [](LineUser& user, auto&) { user.assisted().deleteText(0, 1); },
               {"1234", {0, 1}, "234", {0, 0}},
               {"234", 3, 3}},
        WayRow{"ReplacementByAssistance",
               [](LineUser& user, auto&) { user.assisted().replaceText(2, 4, "x"); },
               {"1234", {2, 2}, "12x", {3, 0}},
               {"12x", 3, 3}},
        WayRow{"NewTextByAssistance",
               [](LineUser& user, auto&) { user.accessible().setText(QAccessible::Value, "987"); },
               {"1234", {0, 4}, "987", {3, 0}},
               {"987", 3, 3}},
        WayRow{"EverythingReplacedByAssistance",
               [](LineUser& user, auto&) { user.assisted().replaceText(0, 4, ""); },
               {"1234", {0, 4}, "", {0, 0}},
               {"", 0, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

// The offscreen platform has no selection clipboard: this is what QLineEdit does with one, after
// the press of the middle button has put the caret where the text is to go.
TEST_F(QtTextFieldVettingTest, MiddleClickIsAskedForAtTheCaret) {
  const auto click = [this] {
    line->setCursorPosition(1);
    line->deselect();
    line->insert("xy");
  };
  editSomewhat();
  click();
  const std::vector expected{AskedEdit{"1234", {1, 0}, "1xy234", {3, 0}}};
  EXPECT_EQ(formatter->asked, expected);
  EXPECT_EQ(state(), (EditedText{"1xy234", 3, 3}));
  user.undo();
  EXPECT_EQ(state(), (EditedText{"1234", 1, 1}));
  formatter->refuseEverything();
  events.clear();
  click();
  EXPECT_EQ(state(), (EditedText{"1234", 1, 1}));
  EXPECT_TRUE(line->canRedo());
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, DeletionAtTheCaretIsMadeAtTheCaret) {
  user.press(Qt::Key_Backspace);
  user.press(Qt::Key_Home);
  user.press(Qt::Key_Delete);
  const std::vector expected{AskedEdit{"12", {2, 0}, "1", {1, 0}},
                             AskedEdit{"1", {0, 0}, "", {0, 0}}};
  EXPECT_EQ(formatter->asked, expected);
}

TEST_F(QtTextFieldVettingTest, RefusedDeletionOfAWordSelectsNothing) {
  formatter->refuseEverything();
  user.press(Qt::Key_Backspace, Qt::ControlModifier);
  const std::vector expected{AskedEdit{"12", {2, 0}, "", {0, 0}}};
  EXPECT_EQ(formatter->asked, expected);
  EXPECT_EQ(state(), (EditedText{"12", 2, 2}));
}

TEST_F(QtTextFieldVettingTest, InputMethodMayReplaceWhatIsBeforeTheCaret) {
  user.commitOver(2, "98");
  const std::vector expected{AskedEdit{"12", {0, 2}, "98", {2, 0}}};
  EXPECT_EQ(formatter->asked, expected);
  EXPECT_EQ(state(), (EditedText{"98", 2, 2}));
  formatter->refuseEverything();
  user.commitOver(1, "#");
  EXPECT_EQ(state(), (EditedText{"98", 2, 2}));
}

TEST_F(QtTextFieldVettingTest, ComposingIsNoEdit) {
  editSomewhat();
  user.compose("q");
  EXPECT_EQ(line->text(), "14");
  EXPECT_EQ(field->stringValue(), "1234");
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, CancelledCompositionChangesNothing) {
  editSomewhat();
  const EditedText before = state();
  user.compose("q");
  user.compose("");
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_TRUE(events.empty());
  EXPECT_TRUE(line->canRedo());
}

TEST_F(QtTextFieldVettingTest, CompositionEndsWithTheFocus) {
  editSomewhat();
  user.compose("q");
  line->clearFocus();
  EXPECT_EQ(line->text(), "1234");
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtTextFieldVettingTest, CompositionEndsWhenTheCaretIsMoved) {
  editSomewhat();
  const EditedText before = state();
  user.compose("q");
  line->setCursorPosition(0);
  EXPECT_EQ(state(), before);
  line->setCursorPosition(4);
  user.compose("q");
  line->setCursorPosition(0);
  EXPECT_EQ(state(), (EditedText{"1234", 0, 0}));
  EXPECT_TRUE(formatter->asked.empty());
}

TEST_F(QtTextFieldVettingTest, CompositionEndsWithAKeyThatIsLeftToTheLine) {
  editSomewhat();
  user.compose("\xF0\x9F\x99\x82");
  user.press(Qt::Key_Delete);
  const std::vector expected{AskedEdit{"1234", {1, 2}, "14", {1, 0}}};
  EXPECT_EQ(formatter->asked, expected);
  user.undo();
  EXPECT_EQ(state(), (EditedText{"1234", 3, 1}));
}

TEST_F(QtTextFieldVettingTest, CompositionGoesOnWhileModifiersArePressed) {
  editSomewhat();
  user.compose("q");
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt}) user.press(key);
  EXPECT_EQ(line->text(), "14");
  EXPECT_EQ(field->stringValue(), "1234");
}

TEST_F(QtTextFieldVettingTest, UndoCancelsAComposition) {
  editSomewhat();
  user.compose("q");
  user.undo();
  EXPECT_EQ(state(), (EditedText{"12", 2, 2}));
  EXPECT_EQ(events, (Events{"12", "observer"}));
}

TEST_F(QtTextFieldVettingTest, TypingIntoACompositionIsOneEditWithWhatItHadTakenAway) {
  editSomewhat();
  user.compose("q");
  user.type("x");
  const std::vector expected{AskedEdit{"1234", {1, 2}, "1x4", {2, 0}}};
  EXPECT_EQ(formatter->asked, expected);
  user.undo();
  EXPECT_EQ(state(), (EditedText{"1234", 3, 1}));
}

TEST_F(QtTextFieldVettingTest, RefusedCommitEndsWhatIsStillComposed) {
  editSomewhat();
  const EditedText before = state();
  formatter->refuseEverything();
  user.compose("q");
  user.commit("x", "r");
  EXPECT_EQ(state(), before);
  user.compose("");
  EXPECT_EQ(state(), before);
  EXPECT_EQ(formatter->asked.size(), 1U);
}

TEST_F(QtTextFieldVettingTest, TextThatIsSetEndsAComposition) {
  editSomewhat();
  user.compose("q");
  field->setStringValue("77");
  EXPECT_EQ(state(), (EditedText{"77", 2, 2}));
  user.commit("8");
  EXPECT_EQ(field->stringValue(), "778");
}

TEST_F(QtTextFieldVettingTest, DragThatPassesByLeavesTheSelection) {
  editSomewhat();
  const EditedText before = state();
  user.dragAway("x", 0);
  EXPECT_EQ(state(), before);
  user.type("x");
  EXPECT_EQ(state(), (EditedText{"1x4", 2, 2}));
}

TEST_F(QtTextFieldVettingTest, SettersAreNotJudged) {
  formatter->refuseEverything();
  field->setStringValue("abc");
  EXPECT_EQ(state(), (EditedText{"abc", 3, 3}));
  EXPECT_FALSE(line->canUndo());
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, UndoAndRedoAreNeverRefused) {
  user.type("3");
  user.paste("45");
  formatter->refuseEverything();
  events.clear();
  user.undo();
  EXPECT_EQ(state(), (EditedText{"123", 3, 3}));
  user.undo();
  EXPECT_EQ(state(), (EditedText{"12", 2, 2}));
  user.redo();
  user.redo();
  EXPECT_EQ(state(), (EditedText{"12345", 5, 5}));
  EXPECT_EQ(formatter->asked.size(), 2U);
  EXPECT_EQ(std::count(events.begin(), events.end(), "observer"), 4);
}

TEST_F(QtTextFieldVettingTest, EndOfEditingIsNotJudged) {
  formatter->refuseEverything();
  user.press(Qt::Key_Return);
  line->clearFocus();
  line->setFocus();
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_TRUE(events.empty());
  EXPECT_EQ(line->text(), "12");
}

TEST_F(QtTextFieldVettingTest, RefusedEditRunsNoActionAtTheEnd) {
  formatter->refuseEverything();
  user.type("x");
  user.press(Qt::Key_Return);
  line->clearFocus();
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, EditThatChangesNothingIsNotJudged) {
  user.selectAll();
  user.paste("12");
  user.press(Qt::Key_Delete);
  EXPECT_TRUE(formatter->asked.empty());
  EXPECT_TRUE(events.empty());
  EXPECT_FALSE(line->canUndo());
}

TEST_F(QtTextFieldVettingTest, MenuUndoesAndRedoesFromTheFieldsOwnHistory) {
  const auto trigger = [this](int index) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, line->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(line, &event);
    auto* const menu = line->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    QAction* const action = menu->actions().at(index);
    const bool isEnabled = action->isEnabled();
    action->trigger();
    events.emplace_back(isEnabled ? "enabled" : "disabled");
    delete menu;
  };
  user.type("3");
  formatter->refuseEverything();
  user.type("x");
  events.clear();
  trigger(1);
  trigger(0);
  trigger(0);
  trigger(1);
  EXPECT_EQ(events, (Events{"disabled", "12", "observer", "enabled", "disabled", "123", "observer",
                            "enabled"}));
  EXPECT_EQ(formatter->asked.size(), 2U);
}

TEST_F(QtTextFieldVettingTest, FormatterMayBeReplacedWhileItIsAsked) {
  formatter->judge = [this](const AskedEdit&) {
    field->setFormatter(nullptr);
    return false;
  };
  const std::weak_ptr<RecordingFormatter> watched = formatter;
  formatter.reset();
  user.type("x");
  EXPECT_EQ(line->text(), "12");
  EXPECT_TRUE(watched.expired());
  user.type("x");
  EXPECT_EQ(line->text(), "12x");
}

TEST_F(QtTextFieldVettingTest, FormatterMaySetATextWhileItIsAsked) {
  for (const bool answer : {true, false}) {
    formatter->judge = [this, answer](const AskedEdit&) {
      field->setStringValue("77");
      return answer;
    };
    user.type("x");
    EXPECT_EQ(state(), (EditedText{"77", 2, 2}));
    EXPECT_EQ(field->stringValue(), "77");
    field->setStringValue("12");
  }
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, FormatterMayLetGoOfTheField) {
  for (const bool answer : {true, false}) {
    field = toolkit.createTextField({{36, 50}, {200, 22}});
    auto* const other = put<QtFieldEditor>(field);
    field->setFormatter(formatter);
    formatter->judge = [this, answer](const AskedEdit&) {
      for (const auto& subview : root->subviews()) {
        if (subview == field) root->replaceSubview(field.get(), toolkit.createView({}));
      }
      field.reset();
      return answer;
    };
    other->setFocus();
    LineUser(other).type("x");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_TRUE(events.empty());
}

TEST_F(QtTextFieldVettingTest, CorrectionsWorkWithAFormatter) {
  field->setTextDidChange([this] {
    events.emplace_back("change");
    field->setStringValue(std::to_string(std::clamp(field->intValue(), 1, 99)));
  });
  user.selectAll();
  user.type("250");
  EXPECT_EQ(state(), (EditedText{"99", 2, 2}));
  EXPECT_EQ(std::count(events.begin(), events.end(), "change"), 3);
  user.undo();
  EXPECT_EQ(line->text(), "12");
  user.redo();
  EXPECT_EQ(line->text(), "99");
  user.selectAll();
  user.type("0");
  EXPECT_EQ(state(), (EditedText{"1", 1, 1}));
}

TEST_F(QtTextFieldVettingTest, TextIsShownAsTheFormatterHasIt) {
  formatter->showMillimetres();
  field->setStringValue("7");
  EXPECT_EQ(line->text(), "7 mm");
  EXPECT_EQ(field->stringValue(), "7 mm");
  line->end(false);
  const EditedText before = state();
  field->setStringValue("7");
  EXPECT_EQ(state(), before);
}

TEST_F(QtTextFieldVettingTest, WhatWasTypedIsShownAsTheFormatterHasItWhenEditingEnds) {
  formatter->showMillimetres();
  user.selectAll();
  user.type("25");
  EXPECT_EQ(line->text(), "25");
  events.clear();
  user.press(Qt::Key_Return);
  EXPECT_EQ(line->text(), "25 mm");
  EXPECT_EQ(field->stringValue(), "25 mm");
  EXPECT_EQ(events, (Events{"action", "observer"}));
  user.undo();
  EXPECT_EQ(line->text(), "12");
  user.redo();
  EXPECT_EQ(line->text(), "25 mm");
}

TEST_F(QtTextFieldVettingTest, WhatIsShownAsItWasTypedIsNotSetAgain) {
  user.type("3");
  events.clear();
  user.press(Qt::Key_Return);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  EXPECT_EQ(state(), (EditedText{"123", 3, 3}));
  user.undo();
  EXPECT_EQ(line->text(), "12");
}

TEST_F(QtTextFieldVettingTest, LongTextsAreJudgedToo) {
  formatter->takeDigits();
  const QString digits(40000, QLatin1Char('1'));
  user.selectAll();
  user.paste(digits);
  EXPECT_EQ(line->text().size(), line->maxLength());
  const EditedText before = state();
  user.selectAll();
  user.paste(digits + "x");
  user.press(Qt::Key_End);
  user.paste("x");
  EXPECT_EQ(state(), before);
}

}  // namespace
}  // namespace cutline
