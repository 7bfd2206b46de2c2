// What a user hears of before printing, in words; and that a preset opens as it was shown when it
// was kept, also where a rule was changing it.
#include <gtest/gtest.h>

#include "tests/host/Dialog.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

using test::fullTapePrinter;
using test::ppdFor;
using test::TestPrinter;

using Sentences = std::vector<std::string>;

class DeviationTest : public testing::Test {
 protected:
  void open(const TestPrinter& printer, const OptionList& saved = {}) {
    mDialog.open(ppdFor(printer), saved);
  }
  PrintModel& model() { return mDialog.model(); }

  Sentences sentences() {
    Sentences sentences;
    for (const Deviation& deviation : model().deviations())
      sentences.push_back(deviation.sentence.english());
    return sentences;
  }

  Dialog mDialog;
};

TestPrinter printerWith(const std::map<std::string, std::string>& choices) {
  TestPrinter printer = fullTapePrinter();
  for (const auto& [keyword, choice] : choices) printer.cutOptions[keyword] = choice;
  return printer;
}

TEST_F(DeviationTest, AutoCutThatIsTickedOnMediaThatMustNotBeCut) {
  open(fullTapePrinter());
  ASSERT_TRUE(model().setPaper("HS12"));
  EXPECT_EQ(sentences(), Sentences());
  mDialog.click("LxAutoTapeCut");
  EXPECT_EQ(mDialog.sent()["LxAutoTapeCut"], "ON");
  EXPECT_EQ(sentences(), Sentences{"AutoTapeCut: sent as \"On\" although the paper \"Paper HS12\" "
                                   "must not be cut automatically."});
}

TEST_F(DeviationTest, AnotherPaperThatMustNotBeCutTurnsItOffAgain) {
  open(fullTapePrinter());
  ASSERT_TRUE(model().setPaper("HS12"));
  mDialog.click("LxAutoTapeCut");
  ASSERT_TRUE(model().setPaper("HS24"));
  EXPECT_EQ(mDialog.sent()["LxAutoTapeCut"], "OFF");
  EXPECT_EQ(sentences(), Sentences{"AutoTapeCut: sent as \"Off\" because the paper \"Paper HS24\" "
                                   "must not be cut automatically."});
}

TEST_F(DeviationTest, CutAtEndUnderSpecialTape) {
  open(printerWith({{"LxCutAtEnd", "ON"}}));
  EXPECT_EQ(sentences(), Sentences());
  mDialog.click("LxSpecialTape");
  EXPECT_EQ(sentences(),
            Sentences{"CutAtEnd: sent as \"On\", but nothing is cut while special tape is on."});
}

TEST_F(DeviationTest, AutoCutWithoutABox) {
  TestPrinter printer = fullTapePrinter();
  printer.cutOptions.erase("LxCutLabel");
  open(printer);
  ASSERT_TRUE(model().setOption("LxAutoTapeCut", "ON"));
  EXPECT_EQ(mDialog.sent()["LxAutoTapeCut"], "ON");
  EXPECT_EQ(sentences(),
            Sentences{"AutoTapeCut: sent as \"On\", which the picture does not show."});
}

TEST_F(DeviationTest, AThirdChoice) {
  TestPrinter printer = fullTapePrinter();
  printer.offersAuto = {"LxHalfCut"};
  open(printer);
  ASSERT_TRUE(model().setOption("LxHalfCut", "AUTO"));
  EXPECT_EQ(mDialog.sent()["LxHalfCut"], "AUTO");
  EXPECT_EQ(sentences(), Sentences{"HalfCut: sent as \"Auto\", which the picture does not show."});
  mDialog.click("LxHalfCut");
  EXPECT_EQ(mDialog.sent()["LxHalfCut"], "OFF");
}

