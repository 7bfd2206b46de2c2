// The cutting section of printers without the cut panel.
#include <gtest/gtest.h>

#include <QComboBox>

#include "host/dialog/CuttingForm.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

TEST(CuttingForm, OffersWhatThereIsAndReportsItsAssignment) {
  CuttingForm form;
  form.setMeanings({{{CutMeaning::never, 0, {{"CutMedia", "None"}}},
                     {CutMeaning::everyFew, 4, {{"Mode", "Cut"}, {"Interval", "4"}}},
                     {CutMeaning::atEnd, 0, {}}},
                    2});
  auto* list = form.findChild<QComboBox*>();
  EXPECT_EQ(list->itemText(0), QStringLiteral("Never"));
  EXPECT_EQ(list->itemText(1), QStringLiteral("After every 4 labels"));
  EXPECT_EQ(list->currentText(), QStringLiteral("After the last label"));
  OptionList chosen;
  QObject::connect(&form, &CuttingForm::cuttingChosen,
                   [&](const CutOffer& offer) { chosen = offer.assignment; });
  emit list->activated(1);
  EXPECT_EQ(chosen, (OptionList{{"Mode", "Cut"}, {"Interval", "4"}}));
}

class CuttingSectionTest : public DialogTest {};

TEST_F(CuttingSectionTest, IsNotThereWhereThePanelIs) {
  openQueue(samplePpd("tape-a"));
  EXPECT_FALSE(dialog().findChild<CuttingForm*>()->isVisible());
}

}  // namespace
}  // namespace cutline
