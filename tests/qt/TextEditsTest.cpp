#include <gtest/gtest.h>

#include <string>

#include "qt/TextEdits.h"
#include "tests/qt/PrintEditedText.h"
#include "tests/support/Printers.h"

namespace cutline {

namespace {

EditedText edited(const char* text, int anchor, int caret) {
  return {QString::fromUtf8(text), anchor, caret};
}

TEST(EditAtSelection, IsMadeWhereTheSelectionWas) {
  const EditProposal edit = editAtSelection(edited("1234", 3, 1), edited("1x4", 2, 2));
  EXPECT_EQ(edit, (EditProposal{"1234", {1, 2}, "1x4", {2, 0}}));
}

TEST(EditAtSelection, OfABackspaceIsMadeAtTheCaret) {
  const EditProposal edit = editAtSelection(edited("12", 2, 2), edited("1", 1, 1));
  EXPECT_EQ(edit, (EditProposal{"12", {2, 0}, "1", {1, 0}}));
}

struct PlaceRow {
  const char* name;
  EditedText before;
  EditedText after;
  TextRange madeAt;
  TextRange selection;
};

class EditAnywhere : public testing::TestWithParam<PlaceRow> {};

TEST_P(EditAnywhere, IsMadeWhereTheTextsDiffer) {
  const PlaceRow& row = GetParam();
  const EditProposal edit = editAnywhere(row.before, row.after);
  EXPECT_EQ(edit, (EditProposal{row.before.text, row.madeAt, row.after.text, row.selection}));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EditAnywhere,
    testing::Values(
        PlaceRow{
            "InPlaceOfTheSelection", edited("1234", 1, 3), edited("1x4", 2, 2), {1, 2}, {2, 0}},
        PlaceRow{"SelectionAgainWithMore", edited("11", 1, 2), edited("111", 3, 3), {1, 1}, {3, 0}},
        PlaceRow{"AtTheCaret", edited("12", 1, 1), edited("1x2", 2, 2), {1, 0}, {2, 0}},
        PlaceRow{"AtTheStart", edited("12", 2, 2), edited("x12", 3, 3), {0, 0}, {1, 0}},
        PlaceRow{"AtTheEnd", edited("12", 0, 0), edited("12x", 3, 3), {2, 0}, {3, 0}},
        PlaceRow{"Inside", edited("1234", 4, 4), edited("1xy4", 4, 4), {1, 2}, {3, 0}},
        PlaceRow{"Deletion", edited("1234", 0, 0), edited("14", 2, 2), {1, 2}, {1, 0}},
        PlaceRow{"OfOneOfThree", edited("111", 0, 0), edited("11", 2, 2), {2, 1}, {2, 0}},
        PlaceRow{"OneMoreOfThree", edited("111", 0, 0), edited("1111", 4, 4), {3, 0}, {4, 0}},
        PlaceRow{"Everything", edited("12", 1, 1), edited("987", 3, 3), {0, 2}, {3, 0}},
        PlaceRow{"FromNothing", edited("", 0, 0), edited("12", 2, 2), {0, 0}, {2, 0}},
        PlaceRow{"ToNothing", edited("12", 1, 1), edited("", 0, 0), {0, 2}, {0, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

class EditHistoryTest : public testing::Test {
 protected:
  // An edit that goes on from the present text, with a selection of its own where one is given.
  void edit(const char* text, int caret) { editTo({QString::fromUtf8(text), caret, caret}); }
  void editTo(const EditedText& after) {
    history.record(now, after);
    now = after;
  }
  void moveTo(int caret) { now.anchor = now.caret = caret; }
  void correct(const char* text, int caret) {
    now = {QString::fromUtf8(text), caret, caret};
    history.correct(now);
  }
  std::string undo() { return shown(history.undo()); }
  std::string redo() { return shown(history.redo()); }
  std::string shown(const std::optional<EditedText>& state) {
    if (!state) return "(none)";
    now = *state;
    return state->text.toStdString();
  }

  EditHistory history;
  EditedText now;
};

TEST_F(EditHistoryTest, IsEmptyAtFirst) {
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
  EXPECT_FALSE(history.undo());
  EXPECT_FALSE(history.redo());
}

TEST_F(EditHistoryTest, TypingIsOneStep) {
  edit("1", 1);
  edit("12", 2);
  edit("12\xF0\x9F\x99\x82", 4);
  EXPECT_EQ(undo(), "");
  EXPECT_FALSE(history.canUndo());
  EXPECT_EQ(redo(), "12\xF0\x9F\x99\x82");
  EXPECT_FALSE(history.canRedo());
}

TEST_F(EditHistoryTest, TypingOverASelectionBeginsAStep) {
  edit("1", 1);
  edit("12", 2);
  now.anchor = 0;
  edit("3", 1);
  edit("34", 2);
  EXPECT_EQ(undo(), "12");
  EXPECT_EQ(now.selection(), (TextRange{0, 2}));
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, DeletingIsOneStep) {
  edit("1234", 4);
  edit("123", 3);
  edit("12", 2);
  EXPECT_EQ(undo(), "1234");
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, MovingTheCaretBeginsAStep) {
  edit("1", 1);
  moveTo(0);
  edit("21", 1);
  EXPECT_EQ(undo(), "1");
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, EndOfARunBeginsAStep) {
  edit("1", 1);
  history.endRun();
  edit("12", 2);
  EXPECT_EQ(undo(), "1");
}

TEST_F(EditHistoryTest, TypingAndDeletingAreTwoSteps) {
  edit("1", 1);
  edit("12", 2);
  edit("1", 1);
  edit("13", 2);
  EXPECT_EQ(undo(), "1");
  EXPECT_EQ(undo(), "12");
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, WhatIsNotOneCharacterIsAStep) {
  edit("12", 2);
  edit("1234", 4);
  edit("12345", 5);
  EXPECT_EQ(undo(), "1234");
  EXPECT_EQ(undo(), "12");
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, WhatIsPutElsewhereThanAtTheCaretIsAStep) {
  edit("1", 1);
  edit("21", 2);
  edit("321", 3);
  EXPECT_EQ(undo(), "21");
  EXPECT_EQ(undo(), "1");
}

TEST_F(EditHistoryTest, StepsKeepSelectionsAndTheirDirection) {
  editTo({"1234", 4, 4});
  now.anchor = 3;
  now.caret = 1;
  editTo({"1x4", 2, 2});
  EXPECT_EQ(undo(), "1234");
  EXPECT_EQ(now, (EditedText{"1234", 3, 1}));
  EXPECT_EQ(redo(), "1x4");
  EXPECT_EQ(now, (EditedText{"1x4", 2, 2}));
}

TEST_F(EditHistoryTest, AnEditForgetsWhatCouldBeRedone) {
  edit("12", 2);
  edit("1234", 4);
  undo();
  EXPECT_TRUE(history.canRedo());
  edit("12x", 3);
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(undo(), "12");
}

TEST_F(EditHistoryTest, TypingAfterUndoingIsAStep) {
  edit("1", 1);
  edit("12", 2);
  undo();
  redo();
  edit("123", 3);
  EXPECT_EQ(undo(), "12");
}

TEST_F(EditHistoryTest, CorrectionBelongsToItsEdit) {
  edit("7", 1);
  moveTo(1);
  history.endRun();
  edit("72", 2);
  edit("725", 3);
  correct("99", 2);
  EXPECT_EQ(undo(), "7");
  EXPECT_EQ(redo(), "99");
}

TEST_F(EditHistoryTest, TypingGoesOnAfterACorrection) {
  edit("1", 1);
  correct("2", 1);
  edit("23", 2);
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, StepThatIsCorrectedToNothingIsForgotten) {
  edit("99", 2);
  edit("999", 3);
  correct("99", 2);
  EXPECT_EQ(undo(), "");
  EXPECT_FALSE(history.canUndo());
}

TEST_F(EditHistoryTest, CorrectionAfterUndoingKeepsWhatCanBeRedone) {
  edit("12", 2);
  edit("1234", 4);
  EXPECT_EQ(undo(), "12");
  correct("15", 2);
  EXPECT_EQ(redo(), "1234");
  EXPECT_EQ(undo(), "15");
  EXPECT_EQ(undo(), "");
}

TEST_F(EditHistoryTest, CorrectionMayLeaveNothingToUndoOrRedo) {
  edit("12", 2);
  undo();
  correct("12", 2);
  EXPECT_FALSE(history.canRedo());
  EXPECT_FALSE(history.canUndo());
}

TEST_F(EditHistoryTest, ForgetsEverything) {
  edit("12", 2);
  edit("1234", 4);
  undo();
  history.clear();
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
}

}  // namespace

}  // namespace cutline
