// The driver and the printer as programs, without a print server.
#include <gtest/gtest.h>

#include "tests/samples/RasterFile.h"
#include "tests/support/Command.h"
#include "tests/support/Facts.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

unsigned char stripes(unsigned x, unsigned y) { return (x + 2 * y) % 5 == 0 ? 0 : 255; }

class Programs : public ::testing::Test {
 protected:
  Programs() { writeRaster(raster(), tapePage(), 3, stripes); }

  std::string raster() const { return mFolder / "raster"; }
  std::string printed(const std::string& name) const { return mFolder / name; }
  static std::string filter() { return built("lib/cutline/printer/rastertocutline"); }
  static std::string backend() { return built("lib/cutline/printer/cutline-strip"); }
  std::string ppd() const { return "PPD=" + source("samples/ppd/tape-a.ppd") + ' '; }
  std::string uri() const { return "DEVICE_URI=cutline-strip:" + mFolder.path() + ' '; }

  std::string filterCommand(const std::string& options = {}) const {
    return ppd() + filter() + " 7 somebody 'a title' 1 " + quoted(options) + " <" + raster();
  }
  std::string backendCommand(const std::string& options = {}) const {
    return uri() + backend() + " 7 somebody 'a title' 1 " + quoted(options);
  }
  CommandResult print(const std::string& options) const {
    return run("set -o pipefail; " + filterCommand(options) + " | " + backendCommand(options));
  }
  // What is left besides the raster.
  std::vector<std::string> results() const {
    auto names = mFolder.names();
    std::erase(names, "raster");
    return names;
  }

  TemporaryFolder mFolder;
};

TEST_F(Programs, StoreAPictureAndTheOptionsOfAJob) {
  const CommandResult result = print("LxHalfCut=ON LxCutLabel=2");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(results(), (std::vector<std::string>{"job-7.png", "job-7.txt"}));
  Facts facts = factsOf(printed("job-7.txt"));
  EXPECT_EQ(facts["job-id"], "7");
  EXPECT_EQ(facts["title"], "a title");
  EXPECT_EQ(facts["options"], "LxHalfCut=ON LxCutLabel=2");
  EXPECT_EQ(facts["filter.argv5"], "LxHalfCut=ON LxCutLabel=2");
  EXPECT_EQ(facts["LxHalfCut"], "ON");
  EXPECT_EQ(facts["LxCutLabel"], "2");
  EXPECT_EQ(facts["LxMirror"], "OFF");
  EXPECT_EQ(facts["labels"], "3");
  EXPECT_EQ(facts["full-cuts"], "2");
  EXPECT_EQ(facts["half-cuts"], "2");  // behind the leader, and within the first piece
  EXPECT_NE(result.errors.find("PAGE: 3 1"), std::string::npos);
}

TEST_F(Programs, DrawWhatThePictureListSays) {
  ASSERT_EQ(print("").status, 0);
  Facts facts = factsOf(printed("job-7.txt"));
  const PngPicture strip(printed("job-7.png"));
  EXPECT_EQ(facts["picture"], std::to_string(strip.width()) + ',' + std::to_string(strip.height()));
  for (const char* label : {"label.1", "label.2", "label.3"}) {
    EXPECT_EQ(strip.inkIn(placeOf(facts[label])), 156U * 326 / 5 + 1) << label;
  }
}

// A damaged header names lines of gigabytes, which libcups makes room for at once.
TEST_F(Programs, TakeABoundedMemory) {
  const CommandResult bounds =
      run("sleep 5 | " + ppd() + filter() +
          " 7 somebody title 1 '' & for try in {1..100}; do"
          " grep 'Max address space *1073741824 ' /proc/$!/limits && break; sleep 0.02; done;"
          " kill $!");
  EXPECT_NE(bounds.output.find("Max address space"), std::string::npos) << bounds.errors;
  const CommandResult damaged = run(ppd() + filter() + " 7 somebody title 1 '' <" +
                                    quoted(source("tests/fuzz/corpus/raster/lines-of-gigabytes")));
  EXPECT_EQ(damaged.status, 1);
  EXPECT_EQ(damaged.errors, "ERROR: The document has no pages to print.\n");
}

TEST_F(Programs, KeepALineBreakInATitleOutOfTheList) {
  const std::string title = " $'two\\nLxHalfCut=ON' 1 '' ";
  run(ppd() + filter() + " 7 somebody" + title + '<' + raster() + " | " + uri() + backend() +
      " 7 somebody" + title);
  Facts facts = factsOf(printed("job-7.txt"));
  EXPECT_EQ(facts["title"], "two\\nLxHalfCut=ON");
  EXPECT_EQ(facts["LxHalfCut"], "OFF");
}

