// How a job that waits is printed: once, whatever ends the program on the way.
#pragma once

#include <optional>
#include <vector>

#include "base/Result.h"
#include "cups/HeldJobs.h"
#include "cups/JobStatus.h"
#include "cups/PrintJob.h"

namespace cutline {

// The steps that the server does, each whole or not at all.
class HeldJobServer {
 public:
  HeldJobServer() = default;
  HeldJobServer(const HeldJobServer&) = delete;
  HeldJobServer& operator=(const HeldJobServer&) = delete;
  virtual ~HeldJobServer();

  virtual Result<Done> setOptions(int job, const OptionList& options) = 0;
  virtual Result<Done> mark(int job, const std::string& name, const std::string& value) = 0;
  virtual Result<Done> move(int job, const std::string& printer) = 0;
  virtual Result<Done> release(int job) = 0;
  virtual Result<Done> cancel(int job) = 0;
  virtual Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) = 0;
  // Nothing where the server does not tell, or has forgotten the job.
  virtual std::optional<JobState> state(int job) = 0;
  virtual Result<std::vector<int>> inPlaceOf(int job) = 0;
};

// The server that the options name.
class CupsHeldJobServer final : public HeldJobServer {
 public:
  explicit CupsHeldJobServer(ServerOptions options) : mOptions(std::move(options)) {}

  Result<Done> setOptions(int job, const OptionList& options) override;
  Result<Done> mark(int job, const std::string& name, const std::string& value) override;
  Result<Done> move(int job, const std::string& printer) override;
  Result<Done> release(int job) override;
  Result<Done> cancel(int job) override;
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override;
  std::optional<JobState> state(int job) override;
  Result<std::vector<int>> inPlaceOf(int job) override;

 private:
  ServerOptions mOptions;
};

// Prints the very document of the job with these options: puts them on it, moves it to its printer,
// releases it. It waits until the last step.
Result<Done> printHeldJob(HeldJobServer& server, const HeldJob& job, const OptionList& options);

// Prints another document in its place. The new job waits until it is whole and the waiting one is
// marked with it; from then on that one is not asked about again. The new job's number.
Result<int> printInPlace(HeldJobServer& server, const HeldJob& job, const PrintRequest& request,
                         const SpoolProgress& progress);

// What is left to do of a job where a program ended on the way: a new job that was marked is let
// print, others that were made in its place are taken back. True where nothing is left to ask.
Result<bool> settleHeldJob(HeldJobServer& server, const HeldJob& job);

}  // namespace cutline
