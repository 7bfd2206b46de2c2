// What a panel relies on in a text field, whichever toolkit shows it.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPointer>
#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

#include "plain/PlainTextField.h"
#include "platform/ports/TextField.h"
#include "tests/platform/RecordingClient.h"
#include "tests/platform/RecordingFormatter.h"
#include "tests/qt/LineUser.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/qt/ToolkitConformance.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

// A text field with a user at it, in either toolkit.
class PlainFieldUser {
 public:
  explicit PlainFieldUser(const std::shared_ptr<TextField>& field)
      : mField(dynamic_cast<PlainTextField&>(*field)) {}

  void arrive() { mField.focus(); }
  void leave() { mField.leave(); }
  void pressReturn() { mField.pressReturn(); }
  void select(TextRange range) { mField.setSelectedRange(range); }
  TextRange selection() const { return mField.selectedRange(); }
  void type(const char* text) { mField.type(text); }
  void paste(const char* text) { mField.paste(text); }
  void deleteBackward() { mField.deleteBackward(); }
  void deleteForward() { mField.deleteForward(); }

 private:
  PlainTextField& mField;
};

class QtFieldUser {
 public:
  explicit QtFieldUser(const std::shared_ptr<TextField>& field)
      : mLine(dynamic_cast<QLineEdit&>(*QtToolkit::widgetOf(*field))), mUser(&mLine) {
    mWindow.setLayout(new QVBoxLayout);
    mWindow.layout()->addWidget(&mLine);
    mWindow.layout()->addWidget(new QLineEdit);
    mWindow.show();
    mWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&mWindow));
    mWindow.layout()->itemAt(1)->widget()->setFocus();
  }
  QtFieldUser(const QtFieldUser&) = delete;
  QtFieldUser& operator=(const QtFieldUser&) = delete;
  ~QtFieldUser() {
    if (mAlive) mAlive->setParent(nullptr);
  }

  void arrive() { mLine.setFocus(); }
  void leave() { mLine.clearFocus(); }
  void pressReturn() { mUser.press(Qt::Key_Return); }
  void select(TextRange range) {
    mLine.setSelection(static_cast<int>(range.location), static_cast<int>(range.length));
    if (range.length == 0) mLine.setCursorPosition(static_cast<int>(range.location));
  }
  TextRange selection() const {
    if (!mLine.hasSelectedText()) return {static_cast<std::size_t>(mLine.cursorPosition()), 0};
    return {static_cast<std::size_t>(mLine.selectionStart()),
            static_cast<std::size_t>(mLine.selectionLength())};
  }
  void type(const char* text) { mUser.type(text); }
  void paste(const char* text) { mUser.paste(text); }
  void deleteBackward() { mUser.press(Qt::Key_Backspace); }
  void deleteForward() { mUser.press(Qt::Key_Delete); }

 private:
  QWidget mWindow;
  QLineEdit& mLine;
  QPointer<QLineEdit> mAlive{&mLine};
  LineUser mUser;
};

template <class AnyToolkit>
class TextFieldConformance : public ToolkitConformance<AnyToolkit> {
 protected:
  using User =
      std::conditional_t<std::is_same_v<AnyToolkit, QtToolkit>, QtFieldUser, PlainFieldUser>;
  using Events = std::vector<std::string>;

  TextFieldConformance() {
    field->setTextDidChange([this] { this->events.emplace_back(field->stringValue()); });
    field->setAction(this->recorded());
  }

  std::shared_ptr<TextField> field = this->toolkit.createTextField({{0, 0}, {100, 22}});
  std::shared_ptr<RecordingFormatter> formatter = std::make_shared<RecordingFormatter>();
  User user{field};
};

TYPED_TEST_SUITE(TextFieldConformance, Toolkits);

TYPED_TEST(TextFieldConformance, EveryEditIsJudgedAtItsSelection) {
  this->field->setFormatter(this->formatter);
  this->user.arrive();
  this->user.type("1\xF0\x9F\x99\x82");
  this->user.deleteBackward();
  this->user.paste("23");
  this->user.select({0, 2});
  this->user.type("4");
  this->user.select({1, 0});
  this->user.deleteForward();
  const std::vector<AskedEdit> expected = {
      {"", {0, 0}, "1", {1, 0}},
      {"1", {1, 0}, "1\xF0\x9F\x99\x82", {3, 0}},
      {"1\xF0\x9F\x99\x82", {3, 0}, "1", {1, 0}},
      {"1", {1, 0}, "123", {3, 0}},
      {"123", {0, 2}, "43", {1, 0}},
      {"43", {1, 0}, "4", {1, 0}},
  };
  EXPECT_EQ(this->formatter->asked, expected);
  EXPECT_EQ(this->field->stringValue(), "4");
}

