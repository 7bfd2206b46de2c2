// A job that goes on when the dialog is closed, and the program that follows it then.
#pragma once

#include <mutex>
#include <optional>
#include <string>

#include "host/dialog/ForwardingPrintServer.h"

namespace cutline {

struct LeftJob {
  std::string printer;
  int id = 0;
  std::string title;
};

// Remembers the last job that was sent, until it is over.
class JobLeftBehind final : public ForwardingPrintServer {
 public:
  using ForwardingPrintServer::ForwardingPrintServer;

  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override;
  Result<JobStatus> status(const DestinationName& destination, int jobId) override;
  // The job that the server has and that is not over, as far as anybody asked.
  std::optional<LeftJob> job() const;

 private:
  mutable std::mutex mMutex;
  std::optional<LeftJob> mJob;
};

// Starts the program in `helperDirectory` that tells the desktop when the job fails; it lives as
// long as the job. Where it is missing nobody tells.
void followJob(const std::string& helperDirectory, const LeftJob& job,
               const std::optional<std::string>& server);

}  // namespace cutline
