// From a click in the dialog to the label that comes out of the printer.
#include <gtest/gtest.h>

#include "host/core/CutRules.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

struct Row {
  const char* printer;
  const char* clicked;
  const char* summaryTitle;
  unsigned labelWidth;  // in dots at 180 an inch
  unsigned labelHeight;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.printer; }
constexpr Row kRows[] = {{"tape24", "LxHalfCut", "Half cut between labels", 354, 170},
                         {"tapeb", "LxHalfCut", "Half cut between labels", 354, 170},
                         {"roll62", "LxMirror", "Mirror printing", 439, 205}};

// The preview's picture is named after what it shows.
std::string onOff(const Choices& options, const std::vector<std::string>& keywords) {
  std::string name;
  for (const std::string& keyword : keywords) {
    const auto option = options.find(keyword);
    name += option != options.end() && option->second == "ON" ? "On" : "Off";
  }
  return name;
}

std::string pictureFor(const Choices& options, bool isRoll) {
  if (!isRoll)
    return "AHCM" + onOff(options, {"LxAutoTapeCut", "LxHalfCut", "LxChainPrint", "LxMirror"});
  // Cutting every so many labels cuts the last one, too.
  const bool cutsEach = onOff(options, {"LxAutoTapeCut"}) == "On";
  return "EveryEndMirror" + (cutsEach ? "OnOff" : "Off" + onOff(options, {"LxCutAtEnd"})) +
         onOff(options, {"LxMirror"});
}

class Printing : public EndToEndTest, public testing::WithParamInterface<Row> {};
INSTANTIATE_TEST_SUITE_P(EachPrinter, Printing, testing::ValuesIn(kRows),
                         [](const auto& info) { return info.param.printer; });

TEST_P(Printing, AClickReachesThePrinterWithEveryCutOptionSaid) {
  DialogOnServer dialog(GetParam().printer);
  Choices expected = cutDefaults(*samplePpd(GetParam().printer));
  ASSERT_EQ(expected[GetParam().clicked], "OFF");
  click(dialog.box(GetParam().clicked));
  expected[GetParam().clicked] = "ON";
  const Choices shown = dialog.sent();
  dialog.print();
  EXPECT_EQ(dialog.dialog().exitStatus(), kExitDone);
  const PrintedJob job = newJob();
  EXPECT_EQ(only(job.options(), cutDefaults(*samplePpd(GetParam().printer))), expected);
  EXPECT_EQ(only(job.options(), {{"PageSize", ""}}), only(shown, {{"PageSize", ""}}));
}

TEST_P(Printing, EachPageBecomesALabel) {
  DialogOnServer dialog(GetParam().printer);
  click(dialog.box(GetParam().clicked));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.number("labels"), kLabels);
  EXPECT_EQ(job.printedLabels(), kLabels);
  EXPECT_EQ(job.firstLabel().width, GetParam().labelWidth);
  EXPECT_EQ(job.firstLabel().height, GetParam().labelHeight);
}

TEST_P(Printing, SummaryAndPictureShowWhatIsSent) {
  const bool isRoll = isLabelRoll(*samplePpd(GetParam().printer));
  DialogOnServer dialog(GetParam().printer);
  EXPECT_EQ(dialog.summary()[GetParam().summaryTitle], "No");
  EXPECT_EQ(dialog.picture(), pictureFor(dialog.sent(), isRoll));
  click(dialog.box(GetParam().clicked));
  EXPECT_EQ(dialog.summary()[GetParam().summaryTitle], "Yes");
  const std::string shown = dialog.picture();
  dialog.print();
  EXPECT_EQ(shown, pictureFor(newJob().options(), isRoll));
}

TEST_F(EndToEndTest, AHalfCutStandsBeforeEachLabel) {
  DialogOnServer dialog("tape24");
  click(dialog.box("LxHalfCut"));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.number("half-cuts"), kLabels);
  EXPECT_EQ(job.number("full-cuts"), 1);
}

}  // namespace

}  // namespace cutline::test
