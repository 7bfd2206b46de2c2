#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QStyledItemDelegate>

#include "host/dialog/NarrowComboBox.h"

namespace cutline {
namespace {

struct Entries {
  const char* name;
  QStringList texts;
  QString placeholder = {};
};

class NarrowComboBoxSize : public testing::TestWithParam<Entries> {
 protected:
  static void fill(QComboBox& list) {
    list.addItems(GetParam().texts);
    list.setPlaceholderText(GetParam().placeholder);
  }
};

// Qt's own, which makes its list for it.
TEST_P(NarrowComboBoxSize, IsThatOfSoManyLetters) {
  for (const int letters : {1, 8, 12, 40}) {
    QComboBox expected;
    expected.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    expected.setMinimumContentsLength(letters);
    fill(expected);
    NarrowComboBox list(letters);
    fill(list);
    EXPECT_EQ(list.sizeHint(), expected.sizeHint()) << letters;
    EXPECT_EQ(list.minimumSizeHint(), expected.minimumSizeHint()) << letters;
  }
}

INSTANTIATE_TEST_SUITE_P(
    NarrowComboBox, NarrowComboBoxSize,
    testing::Values(Entries{"Empty", {}}, Entries{"Short", {"A", "B"}},
                    Entries{"Long", {QString(200, QLatin1Char('W'))}},
                    Entries{"Placeholder", {}, "Choose one of these very long printers"}),
    [](const auto& each) { return each.param.name; });

TEST(NarrowComboBox, MakesItsListWhenItIsOpened) {
  NarrowComboBox list(12);
  list.addItems({QStringLiteral("A"), QStringLiteral("B")});
  auto* const rows = new QStyledItemDelegate;
  list.setRows(rows);
  list.show();
  list.sizeHint();
  EXPECT_EQ(list.findChild<QAbstractItemView*>(), nullptr);
  list.showPopup();
  const auto* const view = list.findChild<QAbstractItemView*>();
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->itemDelegate(), rows);
  list.hidePopup();
  list.showPopup();
  EXPECT_EQ(view->itemDelegate(), rows);
  list.hidePopup();
}

}  // namespace
}  // namespace cutline
