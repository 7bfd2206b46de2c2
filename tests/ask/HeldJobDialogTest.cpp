// The dialog about a job that waits: what is on the screen is what comes out, of that very job
// where its pages are labels, and in its place where they are laid out.
#include <gtest/gtest.h>

#include <QPushButton>
#include <algorithm>
#include <filesystem>

#include "cups/AskQueue.h"
#include "host/core/HeldJobInHand.h"
#include "host/dialog/HeldJobPrintServer.h"
#include "tests/ask/Desk.h"
#include "tests/dialog/StripReading.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/support/Command.h"
#include "tests/support/InkMap.h"
#include "tests/support/PngPicture.h"
#include "tests/support/PrintedJob.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr char kAskQueueName[] = "tape24_ask";
constexpr std::uint32_t kDark = 0x808080;

// What a printer's picture has of ink, as far as anybody looks: nothing of it is grey.
InkMap inkOf(const PrintedJob& job) {
  const PngPicture picture(job.picturePath());
  return {static_cast<int>(picture.width()), static_cast<int>(picture.height()), [&](int x, int y) {
            return picture.colourAt(static_cast<unsigned>(x), static_cast<unsigned>(y)) < kDark;
          }};
}

class HeldJobDialog : public testing::Test {
 protected:
  HeldJobDialog() { EXPECT_TRUE(addAskQueue({}, "tape24")); }
  ~HeldJobDialog() override {
    mDialog.reset();
    mInHand.reset();
    run("cancel -a");
  }

  // A program of ours prints two labels, and the dialog about them comes up.
  void printAndAsk(const std::string& paper, int copies) {
    outputOf("QT_QPA_PLATFORM=offscreen " + installed() + "/bin/printing_program " + kAskQueueName +
             " Shelves " + std::to_string(copies) + ' ' + paper + " One Two");
    takeLast();
    ASSERT_TRUE(
        waitUntil([&] { return strip().labelCount() == 2U * static_cast<unsigned>(copies); }));
  }
  void takeLast() {
    mLine.heldJobId = heldJobs({})->back().id;
    auto inHand = HeldJobInHand::take(mLine);
    ASSERT_TRUE(inHand) << inHand.error().message;
    mInHand = *inHand;
    ASSERT_NE(mInHand, nullptr);
    mServer = std::make_shared<HeldJobPrintServer>(
        std::make_shared<CupsPrintServer>(ServerOptions()),
        std::make_shared<CupsHeldJobServer>(ServerOptions()), *mLine.heldJob);
    mDialog = std::make_unique<DialogOnServer>(mLine, mServer);
  }
  StripView& strip() { return *mDialog->dialog().findChild<StripView*>(); }
  int held() const { return *mLine.heldJobId; }
  static PrintedJob printed(int job) {
    EXPECT_TRUE(waitUntil([&] { return askServer().printedJobs().contains(job); })) << job;
    return {askServer(), job};
  }
  static int count(const std::string& outline, char letter) {
    return static_cast<int>(std::count(outline.begin(), outline.end(), letter));
  }

  CommandLine mLine;
  std::shared_ptr<HeldJobInHand> mInHand;
  std::shared_ptr<HeldJobPrintServer> mServer;
  std::unique_ptr<DialogOnServer> mDialog;
};

TEST_F(HeldJobDialog, ShowsTheJobAsItsProgramSentIt) {
  printAndAsk("own", 3);
  EXPECT_EQ(mLine.title, "Shelves");
  EXPECT_EQ(mDialog->model().copies(), 3);
  EXPECT_EQ(mDialog->model().destination().name.printer, "tape24");
  EXPECT_EQ(mDialog->model().currentPaper().name, "W24H50");
}

TEST_F(HeldJobDialog, LetsThatVeryJobPrintAsTheStripShowsIt) {
  printAndAsk("own", 2);
  click(mDialog->box("LxHalfCut"));
  const std::string shown = StripReading(strip()).outline();
  const Choices sent = mDialog->sent();
  mDialog->print();
  EXPECT_TRUE(mServer->isSpent());
  const PrintedJob out = printed(held());
  EXPECT_EQ(count(shown, 'L'), out.number("labels")) << shown;
  EXPECT_EQ(count(shown, ':'), out.number("half-cuts")) << shown;
  for (const auto& [keyword, choice] : sent) {
    if (keyword.starts_with("Lx")) {
      EXPECT_EQ(out.options().at(keyword), choice) << keyword;
    }
  }

  // The very same, dot by dot, as if the dialog had sent what it shows.
  const std::string document = mLine.files.front();
  std::filesystem::copy_file(document, askServer().folder() + "/kept.pdf");
  const std::string said = outputOf(built("bin/cutline") +
                                    " --print -d tape24 -n 2 -o PageSize=W24H50 -o LxHalfCut=ON " +
                                    askServer().folder() + "/kept.pdf");
  const PrintedJob composed = printed(std::stoi(said.substr(said.find("tape24-") + 7)));
  EXPECT_GT(likeness(inkOf(out), inkOf(composed), 1), 0.99);
  EXPECT_EQ(out.number("labels"), composed.number("labels"));
}

