// What the print system's own label drivers send to a printer, and what is planned for them.
#include <filesystem>

#include "tests/drivers/OtherDrivers.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

// The option of a standard PPD, as a driver with this filter has it.
constexpr char kCutMedia[] =
    "*OpenUI *CutMedia/Cut: PickOne\n"
    "*OrderDependency: 20 AnySetup *CutMedia\n"
    "*DefaultCutMedia: None\n"
    "*CutMedia None/None: \"<</CutMedia 0>>setpagedevice\"\n"
    "*CutMedia EndOfPage/Page: \"<</CutMedia 4>>setpagedevice\"\n"
    "*CutMedia EndOfSet/Set: \"<</CutMedia 3>>setpagedevice\"\n"
    "*CutMedia EndOfJob/Job: \"<</CutMedia 2>>setpagedevice\"\n"
    "*CloseUI: *CutMedia\n";

int countOf(const std::string& part, const std::string& bytes) {
  int count = 0;
  for (auto at = bytes.find(part); at != std::string::npos; at = bytes.find(part, at + part.size()))
    ++count;
  return count;
}

class LabelFilter : public OtherDriversTest {
 protected:
  static void SetUpTestSuite() {
    OtherDriversTest::SetUpTestSuite();
    outputOf("ppdc -d " + place("ppds") + " /usr/share/cups/drv/sample.drv");
    addLabelQueue("modes", ppdWith("*OpenUI *zePrintMode/"));
    addLabelQueue("intervals", ppdWith("*OpenUI *inPrintMode/"));
    std::string text = ppdWith("*OpenUI *zePrintMode/");
    addLabelQueue("cutter", text.insert(text.find("*OpenUI *Darkness"), kCutMedia));
  }

  static std::string place(const std::string& name) { return labelServer().folder() + '/' + name; }

  // Of the drivers' PPDs, the first that has this line.
  static std::string ppdWith(const std::string& line) {
    for (const auto& file : std::filesystem::directory_iterator(place("ppds")))
      if (const std::string text = contentsOf(file.path()); text.find(line) != std::string::npos)
        return text;
    ADD_FAILURE() << "no PPD has " << line;
    return {};
  }

  // With a file for the printer, named as the queue is.
  static void addLabelQueue(const std::string& name, const std::string& ppd) {
    writeFile(place(name + ".ppd"), ppd);
    writeFile(place(name), "");
    std::filesystem::permissions(place(name), std::filesystem::perms(0666));
    addQueue(name, "-v file://" + place(name) + " -P " + place(name + ".ppd") + " 2>/dev/null");
  }

  // What the printer of the queue gets for these words.
  static std::string sent(const std::string& queue, const std::string& words) {
    writeFile(place(queue), "");
    print("-d " + queue + ' ' + words);
    std::string bytes = contentsOf(place(queue));
    EXPECT_GT(bytes.size(), 1000U) << queue << ' ' << words;
    return bytes;
  }
};

// One command a page that is sent, whatever the choice.
TEST_F(LabelFilter, CutsAsOftenAsIsPlanned) {
  for (const char* words :
       {"", "-o CutMedia=EndOfPage", "-o CutMedia=EndOfSet", "-o CutMedia=EndOfJob",
        "-o CutMedia=EndOfJob -P 2-4", "-o CutMedia=EndOfPage -n 3",
        "-o CutMedia=EndOfSet -n 3 -o collate=true"}) {
    // A mode in which the printer does not cut by itself.
    const std::string all = std::string("-o zePrintMode=Tear ") + words;
    const QJsonObject plan = planFor("-d cutter " + all);
    const std::string bytes = sent("cutter", all);
    EXPECT_EQ(countOf("^CN1", bytes), plan["full_cuts"].toInt(-1)) << words;
  }
}

// The mode says it for each label, and no command besides.
TEST_F(LabelFilter, IsInTheModeThatIsPlanned) {
  const std::string words = "-o zePrintMode=Cutter";
  EXPECT_EQ(countOf("^MMC", sent("modes", words)), 12);
  EXPECT_EQ(planFor("-d modes " + words)["full_cuts"].toInt(-1), 12);
  for (const char* mode : {"Tear", "Peel", "Rewind", "Applicator"}) {
    const std::string choice = std::string("-o zePrintMode=") + mode;
    const std::string bytes = sent("modes", choice);
    EXPECT_EQ(countOf("^MMC", bytes), 0) << mode;
    EXPECT_EQ(countOf("^MM", bytes), 12) << mode;
    EXPECT_EQ(planFor("-d modes " + choice)["full_cuts"].toInt(-1), 0) << mode;
  }
}

TEST_F(LabelFilter, LeavesThePrinterInItsModeWhereThePlanSaysSo) {
  EXPECT_EQ(countOf("^MM", sent("modes", "")), 0);
  const QJsonObject plan = planFor("-d modes");
  EXPECT_TRUE(plan["full_cuts"].isNull());
  EXPECT_EQ(plan["cuts_said_by"].toString(), QStringLiteral("printer"));
}

// The mode arrives, and the interval does not, so nobody here knows how often it cuts.
TEST_F(LabelFilter, DoesNotTellThePrinterTheInterval) {
  const std::string words = "-o inPrintMode=Cut -o inCutInterval=3";
  const std::string bytes = sent("intervals", words);
  EXPECT_EQ(countOf("\x1b!p2M", bytes), 1);
  EXPECT_EQ(countOf("\x1b!n", bytes), 0);
  EXPECT_EQ(planFor("-d intervals " + words)["cuts_said_by"].toString(), QStringLiteral("printer"));
  EXPECT_EQ(countOf("\x1b!p2M", sent("intervals", "")), 0);
  EXPECT_EQ(planFor("-d intervals")["full_cuts"].toInt(-1), 0);
}

std::vector<CutMeaning> meaningsOf(const std::vector<CutOffer>& offers) {
  std::vector<CutMeaning> meanings;
  for (const CutOffer& offer : offers) meanings.push_back(offer.meaning);
  return meanings;
}

TEST_F(LabelFilter, IsOfferedWithWhatItCanDo) {
  using enum CutMeaning;
  const std::vector<CutOffer> modes = offersOf("modes");
  ASSERT_EQ(meaningsOf(modes), (std::vector{never, eachLabel, printerDecides}));
  EXPECT_EQ(countOf("^MMC", sent("modes", wordsOf(modes[1].assignment))), 12);
  const std::vector<CutOffer> intervals = offersOf("intervals");
  ASSERT_EQ(meaningsOf(intervals), (std::vector{never, printerDecides}));
  EXPECT_EQ(countOf("\x1b!p2M", sent("intervals", wordsOf(intervals[1].assignment))), 1);
  const std::vector<CutOffer> cutter = offersOf("cutter", {{"zePrintMode", "Tear"}});
  ASSERT_EQ(meaningsOf(cutter), (std::vector{never, eachLabel, printerDecides}));
  // Behind each label says more than behind each page with its copies.
  EXPECT_EQ(wordsOf(cutter[1].assignment), " -o zePrintMode=Cutter");
}

TEST_F(LabelFilter, SaysItInWords) {
  EXPECT_TRUE(program("--plan -d modes " + labels())
                  .output.starts_with("12 labels; the printer decides where to cut\n"));
  EXPECT_TRUE(program("--summary -d modes -o zePrintMode=Cutter " + labels())
                  .output.starts_with("12 labels, cut after each label: 12 pieces, "));
}

}  // namespace
}  // namespace cutline::test
