#include "tests/dialog/FakeComposer.h"

#include <algorithm>

#include "tests/dialog/FakeDocument.h"

namespace cutline {

std::string composedText(const CompositionRequest& request) { return "%PDF\n" + request.asText(); }

DocumentTools FakeComposer::tools() {
  return {
      [self = shared_from_this()](const std::vector<std::string>& paths,
                                  const CompositionRequest& request, const std::stop_token& stop) {
        return self->compose(paths, request, stop);
      },
      [self = shared_from_this()](const ComposedDocument& composed) {
        const std::scoped_lock lock(self->mMutex);
        return Result<std::shared_ptr<Document>>(std::make_shared<FakeDocument>(
            static_cast<int>(composed.report.pages.size()), composed.report.label, self->mBleed));
      }};
}

void FakeComposer::setPages(int pages, const PageSize& size, double scale) {
  const std::scoped_lock lock(mMutex);
  mPages = pages;
  mPage = {size, scale, 0};
}

void FakeComposer::setPartial() {
  const std::scoped_lock lock(mMutex);
  mIsPartial = true;
}

void FakeComposer::setPrintableInk() {
  const std::scoped_lock lock(mMutex);
  mHasPrintableInk = true;
}

void FakeComposer::setBleed(double points) {
  const std::scoped_lock lock(mMutex);
  mBleed = points;
}

void FakeComposer::setContentLength(double points) {
  const std::scoped_lock lock(mMutex);
  mContentLength = points;
}

void FakeComposer::fail(const std::string& reason) {
  const std::scoped_lock lock(mMutex);
  mFailure = reason;
}

void FakeComposer::hold() {
  const std::scoped_lock lock(mMutex);
  mIsHeld = true;
}

void FakeComposer::holdRest() {
  const std::scoped_lock lock(mMutex);
  mIsRestHeld = true;
}

void FakeComposer::letGo() {
  const std::scoped_lock lock(mMutex);
  mIsHeld = mIsRestHeld = false;
  mLetGo.notify_all();
}

void FakeComposer::forgetRequests() {
  const std::scoped_lock lock(mMutex);
  mRequests = {};
}

std::vector<CompositionRequest> FakeComposer::requests() {
  const std::scoped_lock lock(mMutex);
  return mRequests;
}

std::vector<std::string> FakeComposer::paths() {
  const std::scoped_lock lock(mMutex);
  return mPaths;
}

int FakeComposer::answered() {
  const std::scoped_lock lock(mMutex);
  return mAnswered;
}

int FakeComposer::stopped() {
  const std::scoped_lock lock(mMutex);
  return mStopped;
}

CompositionReport FakeComposer::reportFor(const CompositionRequest& request) const {
  CompositionReport report;
  report.label = request.label;
  if (request.lengthBounds) {
    report.label.top += mContentLength - report.label.length;
    report.label.length = mContentLength;
  }
  report.documentPages = mPages;
  const int most = request.pages.most;
  report.isPartial = mIsPartial && most > 0;
  if (report.isPartial) report.documentPages = 1;
  report.pages.assign(
      static_cast<std::size_t>(most > 0 ? std::min(most, mPages) : mPages),
      {mPage.size, mPage.scale, request.label.upright, mHasPrintableInk && request.seeksInk});
  return report;
}

Result<ComposedDocument> FakeComposer::compose(const std::vector<std::string>& paths,
                                               const CompositionRequest& request,
                                               const std::stop_token& stop) {
  std::unique_lock lock(mMutex);
  mRequests.push_back(request);
  mPaths = paths;
  const bool isRest = request.pages.most == 0;
  if (!mLetGo.wait(lock, stop, [&] { return !mIsHeld && !(isRest && mIsRestHeld); })) {
    ++mStopped;
    return Error{"stopped"};
  }
  ++mAnswered;
  if (!mFailure.empty()) return Error{mFailure};
  Result<TemporaryFile> file = TemporaryFile::make();
  if (!file) return file.error();
  const std::string text = composedText(request);
  if (!writeAll(file->descriptor(), text.data(), text.size())) return Error{"cannot write"};
  return ComposedDocument{std::make_shared<const TemporaryFile>(std::move(*file)),
                          reportFor(request)};
}

}  // namespace cutline