TEST_F(HeldJobDialog, PrintsInPlaceOfTheJobWhatIsLaidOut) {
  printAndAsk("A4", 1);
  const std::string shown = StripReading(strip()).outline();
  mDialog->print();
  EXPECT_FALSE(askServer().hasPrinted(held()));
  EXPECT_EQ(jobState({}, held()), JobState::canceled);
  const PrintedJob out = printed(held() + 1);
  EXPECT_EQ(out.fact("title"), "Shelves");
  EXPECT_EQ(count(shown, 'L'), out.number("labels"));
}

// The job's own pages on another tape are no labels of it.
TEST_F(HeldJobDialog, PrintsInPlaceOfTheJobWhereItsPaperWasChanged) {
  printAndAsk("own", 1);
  ASSERT_TRUE(mDialog->model().setPaper("W24H100"));
  ASSERT_TRUE(waitUntil([this] { return mDialog->canPrint(); }));
  mDialog->print();
  EXPECT_EQ(jobState({}, held()), JobState::canceled);
  EXPECT_EQ(printed(held() + 1).options().at("PageSize"), "W24H100");
}

TEST_F(HeldJobDialog, NamesADamagedDocumentByItsTitle) {
  const TemporaryFolder folder;
  outputOf("lp -d " + std::string(kAskQueueName) + " -t Shelves " +
           folder.write("damaged.pdf", "%PDF-1.4\nand no more"));
  takeLast();
  EXPECT_TRUE(mDialog->willShow(QStringLiteral("the document \"Shelves\"")));
  EXPECT_FALSE(mDialog->canPrint());
}

TEST_F(HeldJobDialog, IsOneAtATime) {
  printAndAsk("own", 1);
  CommandLine second;
  second.heldJobId = held();
  const auto again = HeldJobInHand::take(second);
  ASSERT_FALSE(again);
  EXPECT_NE(again.error().message.find("open in another window"), std::string::npos);
}

TEST_F(HeldJobDialog, PrintsAnotherJobOnceTheOneThatWaitedIsOut) {
  printAndAsk("own", 1);
  ASSERT_TRUE(waitUntil([this] { return mDialog->canPrint(); }));
  click(mDialog->printButton());
  ASSERT_TRUE(mDialog->willShow(QStringLiteral("Printed")));
  printed(held());
  DialogOnServer::waitForClicks();
  mDialog->print();
  EXPECT_EQ(printed(held() + 1).number("labels"), 2);
}

TEST_F(HeldJobDialog, GivesUpOnlyWhatStillWaits) {
  printAndAsk("own", 1);
  ASSERT_TRUE(mServer->giveUp());
  EXPECT_EQ(jobState({}, held()), JobState::canceled);
}

// A program was killed between two steps: what it had begun is ended without another question.
TEST_F(HeldJobDialog, EndsWhatAProgramHadBegun) {
  printAndAsk("A4", 1);
  mDialog.reset();
  mInHand.reset();
  const HeldJob job = *heldJob({}, held());
  const std::string said = outputOf("lp -d tape24 -o job-hold-until=indefinite -o " +
                                    std::string(kInPlaceOfOption) + '=' + std::to_string(job.id) +
                                    ' ' + built("share/cutline/samples/documents/labels.pdf"));
  const int other = job.id + 1;
  ASSERT_NE(said.find(std::to_string(other)), std::string::npos) << said;
  ASSERT_TRUE(CupsHeldJobServer({}).mark(job.id, kPrintedByOption, std::to_string(other)));
  const auto inHand = HeldJobInHand::take(mLine);
  ASSERT_TRUE(inHand) << inHand.error().message;
  EXPECT_EQ(*inHand, nullptr) << "there is nothing left to ask";
  EXPECT_EQ(printed(other).number("labels"), 12);
  EXPECT_EQ(jobState({}, job.id), JobState::canceled);
}

}  // namespace

}  // namespace cutline::test
