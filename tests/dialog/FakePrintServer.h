// A print server that answers at once, or only when it is let, and records what it was asked.
#pragma once

#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "host/dialog/PrintServer.h"

namespace cutline {

inline JobStatus jobStatus(JobState state, std::string message = {}) {
  JobStatus status;
  status.state = state;
  status.message = std::move(message);
  return status;
}

class FakePrintServer final : public PrintServer {
 public:
  // A printer on this PPD; every call for it opens the file anew.
  void addPrinter(const std::string& name, const std::string& ppdPath);
  void addInstance(const std::string& printer, const std::string& instance,
                   const OptionList& options);
  void setState(const std::string& name, PrinterState state, bool acceptsJobs);
  // At that time, with that PPD.
  void setUpAnew(const std::string& name, const std::string& ppdPath, long time);
  // Calls of open for this printer wait until release.
  void holdOpening(const std::string& name);
  void releaseOpening(const std::string& name);
  // What status answers, one after another; the last one for ever.
  void setStatuses(std::deque<JobStatus> statuses);
  void refuseSubmission(const std::string& reason);
  // The next submission stops half way until its progress is told to give up.
  void stallSubmission();
  // The next submission stops when so many bytes are sent, of a hundred, until the server is no
  // longer silent. What was given up by then is no job, but for the last byte.
  void silenceSubmissionAfter(int bytes);
  // Nobody answers, or not before it is back.
  void setGone(bool isGone, bool isSilent = false);
  void addDestination(const Destination& destination);
  void removePrinter(const std::string& name);
  void refusePresets(const std::string& reason);
  // Cancelling is refused, and finds the job in this state.
  void refuseCancelling(const std::string& reason, JobState state);

  Destination destination(const std::string& name);
  std::vector<PrintRequest> submissions();
  // What the files of the submissions held.
  std::vector<std::string> contents();
  std::vector<DestinationName> savedInstances();
  std::vector<DestinationName> removedInstances();
  OptionList savedOptions(const DestinationName& name);
  int cancellations();

  Result<std::vector<Destination>> destinations() override;
  bool answers() override;
  Result<Destination> find(const DestinationName& name) override;
  Result<PrinterChoice> open(const Destination& destination) override;
  Result<Done> saveInstance(const DestinationName& name, const OptionList& options) override;
  Result<Done> removeInstance(const DestinationName& name) override;
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override;
  Result<JobStatus> status(const DestinationName& destination, int jobId) override;
  Result<Done> cancel(const DestinationName& destination, int jobId) override;

 private:
  void waitWhileSilent(std::unique_lock<std::mutex>& lock);
  Result<int> submitSilently(std::unique_lock<std::mutex>& lock, const SpoolProgress& progress);

  std::mutex mMutex;
  std::condition_variable mReleased;
  std::vector<Destination> mDestinations;
  std::map<std::string, std::string> mPpdPaths;
  std::map<std::string, bool> mIsHeld;
  std::deque<JobStatus> mStatuses{jobStatus(JobState::completed)};
  std::optional<std::string> mRefusal;
  std::optional<std::string> mPresetRefusal;
  std::optional<std::string> mCancelRefusal;
  JobState mStateAtRefusal = JobState::completed;
  bool mIsGone = false;
  bool mIsSilent = false;
  bool mIsStalling = false;
  std::optional<int> mBytesUntilSilence;
  bool mIsCancelled = false;
  std::vector<PrintRequest> mSubmissions;
  std::vector<std::string> mContents;
  std::vector<std::pair<DestinationName, OptionList>> mSaved;
  std::vector<DestinationName> mRemoved;
  int mCancellations = 0;
};

}  // namespace cutline
