#include <gtest/gtest.h>

#include "follow/JobFollower.h"

namespace cutline {
namespace {

JobStatus in(JobState state, std::vector<std::string> reasons = {}) {
  JobStatus status;
  status.state = state;
  status.reasons = std::move(reasons);
  return status;
}

// What is told of these states, one after the other; empty for nothing.
std::vector<std::string> told(JobFollower& follower, const std::vector<JobStatus>& states,
                              const std::string& trouble = {}) {
  std::vector<std::string> all;
  for (const JobStatus& status : states) {
    const auto news = follower.take(status, Sentence(trouble));
    all.push_back(news ? news->what.english() + ": " + news->why.english() : "");
  }
  return all;
}

TEST(JobFollower, SaysNothingOfAJobThatIsPrinted) {
  JobFollower follower("Shelves");
  EXPECT_EQ(told(follower, {in(JobState::pending), in(JobState::processing)}),
            (std::vector<std::string>{"", ""}));
  EXPECT_FALSE(follower.isOver());
  EXPECT_EQ(told(follower, {in(JobState::completed)}), std::vector<std::string>{""});
  EXPECT_TRUE(follower.isOver());
}

TEST(JobFollower, TellsThatAJobFailed) {
  JobFollower follower("Shelves");
  JobStatus failed = in(JobState::aborted, {"document-format-error"});
  EXPECT_EQ(told(follower, {failed}),
            std::vector<std::string>{
                "\"Shelves\" was not printed: Failed - the document cannot be read"});
  EXPECT_TRUE(follower.isOver());
  failed.message = "The tape is torn.";
  EXPECT_EQ(told(follower, {failed}),
            std::vector<std::string>{"\"Shelves\" was not printed: The tape is torn."});
}

TEST(JobFollower, TellsOfAJobThatSomebodyElseCancelled) {
  JobFollower follower("Shelves");
  EXPECT_EQ(told(follower, {in(JobState::canceled, {"job-canceled-by-user"})}),
            std::vector<std::string>{""});
  EXPECT_TRUE(follower.isOver());
  EXPECT_EQ(told(follower, {in(JobState::canceled, {"job-canceled-by-operator"})}),
            std::vector<std::string>{"\"Shelves\" was not printed: Cancelled - by the operator"});
}

TEST(JobFollower, TellsOnceOfAStandstillThatLasts) {
  JobFollower follower("Shelves");
  const JobStatus paused = in(JobState::pending, {"printer-stopped"});
  const std::string words =
      "\"Shelves\" is still waiting to be printed: Waiting - the printer is paused";
  EXPECT_EQ(told(follower, {paused, paused, paused, paused, paused}),
            (std::vector<std::string>{"", "", words, "", ""}));
  EXPECT_FALSE(follower.isOver());
}

TEST(JobFollower, TakesAMomentsStandstillForNone) {
  JobFollower follower("Shelves");
  const JobStatus paused = in(JobState::pending, {"printer-stopped"});
  const JobStatus printing = in(JobState::processing);
  EXPECT_EQ(told(follower, {paused, paused, printing, paused, paused, printing}),
            std::vector<std::string>(6));
}

TEST(JobFollower, TellsWhatThePrinterNeeds) {
  JobFollower follower("Shelves");
  const JobStatus printing = in(JobState::processing);
  EXPECT_EQ(told(follower, {printing, printing, printing}, "Not ready - cover is open").back(),
            "\"Shelves\" is still waiting to be printed: Not ready - cover is open");
  EXPECT_NE(told(follower, {printing}, "Not ready - label or tape is jammed").back(), "");
}

TEST(JobFollower, EndsWhereTheServerTellsNoMore) {
  JobFollower follower("Shelves");
  int answers = 0;
  for (; !follower.isOver() && answers < 1000; ++answers)
    EXPECT_FALSE(follower.take(Error{Sentence("gone")}, Sentence()));
  EXPECT_GT(answers, 5) << "a server that is started anew is away for a moment";
  EXPECT_LT(answers, 1000);
}

}  // namespace
}  // namespace cutline
