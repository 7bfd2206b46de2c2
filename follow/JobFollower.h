// What there is to tell of a job that goes on without a window.
#pragma once

#include <optional>
#include <string>

#include "base/Result.h"
#include "base/Sentence.h"
#include "cups/JobStatus.h"

namespace cutline {

struct JobNews {
  Sentence what;  // in a few words
  Sentence why;
};

// Looks at the job's states one after the other.
class JobFollower {
 public:
  // `title` is the job's, for people.
  explicit JobFollower(std::string title) : mTitle(std::move(title)) {}

  // What is to be told after this answer of the server; each thing once, and a standstill only when
  // it lasts. `trouble` is what the printer needs from somebody; it says nothing where it needs
  // nothing.
  std::optional<JobNews> take(const Result<JobStatus>& status, const Sentence& trouble);
  // Nothing more will come: the job has ended, or the server tells no more.
  bool isOver() const noexcept { return mIsOver; }

 private:
  std::optional<JobNews> takeEnd(const JobStatus& status);
  std::optional<JobNews> takeStandstill(const Sentence& reason);

  std::string mTitle;
  bool mIsOver = false;
  int mMissed = 0;      // answers in a row
  int mStandstill = 0;  // looks in a row
  std::string mTold;    // the last standstill that was told
};

}  // namespace cutline
