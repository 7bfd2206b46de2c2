// The print server of a dialog about a job that waits on an ask queue: its Print lets that very job
// print where its document is what is shown, and else prints what is shown in its place.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>

#include "cups/HeldJobs.h"
#include "host/core/HeldJobPrinting.h"
#include "host/dialog/Composing.h"
#include "host/dialog/ForwardingPrintServer.h"

namespace cutline {

// Whether the composed pages are the document's own, all of them in their order, and nothing was
// done to them.
bool areOwnPages(const CompositionRequest& request, const CompositionReport& report);

class HeldJobPrintServer final : public ForwardingPrintServer {
 public:
  HeldJobPrintServer(std::shared_ptr<PrintServer> server, std::shared_ptr<HeldJobServer> jobs,
                     HeldJob job);

  // Composes as these do, and remembers of what it composed last whether it is the job's own pages.
  // The answer may outlive this.
  DocumentTools watched(DocumentTools tools) const;

  // The job has been let print, or something else in its place: it waits no longer.
  bool isSpent() const noexcept { return mIsSpent; }
  // Cancels the job where it still waits.
  Result<Done> giveUp();

  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override;

 private:
  // What was composed last.
  struct Composed {
    std::mutex mutex;
    std::string path;
    bool isOwn = false;
  };
  bool isJobItself(const PrintRequest& request) const;
  Result<int> let(const PrintRequest& request, const SpoolProgress& progress);

  std::shared_ptr<HeldJobServer> mJobs;
  HeldJob mJob;
  std::shared_ptr<Composed> mComposed = std::make_shared<Composed>();
  std::atomic<bool> mIsSpent = false;
};

}  // namespace cutline
