#include <gtest/gtest.h>

#include <string>

#include "qt/EditProposal.h"

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

}  // namespace
}  // namespace cutline