TEST_F(Programs, TakeTheirInputFromAFileToo) {
  const std::string commands = mFolder / "commands";
  const CommandResult driver =
      run(ppd() + filter() + " 8 somebody title 1 '' " + raster() + " >" + commands);
  EXPECT_EQ(driver.status, 0) << driver.errors;
  const CommandResult printer = run(uri() + backend() + " 8 somebody title 1 '' " + commands);
  EXPECT_EQ(printer.status, 0) << printer.errors;
  EXPECT_EQ(factsOf(printed("job-8.txt"))["labels"], "3");
}

TEST_F(Programs, SayHowTheyAreCalled) {
  EXPECT_NE(run(filter()).errors.find("Usage"), std::string::npos);
  EXPECT_EQ(run(filter() + " 1 2").status, 1);
  EXPECT_EQ(run(backend() + " 1 2").status, 1);
}

TEST_F(Programs, PrinterIsFoundByItsAddressOnly) {
  const CommandResult devices = run(backend());
  EXPECT_EQ(devices.status, 0);
  EXPECT_EQ(devices.output, "file cutline-strip \"Unknown\" \"Virtual label printer\"\n");
}

TEST_F(Programs, DriverRefusesAJobWithoutPpd) {
  const CommandResult result = run("PPD=/nonexistent " + filter() + " 7 u t 1 '' <" + raster());
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "ERROR: The printer's PPD file cannot be read.\n");
}

TEST_F(Programs, DriverRefusesADocumentWithoutPages) {
  writeRaster(raster(), tapePage(), 0, stripes);
  const CommandResult result = print("");
  EXPECT_NE(result.status, 0);
  EXPECT_NE(result.errors.find("no pages"), std::string::npos);
  EXPECT_TRUE(results().empty());
}

TEST_F(Programs, DriverRefusesAPageThatIsTooLarge) {
  cups_page_header2_t huge = tapePage();
  huge.cupsPageSize[1] = 1e8F;
  writeRaster(raster(), huge, 1, stripes);
  const CommandResult result = print("");
  EXPECT_NE(result.errors.find("too large"), std::string::npos);
  EXPECT_TRUE(results().empty());
}

TEST_F(Programs, DriverSaysWhenThePrinterIsGone) {
  const CommandResult result = run(filterCommand() + " >/dev/full");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "ERROR: The printer takes no more data.\n");
  EXPECT_EQ(run("set -o pipefail; (sleep 0.3; " + filterCommand() + ") | true").status, 1);
}

TEST_F(Programs, PrinterStoresNothingOfAJobThatBreaksOff) {
  for (const char* part : {"head -c 20000", "head -c 100", "cat /dev/null", "grep -av ^end$"}) {
    const CommandResult result = run(filterCommand() + " | " + part + " | " + backendCommand());
    EXPECT_NE(result.status, 0) << part;
    EXPECT_NE(result.errors.find(": The "), std::string::npos) << part;
    EXPECT_TRUE(results().empty()) << part;
  }
}

TEST_F(Programs, PrinterRefusesDataThatItsDriverDidNotMake) {
  const CommandResult result = run(backendCommand() + " </dev/urandom");
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.errors.find("not made by the printer's driver"), std::string::npos);
}

TEST_F(Programs, PrinterSaysWhenItsFolderIsMissing) {
  const CommandResult result =
      run(filterCommand() + " | DEVICE_URI=cutline-strip:/nonexistent/folder " + backend() +
          " 7 u t 1 ''");
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.errors.find("Cannot write to /nonexistent/folder."), std::string::npos);
}

TEST_F(Programs, PrinterLeavesNothingWhenThereIsNoSpace) {
  const CommandResult result =
      run(filterCommand() + " | (ulimit -f 1; " + backendCommand() + ") 2>&1");
  EXPECT_NE(result.output.find("Cannot write"), std::string::npos) << result.output;
  EXPECT_TRUE(results().empty());
}

TEST_F(Programs, PrinterRefusesAWrongAddressOrJobNumber) {
  EXPECT_EQ(run("DEVICE_URI=file:/tmp " + backend() + " 7 u t 1 '' </dev/null").status, 1);
  EXPECT_EQ(run(uri() + backend() + " ../7 u t 1 '' </dev/null").status, 1);
  EXPECT_TRUE(results().empty());
}

TEST_F(Programs, PrinterLeavesNothingOfACancelledJob) {
  const std::string slow =
      "DEVICE_URI=cutline-strip:" + mFolder.path() + "?pace=60000 " + backend() + " 7 u t 1 ''";
  const CommandResult result =
      run(filterCommand() + " >" + (mFolder / "raster.commands") + "; " + slow + ' ' +
          (mFolder / "raster.commands") + " & sleep 0.3; kill -TERM $!; wait $!; echo $?");
  EXPECT_EQ(result.output, "0\n") << result.errors;
  auto names = results();
  std::erase(names, "raster.commands");
  EXPECT_TRUE(names.empty());
}

}  // namespace
}  // namespace cutline::test
