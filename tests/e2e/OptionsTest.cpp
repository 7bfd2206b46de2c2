// Each setting of the dialog, from the user's hand to the arguments of the printer's driver.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>

#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

constexpr char kCountField[] = "Number of labels between cuts";
constexpr char kCountStepper[] = "Change the number of labels between cuts";

struct Choice {
  const char* keyword;
  const char* choice;
};
// Other than the defaults, and all of them allowed together.
constexpr Choice kOtherOptions[] = {{"Resolution", "360dpi"},
                                    {"PrintDensity", "Dark"},
                                    {"PrintSpeed", "Quiet"},
                                    {"Halftone", "Dots"},
                                    {"TapeMaterial", "Fabric"}};

void clickArrow(QSpinBox* stepper, QStyle::SubControl arrow) {
  ASSERT_NE(stepper, nullptr);
  ASSERT_TRUE(stepper->isEnabled());
  QStyleOptionSpinBox option;
  option.initFrom(stepper);
  option.frame = true;
  option.subControls = QStyle::SC_All;
  option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
  const QRect place = stepper->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, stepper);
  QTest::mouseClick(stepper, Qt::LeftButton, Qt::NoModifier, place.center());
}

class Options : public EndToEndTest, public testing::WithParamInterface<const char*> {
 protected:
  std::shared_ptr<PpdFile> ppd() const { return samplePpd(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(EachPrinter, Options, testing::ValuesIn(kPrinters),
                         [](const auto& info) { return std::string(info.param); });

// What the defaults become when one box is clicked.
Choices afterClick(Choices choices, const std::string& keyword) {
  choices[keyword] = choices[keyword] == "ON" ? "OFF" : "ON";
  if (keyword == "LxSpecialTape") choices["LxAutoTapeCut"] = "OFF";
  return choices;
}

TEST_P(Options, EachBoxChangesItsOptionAndNoOther) {
  const Choices defaults = cutDefaults(*ppd());
  for (const std::string& keyword : cutSwitches(*ppd())) {
    DialogOnServer dialog(GetParam());
    click(dialog.box(keyword));
    dialog.print();
    EXPECT_EQ(only(newJob().options(), defaults), afterClick(defaults, keyword)) << keyword;
  }
}

TEST_P(Options, EachOtherOptionOfThePrinterIsPrinted) {
  DialogOnServer dialog(GetParam());
  dialog.press("&More printer options");
  Choices expected;
  for (const Choice& each : kOtherOptions) {
    auto* list = dialog.dialog().findChild<QComboBox*>(QLatin1String(each.keyword));
    EXPECT_EQ(list != nullptr, ppd()->hasOption(each.keyword)) << each.keyword;
    if (list == nullptr) continue;
    choose(list, QLatin1String(each.choice));
    expected[each.keyword] = each.choice;
  }
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(only(job.options(), expected), expected);
  EXPECT_EQ(job.fact("Resolution"), "360dpi");
}

TEST_P(Options, EachChoiceOfTheOtherOptionsIsSent) {
  DialogOnServer dialog(GetParam());
  dialog.press("&More printer options");
  for (const Choice& each : kOtherOptions) {
    auto* list = dialog.dialog().findChild<QComboBox*>(QLatin1String(each.keyword));
    if (list == nullptr) continue;
    for (int i = list->count() - 1; i >= 0; --i) {
      choose(list, list->itemData(i).toString());
      EXPECT_EQ(dialog.sent()[each.keyword], list->itemData(i).toString().toStdString());
    }
  }
}

TEST_P(Options, EachPaperIsSent) {
  DialogOnServer dialog(GetParam());
  auto* papers = dialog.named<QComboBox>("Paper");
  ASSERT_EQ(papers->count(), static_cast<int>(ppd()->paperSizes().size()));
  for (const PaperSize& paper : ppd()->paperSizes()) {
    choose(papers, QString::fromStdString(paper.name));
    EXPECT_EQ(dialog.sent()["PageSize"], paper.name);
  }
}

TEST_P(Options, AnotherPaperIsPrinted) {
  const PaperSize paper = ppd()->paperSizes()[2];
  DialogOnServer dialog(GetParam());
  choose(dialog.named<QComboBox>("Paper"), QString::fromStdString(paper.name));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("PageSize"), paper.name);
  EXPECT_EQ(job.fact("PageSize"), paper.name);
}

TEST_P(Options, CopiesAndPagesArePrinted) {
  DialogOnServer dialog(GetParam());
  type(dialog.named<QSpinBox>("Copies"), QStringLiteral("3"));
  type(dialog.named<QLineEdit>("Pages"), QStringLiteral("2-3, 7"));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("page-ranges"), "1-99999") << "these pages alone were sent";
  EXPECT_EQ(job.number("labels"), 9);
  EXPECT_EQ(job.printedLabels(), 9);
}

class CutEvery : public Options {};
INSTANTIATE_TEST_SUITE_P(EachPrinter, CutEvery, testing::Values("tape24", "roll62"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(CutEvery, ATypedNumberIsPrinted) {
  DialogOnServer dialog(GetParam());
  type(dialog.named<QLineEdit>(kCountField), QStringLiteral("5"));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxCutLabel"), "5");
  EXPECT_EQ(job.number("pieces"), 3);  // after 5, 10 and 12 labels
}

TEST_P(CutEvery, ASteppedNumberIsPrinted) {
  DialogOnServer dialog(GetParam());
  auto* stepper = dialog.named<QSpinBox>(kCountStepper);
  for (int i = 0; i < 6; ++i) clickArrow(stepper, QStyle::SC_SpinBoxUp);
  clickArrow(stepper, QStyle::SC_SpinBoxDown);
  EXPECT_EQ(dialog.named<QLineEdit>(kCountField)->text(), QStringLiteral("6"));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxCutLabel"), "6");
  EXPECT_EQ(job.number("pieces"), 2);
}

}  // namespace

}  // namespace cutline::test
