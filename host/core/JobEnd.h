// How a job that was sent has ended, for a script that waits for it.
#pragma once

#include <functional>
#include <string>

#include "base/Result.h"
#include "cups/JobStatus.h"

namespace cutline {

struct JobWatch {
  std::string job;                               // as people name it
  std::function<Result<JobStatus>()> ask;        // the job's state
  std::function<void()> pause;                   // between two questions
  std::function<void(const std::string&)> note;  // why the job waits; each reason once
  // What the printer needs from somebody, in words; empty for nothing. May be null.
  std::function<std::string()> trouble = {};
};

// Asks until the job has ended. An error when nothing came out: it was cancelled or given up, it
// ended without a page, or the server no longer tells.
Result<Done> waitForEnd(const JobWatch& watch);

}  // namespace cutline
