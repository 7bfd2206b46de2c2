#include <gtest/gtest.h>

#include <deque>

#include "host/core/JobEnd.h"

namespace cutline {
namespace {

using Answers = std::deque<Result<JobStatus>>;

// A job whose states are known beforehand; the last one stays.
struct Job {
  explicit Job(Answers answers) : answers(std::move(answers)) {}

  Result<Done> wait() {
    return waitForEnd({"tape-7",
                       [this] {
                         const Result<JobStatus> answer = answers.front();
                         if (answers.size() > 1) answers.pop_front();
                         return answer;
                       },
                       [this] { ++pauses; },
                       [this](const std::string& text) { notes.push_back(text); },
                       [this] { return trouble; }});
  }
  std::string error() {
    const Result<Done> end = wait();
    return end ? "" : end.error().message;
  }

  Answers answers;
  int pauses = 0;
  std::string trouble;
  std::vector<std::string> notes;
};

JobStatus status(JobState state, std::optional<int> pages = {}, const std::string& message = "",
                 const std::vector<std::string>& reasons = {}) {
  return {state, message, reasons, pages};
}

TEST(JobEnd, AJobThatPrintedIsDone) {
  Job job({status(JobState::pending), status(JobState::processing, 0),
           status(JobState::completed, 12)});
  EXPECT_EQ(job.error(), "");
  EXPECT_EQ(job.pauses, 2);
  EXPECT_TRUE(job.notes.empty());
}

TEST(JobEnd, WhatThePrinterNeedsIsToldOnce) {
  Job job({status(JobState::processing, 0), status(JobState::processing, 0),
           status(JobState::completed, 1)});
  job.trouble = "Not ready - cover is open";
  EXPECT_EQ(job.error(), "");
  EXPECT_EQ(job.notes, std::vector<std::string>{"the job tape-7: Not ready - cover is open"});
}

TEST(JobEnd, AJobWhosePagesNobodyCountsIsDone) {
  EXPECT_EQ(Job({status(JobState::completed)}).error(), "");
}

TEST(JobEnd, NothingCameOutOfAJobThatFailed) {
  EXPECT_EQ(Job({status(JobState::canceled, 0)}).error(), "the job tape-7 was cancelled");
  EXPECT_EQ(Job({status(JobState::aborted, 0, "Filter failed")}).error(),
            "the job tape-7 was given up by the printer (Filter failed)");
  EXPECT_EQ(Job({status(JobState::completed, 0)}).error(),
            "the job tape-7 ended without a printed page");
}

TEST(JobEnd, TellsOnceWhyAJobWaits) {
  const JobStatus paused = status(JobState::pending, 0, "", {"printer-stopped"});
  Job job({paused, paused, status(JobState::held), paused, status(JobState::completed, 1)});
  EXPECT_EQ(job.error(), "");
  EXPECT_EQ(job.notes,
            (std::vector<std::string>{"the job tape-7: Waiting - the printer is paused",
                                      "the job tape-7: Held",
                                      "the job tape-7: Waiting - the printer is paused"}));
}

TEST(JobEnd, AServerMayMissAnAnswerButNotAll) {
  const Error lost{"nobody answers"};
  Job back({lost, lost, status(JobState::completed, 1)});
  EXPECT_EQ(back.error(), "");
  const std::vector<std::string> note{"the job tape-7: its state is not known: nobody answers"};
  EXPECT_EQ(back.notes, note);
  Job gone({lost});
  EXPECT_EQ(gone.error(), "the job tape-7 was sent, and how it ends is not known: nobody answers");
  EXPECT_EQ(gone.pauses, 9);
  EXPECT_EQ(gone.notes, note);
}

}  // namespace
}  // namespace cutline
