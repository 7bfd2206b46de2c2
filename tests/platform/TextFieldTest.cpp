#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "plain/PlainToolkit.h"
#include "platform/ports/TextField.h"

namespace cutline {
namespace {

struct IntRow {
  const char* name;
  std::string text;
  int value;
};

class TextFieldIntValue : public testing::TestWithParam<IntRow> {};

TEST_P(TextFieldIntValue, IsTheLeadingInteger) {
  PlainToolkit toolkit;
  const auto field = toolkit.createTextField({});
  field->setStringValue(GetParam().text);
  EXPECT_EQ(field->intValue(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextFieldIntValue,
    testing::Values(IntRow{"Empty", "", 0}, IntRow{"Blanks", "   ", 0}, IntRow{"Number", "12", 12},
                    IntRow{"Zero", "0", 0}, IntRow{"LeadingZeros", "007", 7},
                    IntRow{"Negative", "-3", -3}, IntRow{"Plus", "+4", 4},
                    IntRow{"BlanksBefore", " \t5", 5}, IntRow{"WordsAfter", "6 labels", 6},
                    IntRow{"Fraction", "7.9", 7}, IntRow{"Words", "labels", 0},
                    IntRow{"SignAlone", "-", 0}, IntRow{"TwoSigns", "+-8", 0},
                    IntRow{"TwoMinusSigns", "--8", 0}, IntRow{"BlankAfterSign", "- 8", 0},
                    IntRow{"Largest", "2147483647", std::numeric_limits<int>::max()},
                    IntRow{"OneTooLarge", "2147483648", std::numeric_limits<int>::max()},
                    IntRow{"Smallest", "-2147483648", std::numeric_limits<int>::min()},
                    IntRow{"OneTooSmall", "-2147483649", std::numeric_limits<int>::min()},
                    IntRow{"Huge", "99999999999999999999999", std::numeric_limits<int>::max()},
                    IntRow{"HugeNegative", "-99999999999999999999999",
                           std::numeric_limits<int>::min()},
                    IntRow{"FullWidthDigits", "\xEF\xBC\x91", 0}),
    [](const auto& row) { return std::string(row.param.name); });

struct CorrectionRow {
  const char* name;
  std::size_t editedLength;
  std::size_t caret;
  std::size_t correctedLength;
  TextRange selection;
};

class SelectionAfterCorrection : public testing::TestWithParam<CorrectionRow> {};

TEST_P(SelectionAfterCorrection, KeepsItsPlaceFromTheEnd) {
  const CorrectionRow& row = GetParam();
  EXPECT_EQ(selectionAfterCorrection(row.editedLength, row.caret, row.correctedLength),
            row.selection);
}

INSTANTIATE_TEST_SUITE_P(Rows, SelectionAfterCorrection,
                         testing::Values(CorrectionRow{"AtTheEnd", 3, 3, 2, {2, 0}},
                                         CorrectionRow{"AtTheEndOfALonger", 1, 1, 4, {4, 0}},
                                         CorrectionRow{"Inside", 3, 1, 4, {2, 0}},
                                         CorrectionRow{"TooFarFromTheEnd", 5, 1, 2, {0, 0}},
                                         CorrectionRow{"Emptied", 0, 0, 2, {0, 2}},
                                         CorrectionRow{"EmptiedAndEmpty", 0, 0, 0, {0, 0}},
                                         CorrectionRow{"CaretBeyondTheText", 2, 9, 3, {3, 0}}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace cutline