// By hand, from the command line, and from a preset.
TEST_F(DeviationTest, BlankSpaceIsKeptHoweverOneComesToThePaper) {
  const Sentences expected = {
      "RemoveBlkSpace: sent as \"Off\" because the paper \"Paper DC38\" keeps its blank space."};
  const OptionList options = {{"LxRemoveBlkSpace", "ON"}, {"PageSize", "DC38"}};
  Dialog asked({options, {}, {}});
  for (Dialog* dialog : {&mDialog, &asked}) dialog->open(ppdFor(fullTapePrinter()));
  const auto expectKept = [&](Dialog& dialog) {
    EXPECT_EQ(dialog.sent()["LxRemoveBlkSpace"], "OFF");
    EXPECT_EQ(dialog.boxes("LxRemoveBlkSpace").front()->state(), CheckBox::kOn);
    ASSERT_EQ(dialog.model().deviations().size(), 1U);
    EXPECT_EQ(dialog.model().deviations().front().sentence.english(), expected.front());
  };
  expectKept(asked);
  mDialog.click("LxRemoveBlkSpace");
  ASSERT_TRUE(model().setPaper("DC38"));
  expectKept(mDialog);
  ASSERT_TRUE(model().applyPreset({}));
  EXPECT_EQ(sentences(), Sentences());
  ASSERT_TRUE(model().applyPreset(options));
  expectKept(mDialog);
}

TEST_F(DeviationTest, APresetKeptUnderSpecialTapeSendsWhatWasSentAndGivesBackWhatWasWanted) {
  open(printerWith({{"LxAutoTapeCut", "ON"}}));
  mDialog.click("LxHalfCut");
  mDialog.click("LxSpecialTape");
  const Result<OptionList> preset = model().savePreset();
  ASSERT_TRUE(preset);
  EXPECT_EQ(std::count(preset->begin(), preset->end(),
                       std::pair<std::string, std::string>("LxHalfCut", "OFF")),
            1);
  Dialog later;
  later.open(ppdFor(fullTapePrinter()), *preset);
  EXPECT_EQ(later.boxes("LxHalfCut").front()->state(), CheckBox::kOn);
  EXPECT_EQ(later.sent(), mDialog.sent());
  EXPECT_EQ(later.sent()["LxHalfCut"], "OFF");
  later.click("LxSpecialTape");
  EXPECT_EQ(later.sent()["LxHalfCut"], "ON");
  EXPECT_EQ(later.sent()["LxAutoTapeCut"], "ON");
}

TEST_F(DeviationTest, WhatIsAskedForOverAPresetWinsOverWhatItWanted) {
  open(fullTapePrinter());
  mDialog.click("LxHalfCut");
  mDialog.click("LxSpecialTape");
  const Result<OptionList> preset = model().savePreset();
  ASSERT_TRUE(preset);
  Dialog later({{{"LxSpecialTape", "OFF"}, {"LxHalfCut", "OFF"}}, {}, {}});
  later.open(ppdFor(fullTapePrinter()), *preset);
  EXPECT_EQ(later.sent()["LxHalfCut"], "OFF");
}

// Two boxes stand for automatic cutting, and the roll's presets speak of one.
TEST_F(DeviationTest, TheRollsPresetsSwitchAutoCutWithBothOfItsBoxes) {
  TestPrinter printer = printerWith({{"LxAutoTapeCut", "ON"}});
  printer.isRoll = true;
  printer.autoCutHidden = "False";
  open(printer);
  ASSERT_EQ(mDialog.boxes("LxAutoTapeCut").size(), 2U);
  for (const auto& [tag, choice] : {std::pair(2, "OFF"), std::pair(3, "ON"), std::pair(1, "OFF")}) {
    ASSERT_TRUE(mDialog.presets()->performSelection(tag));
    EXPECT_EQ(mDialog.sent()["LxAutoTapeCut"], choice) << tag;
    for (const CheckBox* box : mDialog.boxes("LxAutoTapeCut"))
      EXPECT_EQ(box->state(), choice == std::string("ON") ? CheckBox::kOn : CheckBox::kOff) << tag;
  }
}

}  // namespace
}  // namespace cutline
