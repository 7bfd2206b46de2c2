#include "host/dialog/JobLeftBehind.h"

#include <QProcess>

#include "qt/QtText.h"

namespace cutline {

Result<int> JobLeftBehind::submit(const PrintRequest& request, const SpoolProgress& progress) {
  Result<int> job = ForwardingPrintServer::submit(request, progress);
  const std::lock_guard lock(mMutex);
  if (job) mJob = LeftJob{request.destination.printer, *job, request.title};
  return job;
}

Result<JobStatus> JobLeftBehind::status(const DestinationName& destination, int jobId) {
  Result<JobStatus> status = ForwardingPrintServer::status(destination, jobId);
  const std::lock_guard lock(mMutex);
  if (mJob && mJob->id == jobId && status && status->isFinal()) mJob.reset();
  return status;
}

std::optional<LeftJob> JobLeftBehind::job() const {
  const std::lock_guard lock(mMutex);
  return mJob;
}

void followJob(const std::string& helperDirectory, const LeftJob& job,
               const std::optional<std::string>& server) {
  QStringList words{toQString(job.printer), QString::number(job.id), toQString(job.title)};
  if (server) words << toQString(*server);
  QProcess::startDetached(toQString(helperDirectory + "/cutline-follow"), words);
}

}  // namespace cutline
