// What a user may type into fields with the bundle's formatter.
#include "tests/textinput/FieldTest.h"

namespace cutline {
namespace {

constexpr char kInvalid[] = "InvalidCharacterNotification";
constexpr char kFormatError[] = "FormatErrorNotification";

class FormatterFieldTest : public FieldTest {
 protected:
  std::string shown() const { return line->text().toStdString(); }
};

TEST_F(FormatterFieldTest, DeletingAndClearingIsAlwaysTaken) {
  for (const char* outlet : {"mByte", "mDecimal", "mCode", "mFromTen", "mForbidding", "mSixBytes",
                             "mAnything", "mMillimetres", "mReportingByte"}) {
    use(outlet);
    field->setStringValue("#\xC3\xA9 beyond 9999 limits");
    line->end(false);
    platform.clear();
    user->press(Qt::Key_Backspace);
    user->press(Qt::Key_Home);
    user->press(Qt::Key_Delete);
    user->press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_FALSE(line->text().isEmpty()) << outlet;
    user->selectAll();
    user->cut();
    EXPECT_EQ(shown(), "") << outlet;
    EXPECT_EQ(platform.toolkit.beeps, 0) << outlet;
  }
}

TEST_F(FormatterFieldTest, ValueIsComparedWhenTheLengthIsReached) {
  use("mByte", "25");
  user->type("6");
  EXPECT_EQ(shown(), "25");
  expectRefusal(kFormatError, formatterItself());
  user->type("5");
  EXPECT_EQ(shown(), "255");
  use("mByte", "2");
  user->type("9");
  EXPECT_EQ(shown(), "29");
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, LongerThanTheLimitIsRefused) {
  use("mByte", "100");
  user->type("0");
  EXPECT_EQ(shown(), "100");
  expectRefusal(kInvalid, formatterItself());
}

TEST_F(FormatterFieldTest, MinimumIsComparedAtOnceWithoutALengthLimit) {
  use("mFromTen");
  user->type("5");
  EXPECT_EQ(shown(), "");
  expectRefusal(kFormatError, formatterItself());
  user->paste("50");
  EXPECT_EQ(shown(), "50");
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, NumberHasOneDecimalPoint) {
  use("mDecimal", "1.5");
  user->type(".");
  EXPECT_EQ(shown(), "1.5");
  expectRefusal(kInvalid, formatterItself());
  use("mDecimal");
  user->type(".");
  EXPECT_EQ(shown(), ".");
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, CodeTakesSmallLettersAndRefusesOtherCharacters) {
  use("mCode");
  user->type("a");
  EXPECT_EQ(shown(), "a");
  expectNothingHeard();
  user->type("#");
  EXPECT_EQ(shown(), "a");
  expectRefusal(kInvalid, formatterItself());
}

TEST_F(FormatterFieldTest, AnythingIsAnything) {
  use("mAnything");
  const std::string everything = "a#\xE3\x81\x82\xF0\x9F\x99\x82\xE2\x82\xAC";
  user->type(QString::fromStdString(everything));
  EXPECT_EQ(shown(), everything);
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, ForbiddenStringsAreRefusedWhenTheyAreTypedAsOnePiece) {
  use("mForbidding");
  user->type("#");
  expectRefusal(kInvalid, std::string("#"));
  user->type("\xC3\xA9");
  expectRefusal(kInvalid, std::string("\xC3\xA9"));
  user->paste("ab");
  expectRefusal(kInvalid, std::string("b"));
  EXPECT_EQ(shown(), "");
  user->type("ab");
  user->paste("c#");
  EXPECT_EQ(shown(), "abc#");
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, LengthIsCountedInBytes) {
  use("mSixBytes", "1234");
  user->type("\xC3\xA9");
  EXPECT_EQ(shown(), "1234\xC3\xA9");
  expectNothingHeard();
  use("mSixBytes", "12345");
  user->type("\xC3\xA9");
  EXPECT_EQ(shown(), "12345");
  expectRefusal(kInvalid, formatterItself());
}

TEST_F(FormatterFieldTest, OneBadCharacterRefusesAWholePasteWithOneBeep) {
  use("mByte");
  user->paste("1x2");
  EXPECT_EQ(shown(), "");
  expectRefusal(kInvalid, formatterItself());
  user->drop("1x2", 0);
  expectRefusal(kInvalid, formatterItself());
  user->commit("1x2");
  expectRefusal(kInvalid, formatterItself());
  user->assisted().insertText(0, "1x2");
  expectRefusal(kInvalid, formatterItself());
  EXPECT_EQ(shown(), "");
  EXPECT_FALSE(line->canUndo());
  EXPECT_TRUE(owner.textChanges.empty());
}

TEST_F(FormatterFieldTest, OneBadCharacterIsRefusedWhereverItIsPut) {
  use("mByte", "12");
  line->setSelection(0, 2);
  user->drop("x", 0);
  expectRefusal(kInvalid, formatterItself());
  user->assisted().insertText(1, "x");
  expectRefusal(kInvalid, formatterItself());
  user->assisted().replaceText(0, 2, "3x");
  expectRefusal(kInvalid, formatterItself());
  user->accessible().setText(QAccessible::Value, "x12");
  expectRefusal(kInvalid, formatterItself());
  EXPECT_EQ(shown(), "12");
  EXPECT_EQ(line->selectedText(), "12");
  line->end(false);
  user->commitOver(2, "x");
  expectRefusal(kInvalid, formatterItself());
  EXPECT_EQ(shown(), "12");
}

TEST_F(FormatterFieldTest, NumbersAreShownInTheFormat) {
  EXPECT_EQ(owner.outlet<TextField>("mMillimetres")->stringValue(), "12 mm");
  use("mMillimetres", "7");
  EXPECT_EQ(shown(), "7 mm");
  user->selectAll();
  user->type("25");
  EXPECT_EQ(shown(), "25");
  user->press(Qt::Key_Return);
  EXPECT_EQ(shown(), "25 mm");
  EXPECT_EQ(owner.calls, (std::vector<std::string>{"run fieldDidEnd:"}));
  expectNothingHeard();
}

TEST_F(FormatterFieldTest, TextsAreShownAsTheyAre) {
  use("mAnything", "%d %s %n");
  EXPECT_EQ(shown(), "%d %s %n");
  user->type("%");
  user->press(Qt::Key_Return);
  EXPECT_EQ(shown(), "%d %s %n%");
  user->undo();
  EXPECT_EQ(shown(), "%d %s %n");
}

TEST_F(FormatterFieldTest, RefusedKeysDoNotReachTheDelegate) {
  use("mByte", "12");
  user->type("x3");
  ASSERT_EQ(owner.textChanges.size(), 1U);
  EXPECT_EQ(owner.textChanges[0].object, fieldItself());
  EXPECT_EQ(shown(), "123");
}

}  // namespace
}  // namespace cutline