TYPED_TEST(TextFieldConformance, TypingWhatIsSelectedIsNoChangeAndGoesOnBehindIt) {
  this->field->setStringValue("15");
  this->field->setFormatter(this->formatter);
  this->user.arrive();
  this->user.select({1, 1});
  this->user.type("5");
  EXPECT_EQ(this->user.selection(), (TextRange{2, 0}));
  EXPECT_TRUE(this->events.empty());
  this->user.select({0, 1});
  this->user.type("16");
  EXPECT_EQ(this->field->stringValue(), "165");
  EXPECT_EQ(this->formatter->asked, (std::vector<AskedEdit>{{"15", {1, 0}, "165", {2, 0}}}));
  EXPECT_EQ(this->events, (std::vector<std::string>{"165", "observer"}));
}

TYPED_TEST(TextFieldConformance, DeletingNothingIsNoEdit) {
  this->field->setFormatter(this->formatter);
  this->user.arrive();
  this->user.deleteBackward();
  this->user.deleteForward();
  EXPECT_TRUE(this->formatter->asked.empty());
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(TextFieldConformance, RefusedEditLeavesTextAndSelectionAndIsNotReported) {
  this->field->setStringValue("123");
  this->field->setFormatter(this->formatter);
  this->formatter->refuseEverything();
  this->user.arrive();
  this->user.select({1, 1});
  this->user.type("x");
  this->user.paste("xy");
  this->user.deleteBackward();
  this->user.deleteForward();
  EXPECT_EQ(this->formatter->asked.size(), 4U);
  EXPECT_EQ(this->field->stringValue(), "123");
  EXPECT_EQ(this->user.selection(), (TextRange{1, 1}));
  this->user.pressReturn();
  this->user.leave();
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(TextFieldConformance, TextIsShownAsTheFormatterHasIt) {
  using Events = std::vector<std::string>;
  this->formatter->showMillimetres();
  this->field->setFormatter(this->formatter);
  this->field->setStringValue("12");
  EXPECT_EQ(this->field->stringValue(), "12 mm");
  EXPECT_EQ(this->user.selection(), (TextRange{5, 0}));
  this->user.arrive();
  this->user.select({0, 5});
  this->user.type("7");
  EXPECT_EQ(this->field->stringValue(), "7");
  this->user.leave();
  EXPECT_EQ(this->field->stringValue(), "7 mm");
  EXPECT_EQ(this->events, (Events{"7", "observer", "action", "observer"}));
}

TYPED_TEST(TextFieldConformance, SettersAreNeitherJudgedNorReported) {
  this->field->setFormatter(this->formatter);
  this->formatter->refuseEverything();
  this->field->setStringValue("abc");
  EXPECT_EQ(this->field->stringValue(), "abc");
  EXPECT_TRUE(this->formatter->asked.empty());
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(TextFieldConformance, CorrectionsWorkWithAFormatter) {
  this->field->setStringValue("7");
  this->field->setFormatter(this->formatter);
  this->field->setTextDidChange([this] {
    this->field->setStringValue(std::to_string(std::clamp(this->field->intValue(), 1, 99)));
  });
  this->user.arrive();
  this->user.select({0, 1});
  this->user.type("250");
  EXPECT_EQ(this->field->stringValue(), "99");
  EXPECT_EQ(this->user.selection(), (TextRange{2, 0}));
  this->user.select({0, 2});
  this->user.deleteBackward();
  EXPECT_EQ(this->field->stringValue(), "1");
  EXPECT_EQ(this->user.selection(), (TextRange{0, 1}));
}

TYPED_TEST(TextFieldConformance, ClientHearsOfFocusChangesAndTheEnd) {
  using Events = std::vector<std::string>;
  const auto client = std::make_shared<RecordingClient>(*this->field, this->events);
  client->passesOn = false;
  this->field->setClient(client);
  this->user.arrive();
  this->user.type("12");
  this->user.pressReturn();
  this->user.leave();
  this->field->selectText(nullptr);
  EXPECT_EQ(this->events,
            (Events{"become", "change NSTextDidChangeNotification",
                    "change NSTextDidChangeNotification", "end NSTextDidEndEditingNotification",
                    "end NSTextDidEndEditingNotification", "select"}));
  EXPECT_EQ(this->user.selection().length, 0U);
}

TYPED_TEST(TextFieldConformance, ReturnAndLeavingAreOneAction) {
  using Events = std::vector<std::string>;
  this->user.arrive();
  this->user.pressReturn();
  EXPECT_TRUE(this->events.empty());
  this->user.type("1");
  this->user.pressReturn();
  this->user.leave();
  EXPECT_EQ(this->events, (Events{"1", "observer", "action", "observer"}));
}

TYPED_TEST(TextFieldConformance, WithoutAClientTheWholeTextIsSelected) {
  this->field->setStringValue("123");
  this->field->selectText(nullptr);
  EXPECT_EQ(this->user.selection(), (TextRange{0, 3}));
}

}  // namespace
}  // namespace cutline
