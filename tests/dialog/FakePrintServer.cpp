#include "tests/dialog/FakePrintServer.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>

namespace cutline {

namespace {

constexpr int kJobId = 17;

}  // namespace

// A printer that is there already is set up anew.
void FakePrintServer::addPrinter(const std::string& name, const std::string& ppdPath) {
  mPpdPaths[name] = ppdPath;
  Destination destination;
  destination.name.printer = name;
  if (std::ranges::find(mDestinations, destination.name, &Destination::name) != mDestinations.end())
    return;
  destination.state = PrinterState::idle;
  mDestinations.push_back(destination);
}

void FakePrintServer::addInstance(const std::string& printer, const std::string& instance,
                                  const OptionList& options) {
  Destination destination;
  destination.name = {printer, instance};
  destination.state = PrinterState::idle;
  destination.savedOptions = options;
  mDestinations.push_back(destination);
}

void FakePrintServer::setState(const std::string& name, PrinterState state, bool acceptsJobs) {
  const std::scoped_lock lock(mMutex);
  for (Destination& destination : mDestinations) {
    if (destination.name.printer != name) continue;
    destination.state = state;
    destination.acceptsJobs = acceptsJobs;
  }
}

void FakePrintServer::setUpAnew(const std::string& name, const std::string& ppdPath, long time) {
  const std::scoped_lock lock(mMutex);
  for (Destination& destination : mDestinations)
    if (destination.name.printer == name) destination.setUpSince = time;
  mPpdPaths[name] = ppdPath;
}

void FakePrintServer::holdOpening(const std::string& name) {
  const std::scoped_lock lock(mMutex);
  mIsHeld[name] = true;
}

void FakePrintServer::releaseOpening(const std::string& name) {
  const std::scoped_lock lock(mMutex);
  mIsHeld[name] = false;
  mReleased.notify_all();
}

void FakePrintServer::setStatuses(std::deque<JobStatus> statuses) {
  const std::scoped_lock lock(mMutex);
  mStatuses = std::move(statuses);
}

void FakePrintServer::refuseSubmission(const std::string& reason) {
  const std::scoped_lock lock(mMutex);
  mRefusal = reason;
}

void FakePrintServer::stallSubmission() {
  const std::scoped_lock lock(mMutex);
  mIsStalling = true;
}

void FakePrintServer::silenceSubmissionAfter(int bytes) {
  const std::scoped_lock lock(mMutex);
  mBytesUntilSilence = bytes;
}

void FakePrintServer::refusePresets(const std::string& reason) {
  const std::scoped_lock lock(mMutex);
  mPresetRefusal = reason;
}

void FakePrintServer::refuseCancelling(const std::string& reason, JobState state) {
  const std::scoped_lock lock(mMutex);
  mCancelRefusal = reason;
  mStateAtRefusal = state;
}

Destination FakePrintServer::destination(const std::string& name) {
  return *find(DestinationName::parse(name));
}

std::vector<PrintRequest> FakePrintServer::submissions() {
  const std::scoped_lock lock(mMutex);
  return mSubmissions;
}

std::vector<std::string> FakePrintServer::contents() {
  const std::scoped_lock lock(mMutex);
  return mContents;
}

std::vector<DestinationName> FakePrintServer::savedInstances() {
  const std::scoped_lock lock(mMutex);
  std::vector<DestinationName> names;
  for (const auto& [name, options] : mSaved) names.push_back(name);
  return names;
}

std::vector<DestinationName> FakePrintServer::removedInstances() {
  const std::scoped_lock lock(mMutex);
  return mRemoved;
}

OptionList FakePrintServer::savedOptions(const DestinationName& name) {
  const std::scoped_lock lock(mMutex);
  const auto found = std::find_if(mSaved.begin(), mSaved.end(),
                                  [&](const auto& each) { return each.first == name; });
  return found == mSaved.end() ? OptionList() : found->second;
}

int FakePrintServer::cancellations() {
  const std::scoped_lock lock(mMutex);
  return mCancellations;
}

void FakePrintServer::setGone(bool isGone, bool isSilent) {
  const std::scoped_lock lock(mMutex);
  mIsGone = isGone;
  mIsSilent = isSilent;
  mReleased.notify_all();
}

void FakePrintServer::addDestination(const Destination& destination) {
  const std::scoped_lock lock(mMutex);
  mDestinations.push_back(destination);
}

void FakePrintServer::removePrinter(const std::string& name) {
  const std::scoped_lock lock(mMutex);
  std::erase_if(mDestinations, [&](const auto& each) { return each.name.printer == name; });
}

bool FakePrintServer::answers() {
  const std::scoped_lock lock(mMutex);
  return !mIsGone;
}

Result<std::vector<Destination>> FakePrintServer::destinations() {
  const std::scoped_lock lock(mMutex);
  if (mIsGone) return Error{"no print server answers"};
  return mDestinations;
}

void FakePrintServer::waitWhileSilent(std::unique_lock<std::mutex>& lock) {
  mReleased.wait(lock, [this] { return !mIsSilent; });
}

Result<Destination> FakePrintServer::find(const DestinationName& name) {
  std::unique_lock lock(mMutex);
  waitWhileSilent(lock);
  if (mIsGone) return Error{"no print server answers"};
  const auto found =
      std::find_if(mDestinations.begin(), mDestinations.end(),
                   [&](const Destination& destination) { return destination.name == name; });
  if (found == mDestinations.end()) return Error{"unknown printer " + name.text()};
  return *found;
}

Result<PrinterChoice> FakePrintServer::open(const Destination& destination) {
  const std::string& name = destination.name.printer;
  std::unique_lock lock(mMutex);
  mReleased.wait(lock, [&] { return !mIsHeld[name]; });
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(mPpdPaths[name]);
  if (!ppd) return ppd.error();
  return PrinterChoice{destination, *ppd};
}

Result<Done> FakePrintServer::saveInstance(const DestinationName& name, const OptionList& options) {
  const std::scoped_lock lock(mMutex);
  if (mPresetRefusal) return Error{*mPresetRefusal};
  mSaved.emplace_back(name, options);
  return Done{};
}

Result<Done> FakePrintServer::removeInstance(const DestinationName& name) {
  const std::scoped_lock lock(mMutex);
  mRemoved.push_back(name);
  return Done{};
}

Result<int> FakePrintServer::submitSilently(std::unique_lock<std::mutex>& lock,
                                            const SpoolProgress& progress) {
  constexpr int kSize = 100;
  const int bytes = *mBytesUntilSilence;
  mBytesUntilSilence.reset();
  mIsSilent = true;
  lock.unlock();
  progress(static_cast<std::uint64_t>(bytes), kSize);
  lock.lock();
  waitWhileSilent(lock);
  if (bytes + 1 < kSize) return Error{"given up"};
  return kJobId;
}

Result<int> FakePrintServer::submit(const PrintRequest& request, const SpoolProgress& progress) {
  std::unique_lock lock(mMutex);
  if (mRefusal) return Error{*mRefusal};
  if (mBytesUntilSilence) return submitSilently(lock, progress);
  if (mIsStalling) {
    lock.unlock();
    while (progress(50, 100)) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return Error{"given up"};
  }
  mSubmissions.push_back(request);
  std::ifstream file(request.path);
  mContents.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  lock.unlock();
  progress(100, 100);
  return kJobId;
}

Result<JobStatus> FakePrintServer::status(const DestinationName& /*destination*/, int /*jobId*/) {
  std::unique_lock lock(mMutex);
  waitWhileSilent(lock);
  if (mIsGone) return Error{"no print server answers"};
  if (mIsCancelled) return jobStatus(JobState::canceled);
  const JobStatus status = mStatuses.front();
  if (mStatuses.size() > 1) mStatuses.pop_front();
  return status;
}

Result<Done> FakePrintServer::cancel(const DestinationName& /*destination*/, int /*jobId*/) {
  std::unique_lock lock(mMutex);
  waitWhileSilent(lock);
  if (mIsGone) return Error{"no print server answers"};
  ++mCancellations;
  if (mCancelRefusal) {
    mStatuses = {jobStatus(mStateAtRefusal)};
    return Error{*mCancelRefusal};
  }
  mIsCancelled = true;
  return Done{};
}

}  // namespace cutline
