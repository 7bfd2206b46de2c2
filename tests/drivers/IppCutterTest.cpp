// What an IPP printer with a cutter is told, by way of the queue that the print system makes for
// it.
#include <QJsonValue>
#include <memory>

#include "tests/drivers/OtherDrivers.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/qt/IppPrinter.h"

namespace cutline::test {
namespace {

constexpr int kTrimAfterPages = 60;

class IppCutter : public OtherDriversTest {
 protected:
  static void SetUpTestSuite() {
    OtherDriversTest::SetUpTestSuite();
    printer = std::make_unique<IppPrinter>(kTrimAfterPages);
    addQueue("ippcutter", "-v " + printer->uri() + " -m everywhere");
  }
  static void TearDownTestSuite() {
    OtherDriversTest::TearDownTestSuite();
    printer.reset();
  }

  // What came of the one job with these words.
  static IppJob printed(const std::string& words) {
    printer->newJobs();
    print("-d ippcutter " + words);
    const std::vector<IppJob> jobs = printer->newJobs();
    EXPECT_EQ(jobs.size(), 1U) << words;
    return jobs.empty() ? IppJob() : jobs.front();
  }

  static inline std::unique_ptr<IppPrinter> printer;
};

struct Row {
  const char* words;
  const char* finishings;
  int fullCuts;  // -1: nobody here knows
};
constexpr Row kRows[] = {
    {"", "trim-after-pages", 12},  // as the printer does by itself
    {"-o CutMedia=None", "none", 0},
    {"-o CutMedia=Auto", "trim", -1},
    {"-o CutMedia=EndOfPage", "trim-after-pages", 12},
    {"-o CutMedia=EndOfDoc", "trim-after-documents", 1},
    {"-o CutMedia=EndOfSet", "trim-after-copies", 1},
    {"-o CutMedia=EndOfJob", "trim-after-job", 1},
    {"-o finishings=63", "trim-after-job", 1},
    {"-P 2-4 -o CutMedia=EndOfPage", "trim-after-pages", 3},
};

TEST_F(IppCutter, IsToldWhatThePlanSays) {
  for (const Row& row : kRows) {
    const QJsonObject plan = planFor(std::string("-d ippcutter ") + row.words);
    const IppJob job = printed(row.words);
    EXPECT_EQ(job.finishings, row.finishings) << row.words;
    EXPECT_EQ(static_cast<int>(job.pages), plan["labels"].toInt()) << row.words;
    EXPECT_EQ(job.copies, "") << row.words;
    EXPECT_EQ(plan["full_cuts"].toInt(-1), row.fullCuts) << row.words;
    EXPECT_EQ(plan["full_cuts"].isNull(), row.fullCuts < 0) << row.words;
  }
}

struct Meant {
  CutMeaning meaning;
  const char* finishings;
  int fullCuts;  // -1: nobody here knows
};
constexpr Meant kMeant[] = {
    {CutMeaning::never, "none", 0},
    {CutMeaning::eachLabel, "trim-after-pages", 12},
    {CutMeaning::atEnd, "trim-after-job", 1},
    {CutMeaning::printerDecides, "trim", -1},
};

TEST_F(IppCutter, IsToldWhatIsMeant) {
  // From a choice that is none of them, so that each has an assignment.
  const std::vector<CutOffer> offers = offersOf("ippcutter", {{"CutMedia", "EndOfDoc"}});
  ASSERT_EQ(offers.size(), std::size(kMeant));
  for (std::size_t at = 0; at < offers.size(); ++at) {
    EXPECT_EQ(offers[at].meaning, kMeant[at].meaning) << at;
    // What is in force has none.
    const OptionList assignment = offers[at].assignment.empty()
                                      ? OptionList{{"CutMedia", "EndOfJob"}}
                                      : offers[at].assignment;
    const std::string words = wordsOf(assignment);
    EXPECT_EQ(printed(words).finishings, kMeant[at].finishings) << words;
    EXPECT_EQ(planFor("-d ippcutter" + words)["full_cuts"].toInt(-1), kMeant[at].fullCuts) << words;
  }
}

// The print system sends the copies as so many pages, so the printer has no copy to cut behind.
TEST_F(IppCutter, KnowsOfNoCopies) {
  for (const char* order : {"-o collate=true", "-o collate=false"}) {
    const std::string words = std::string("-n 3 -o CutMedia=EndOfSet ") + order;
    const QJsonObject plan = planFor("-d ippcutter " + words);
    const IppJob job = printed(words);
    EXPECT_EQ(job.pages, 36U) << words;
    EXPECT_EQ(job.copies, "") << words;
    EXPECT_EQ(plan["labels"].toInt(), 36) << words;
    EXPECT_EQ(plan["pieces"].toInt(), 1) << words;
  }
}

TEST_F(IppCutter, PrintsOnTheLabelsThatAreLoaded) {
  const std::string options = program("--options -d ippcutter").output;
  EXPECT_NE(options.find("PageSize=62x29mm"), std::string::npos) << options;
  EXPECT_NE(printed("").mediaCol.find("x-dimension=6200 y-dimension=2900"), std::string::npos);
  EXPECT_NE(printed("-o PageSize=24x50mm.Borderless").mediaCol.find("x-dimension=2400"),
            std::string::npos);
}

TEST_F(IppCutter, KeepsWhatIsSavedForTheQueue) {
  outputOf(labelServer().environment() + "lpoptions -p ippcutter -o CutMedia=None");
  EXPECT_EQ(printed("").finishings, "none");
  EXPECT_EQ(planFor("-d ippcutter")["full_cuts"].toInt(-1), 0);
  outputOf(labelServer().environment() + "lpoptions -x ippcutter");
  EXPECT_EQ(printed("").finishings, "trim-after-pages");
}

TEST_F(IppCutter, IsSummedUpAndListsItsChoices) {
  EXPECT_EQ(program("--summary -d ippcutter " + labels()).output,
            "12 labels, cut after each label: 12 pieces, length not known\n");
  EXPECT_NE(program("--choices -d ippcutter").output.find("* EndOfPage"), std::string::npos);
  EXPECT_TRUE(program("--options -d ippcutter").output.starts_with("CutMedia=EndOfPage\n"));
}

}  // namespace
}  // namespace cutline::test
