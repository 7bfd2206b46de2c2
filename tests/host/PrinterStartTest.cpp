// With what a dialog begins where nothing is saved.
#include <gtest/gtest.h>

#include "host/core/PrinterStart.h"
#include "tests/host/Dialog.h"
#include "tests/support/OtherDrivers.h"

namespace cutline {
namespace {

using test::TestPrinter;

// Sizes of the test printers are 34 x 200 points, all of them; these two differ.
constexpr char kTwoLabels[] =
    "*OpenUI *PageSize: PickOne\n"
    "*DefaultPageSize: DEFAULT\n"
    "*PageSize 24x50mm.Borderless: \"\"\n*PageSize 62x29mm.Borderless: \"\"\n"
    "*CloseUI: *PageSize\n"
    "*PaperDimension 24x50mm.Borderless: \"68.03 141.73\"\n"
    "*PaperDimension 62x29mm.Borderless: \"175.75 82.2\"\n"
    "*ImageableArea 24x50mm.Borderless: \"0 0 68.03 141.73\"\n"
    "*ImageableArea 62x29mm.Borderless: \"0 0 175.75 82.2\"\n";

std::shared_ptr<PpdFile> ppdWithDefaultSize(const std::string& size) {
  std::string text = std::string("*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n") + kTwoLabels;
  return test::ppdFromText(text.replace(text.find("DEFAULT"), 7, size));
}

std::shared_ptr<PpdFile> cutterPpd(const std::string& defaultCut = "None") {
  TestPrinter printer = test::cutMediaPrinter();
  const std::string line = "*DefaultCutMedia: None";
  printer.more.replace(printer.more.find(line), line.size(), "*DefaultCutMedia: " + defaultCut);
  printer.more +=
      "*cupsIPPFinishings 60/trim-after-pages: \"*CutMedia EndOfPage\"\n"
      "*cupsIPPFinishings 63/trim-after-job: \"*CutMedia EndOfJob\"\n";
  return test::ppdFor(printer);
}

class PrinterStart : public testing::Test {
 protected:
  Dialog& open(const std::shared_ptr<PpdFile>& ppd, const DeviceFacts& device,
               const OptionList& saved = {}) {
    Destination destination;
    destination.name.printer = "label";
    destination.savedOptions = saved;
    destination.device = device;
    mDialog.model().openPrinter({destination, ppd});
    return mDialog;
  }
  std::string cut(const std::string& defaultCut, const std::vector<int>& finishings,
                  const OptionList& saved = {}) {
    return open(cutterPpd(defaultCut), {finishings, {}}, saved).sent()["CutMedia"];
  }
  std::string paper(const std::string& defaultSize, const std::vector<MediaMeasures>& ready,
                    const OptionList& saved = {}) {
    return open(ppdWithDefaultSize(defaultSize), {{}, ready}, saved).sent()["PageSize"];
  }

  Dialog mDialog;
};

// A job that does not say where it is cut would switch the printer's cutter off.
TEST_F(PrinterStart, SaysInEachJobWhereItIsCut) {
  EXPECT_EQ(cut("None", {}), "None");
  EXPECT_EQ(cut("EndOfJob", {}), "EndOfJob");
}

TEST_F(PrinterStart, CutsAsThePrinterDoesByItself) {
  EXPECT_EQ(cut("None", {60}), "EndOfPage");
  EXPECT_EQ(cut("None", {3}), "None");
  EXPECT_EQ(cut("None", {4, 63}), "EndOfJob");
}

TEST_F(PrinterStart, LeavesWhatSomebodyChose) {
  EXPECT_EQ(cut("EndOfJob", {60}), "EndOfJob") << "the queue's own default";
  EXPECT_EQ(cut("None", {60}, {{"CutMedia", "None"}}), "None");
  EXPECT_EQ(cut("None", {60}, {{"finishings", "63"}}), "EndOfJob");
  EXPECT_FALSE(mDialog.sent().contains("finishings"));
}

TEST_F(PrinterStart, AppliesAPresetOverIt) {
  Dialog& dialog = open(cutterPpd(), {{60}, {}});
  dialog.model().applyPreset({{"copies", "2"}});
  EXPECT_EQ(dialog.sent()["CutMedia"], "EndOfPage");
  dialog.model().applyPreset({{"CutMedia", "None"}});
  EXPECT_EQ(dialog.sent()["CutMedia"], "None");
}

constexpr MediaMeasures kSmall = {2400, 5000};
constexpr MediaMeasures kWide = {6200, 2900};

TEST_F(PrinterStart, TakesThePaperThatIsLoaded) {
  EXPECT_EQ(paper("24x50mm.Borderless", {}), "24x50mm.Borderless");
  EXPECT_EQ(paper("24x50mm.Borderless", {kWide}), "62x29mm.Borderless");
  EXPECT_EQ(paper("62x29mm.Borderless", {kSmall, kWide}), "62x29mm.Borderless");
  EXPECT_EQ(paper("24x50mm.Borderless", {{1000, 1000}}), "24x50mm.Borderless");
  EXPECT_EQ(paper("24x50mm.Borderless", {kWide}, {{"PageSize", "24x50mm.Borderless"}}),
            "24x50mm.Borderless");
}

TEST_F(PrinterStart, HasAPaperWhereTheDefaultIsNone) {
  EXPECT_EQ(paper("62x29mm", {}), "62x29mm.Borderless");
  EXPECT_EQ(paper("A4", {}), "24x50mm.Borderless");
}

TEST_F(PrinterStart, SaysWhichPapersAreLoaded) {
  Dialog& dialog = open(ppdWithDefaultSize("24x50mm.Borderless"), {{}, {kWide}});
  ASSERT_EQ(dialog.model().papers().size(), 2U);
  EXPECT_FALSE(dialog.model().papers()[0].isLoaded);
  EXPECT_TRUE(dialog.model().papers()[1].isLoaded);
}

}  // namespace
}  // namespace cutline
