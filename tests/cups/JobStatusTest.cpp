#include <gtest/gtest.h>

#include "cups/JobStatus.h"

namespace cutline {
namespace {

TEST(JobStatus, EveryStateHasWordsAndAnEnd) {
  struct Row {
    JobState state;
    const char* text;
    bool isFinal;
  };
  for (const Row& row :
       {Row{JobState::pending, "Waiting", false}, Row{JobState::held, "Held", false},
        Row{JobState::processing, "Printing", false}, Row{JobState::stopped, "Stopped", false},
        Row{JobState::canceled, "Cancelled", true}, Row{JobState::aborted, "Failed", true},
        Row{JobState::completed, "Printed", true}}) {
    const JobStatus status{row.state, "", {}};
    EXPECT_EQ(status.text().english(), row.text);
    EXPECT_EQ(status.isFinal(), row.isFinal) << row.text;
  }
}

TEST(JobStatus, ReasonsThatTellMoreFollowTheState) {
  EXPECT_EQ((JobStatus{JobState::pending, "", {"printer-stopped"}}).text().english(),
            "Waiting - the printer is paused");
  EXPECT_EQ((JobStatus{JobState::completed, "", {"job-completed-successfully"}}).text().english(),
            "Printed");
}

}  // namespace
}  // namespace cutline
