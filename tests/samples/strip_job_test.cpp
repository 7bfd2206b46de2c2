#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "samples/printer/StripJob.h"
#include "tests/support/Facts.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace printer;

class StripJobTest : public ::testing::Test {
 protected:
  bool read(StripJob& job, const std::string& commands) {
    writeFile(mFolder / "commands", commands);
    const int in = ::open((mFolder / "commands").c_str(), O_RDONLY);
    CommandReader reader(in);
    const bool whole = job.read(reader, mCancelled);
    ::close(in);
    return whole;
  }

  TemporaryFolder mFolder;
  volatile int mCancelled = 0;
};

TEST_F(StripJobTest, ListsWhatItWasGivenAndTold) {
  StripJob job({{"job-id", "3"}}, 0);
  ASSERT_TRUE(read(
      job,
      "cutline-printer 1\nset LxHalfCut ON\nresolution 180 180\nlabel 8 2\nxycut full\nend\n"));
  ASSERT_TRUE(job.store(mFolder / "job", mCancelled));
  EXPECT_TRUE(contentsOf(mFolder / "job.txt").starts_with("job-id=3\nLxHalfCut=ON\nlabels=1\n"));
  EXPECT_EQ(factsOf(mFolder / "job.txt")["full-cuts"], "1");
  EXPECT_GT(PngPicture(mFolder / "job.png").width(), 0U);
}

// A leader that is cut off is no piece of the job's, and two marks that meet are one.
TEST_F(StripJobTest, CountsPiecesWithLabelsAndCutMarks) {
  const std::string marked = "label 8 1\n\x81";
  StripJob job({}, 0);
  ASSERT_TRUE(read(job, "cutline-printer 1\nfeed 9\ncut full\n" + marked + "cut half\n" + marked +
                            "cut full\nlabel 8 1\nxfeed 4\ncut full\nend\n"));
  ASSERT_TRUE(job.store(mFolder / "job", mCancelled));
  Facts facts = factsOf(mFolder / "job.txt");
  EXPECT_EQ(facts["full-cuts"], "3");
  EXPECT_EQ(facts["pieces"], "2");
  EXPECT_EQ(facts["cut-marks"], "3");
}

TEST_F(StripJobTest, RefusesAJobWithoutLabels) {
  StripJob job({}, 0);
  EXPECT_FALSE(read(job, "cutline-printer 1\nfeed 9\nend\n"));
  EXPECT_EQ(job.problem(), "The job has no labels.");
}

TEST_F(StripJobTest, RefusesToStoreWhatWasCancelledMeanwhile) {
  StripJob job({}, 0);
  ASSERT_TRUE(read(job, "cutline-printer 1\nlabel 8 1\nxend\n"));
  mCancelled = 1;
  EXPECT_FALSE(job.store(mFolder / "job", mCancelled));
  EXPECT_EQ(mFolder.names(), std::vector<std::string>{"commands"});
}

TEST_F(StripJobTest, StopsReadingWhenItIsCancelled) {
  mCancelled = 1;
  StripJob job({}, 0);
  EXPECT_FALSE(read(job, "cutline-printer 1\nlabel 8 1\nxend\n"));
  EXPECT_EQ(job.problem(), "The job was cancelled.");
}

// The picture is there already when the list can't be.
TEST_F(StripJobTest, TakesThePictureBackWhenTheListFails) {
  StripJob job({}, 0);
  ASSERT_TRUE(read(job, "cutline-printer 1\nlabel 8 1\nxend\n"));
  ASSERT_EQ(std::system(("mkdir " + mFolder / "job.txt").c_str()), 0);
  EXPECT_FALSE(job.store(mFolder / "job", mCancelled));
  EXPECT_EQ(mFolder.names(), (std::vector<std::string>{"commands", "job.txt"}));
}

TEST_F(StripJobTest, DrawsALongJobUpToTheEndOfAPicture) {
  std::string commands = "cutline-printer 1\nresolution 180 180\n";
  for (int at = 0; at < 12; ++at) commands += "label 1 100000\n" + std::string(100'000, '\0');
  StripJob job({}, 0);
  ASSERT_TRUE(read(job, commands + "end\n")) << job.problem();
  ASSERT_TRUE(job.store(mFolder / "job", mCancelled));
  Facts facts = factsOf(mFolder / "job.txt");
  EXPECT_EQ(facts["labels"], "12");
  EXPECT_EQ(facts["labels-drawn"], "9");
}

}  // namespace
}  // namespace cutline::test
