#include "host/dialog/DocumentPages.h"

#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "composition/EdgeLoss.h"
#include "host/dialog/DialogLanguage.h"

namespace cutline {

struct DocumentLoader::Answer {
  std::shared_ptr<Document> document;
  CompositionReport report;
  bool hasText = false;
};

struct DocumentLoader::Drawn {
  QImage image;
  std::optional<Ink> ink;
};

namespace {

constexpr int kPatienceMilliseconds = 300;
constexpr int kNiceness = 10;  // above the window's own

// Where there is one processor for both, the window is drawn before its document. For the calling
// thread and the programs that it starts; a system that refuses loses nothing else.
void giveWayToWindow() {
  static_cast<void>(::setpriority(PRIO_PROCESS, 0, ::getpriority(PRIO_PROCESS, 0) + kNiceness));
}

// Whether both ask for the same: where the content chooses the length, the paper's says nothing.
bool isSame(CompositionRequest one, CompositionRequest other) {
  for (CompositionRequest* each : {&one, &other}) {
    if (!each->lengthBounds) continue;
    each->label.top -= each->label.length;
    each->label.length = 0;
  }
  return one.asText() == other.asText();
}

}  // namespace

DocumentLoader::DocumentLoader(QObject* parent) : QObject(parent) {
  mPatience.setSingleShot(true);
  mPatience.setInterval(kPatienceMilliseconds);
  connect(&mPatience, &QTimer::timeout, this, [this] { emit waiting(true); });
}

DocumentLoader::~DocumentLoader() { mStop.request_stop(); }

void DocumentLoader::setDocuments(std::vector<std::string> paths, DocumentTools tools) {
  stop();
  mPatience.stop();
  mPaths = std::move(paths);
  mTools = std::move(tools);
  mWanted.reset();
  mDocument.reset();
  mReport = {};
  forgetInks();
  ++mComposition;
  mHasFailed = mIsComplete = false;
  mIsInkTold = true;
}

void DocumentLoader::stop() {
  mStop.request_stop();
  ++mAsked;
  mIsComposing = false;
}

void DocumentLoader::compose(CompositionRequest request) {
  if (mPaths.empty()) return;
  request.pages = {};
  if (mWanted && isSame(*mWanted, request)) return;
  mWanted = std::move(request);
  stop();
  if (!mPatience.isActive()) mPatience.start();
  ask(true);
}

void DocumentLoader::ask(bool isFirst) {
  mIsComposing = true;
  mIsComplete = false;
  mStop = std::stop_source();
  CompositionRequest request = *mWanted;
  request.pages.most = isFirst ? 1 : 0;
  request.takesAllWhereFew = isFirst;
  request.seeksInk = true;
  mBackground.start([this, isFirst, asked = ++mAsked, paths = mPaths, tools = mTools,
                     request = std::move(request),
                     stop = mStop.get_token()]() -> Background::Delivery {
    giveWayToWindow();
    const Result<ComposedDocument> composed = tools.compose(paths, request, stop);
    if (!composed) {
      return [this, asked, isFirst, error = composed.error()] { take(asked, isFirst, error); };
    }
    const Result<std::shared_ptr<Document>> document = tools.open(*composed);
    if (!document) {
      return [this, asked, isFirst, error = document.error()] { take(asked, isFirst, error); };
    }
    return [this, asked, isFirst, answer = Answer{*document, composed->report, haveText(paths)}] {
      take(asked, isFirst, answer);
    };
  });
}

void DocumentLoader::take(int asked, bool isFirst, const Result<Answer>& answer) {
  if (asked != mAsked) return;
  mIsComposing = false;
  mPatience.stop();
  emit waiting(false);
  if (!answer) return fail(asLine(answer.error().sentence));
  mHasFailed = false;
  mDocument = answer->document;
  mReport = answer->report;
  mHasText = answer->hasText;
  forgetInks();
  ++mComposition;
  const bool hasAll =
      !mReport.isPartial && static_cast<int>(mReport.pages.size()) == mReport.documentPages;
  mIsComplete = !isFirst || hasAll;
  mIsInkTold = !mIsComplete;
  if (mIsComplete)
    std::ranges::copy(labelsAtTheirEdges(mReport, mWanted->layout),
                      std::back_inserter(mUnknownInks));
  if (!mIsComplete) ask(false);
  emit composed();
  drawNext();
}

void DocumentLoader::fail(const QString& reason) {
  mHasFailed = true;
  mDocument.reset();
  mReport = {};
  forgetInks();
  ++mComposition;
  mIsInkTold = true;
  emit failed(reason);
  drawNext();
}

void DocumentLoader::setLook(const PrinterLook& look) {
  if (mLook == look) return;
  mLook = look;
  if (!mDocument) return;
  ++mComposition;
  emit composed();
}

bool DocumentLoader::isIdle() const noexcept {
  return !mIsComposing && !mIsDrawing && mIsInkTold && mRequests.empty();
}

void DocumentLoader::request(std::deque<PageRequest> requests) {
  mRequests = std::move(requests);
  if (mDocument) drawNext();
}

// What is seen first, then what is only looked at for its ink.
void DocumentLoader::drawNext() {
  if (mIsDrawing) return;
  const auto ready = std::ranges::find_if(mRequests, [this](const PageRequest& each) {
    return mDocument && each.page < mDocument->pageCount();
  });
  if (ready != mRequests.end()) {
    const PageRequest next = *ready;
    mRequests.erase(ready);
    return draw(next, false);
  }
  if (mIsComposing) return;
  if (!mUnknownInks.empty()) return drawForInk();
  if (!std::exchange(mIsInkTold, true)) emit inksKnown();
  mRequests.clear();
  if (isIdle()) emit becameIdle();
}

void DocumentLoader::forgetInks() {
  mInks.clear();
  mUnknownInks.clear();
}

void DocumentLoader::takeInk(int label, const std::optional<Ink>& ink) {
  mInks[label] = ink;
  mUnknownInks.pop_front();
}

void DocumentLoader::drawForInk() { draw({mUnknownInks.front(), inkScale(mReport.label)}, true); }

void DocumentLoader::draw(const PageRequest& request, bool isForInk) {
  mIsDrawing = true;
  mBackground.start([this, request, isForInk, document = mDocument, label = mReport.label,
                     look = mLook, composition = mComposition]() -> Background::Delivery {
    const Result<PageImage> page = document->render(request.page, request.scale);
    if (!page) {
      return [this, composition, request, isForInk, error = page.error()] {
        deliver(composition, request, isForInk, error);
      };
    }
    Drawn drawn;
    if (isForInk) drawn.ink = inkOf(*page, request.scale, label);
    if (!isForInk) drawn.image = pictureOf(*page, request.scale, label, look);
    return [this, composition, request, isForInk, drawn] {
      deliver(composition, request, isForInk, drawn);
    };
  });
}

void DocumentLoader::deliver(int composition, const PageRequest& request, bool isForInk,
                             const Result<Drawn>& drawn) {
  mIsDrawing = false;
  if (composition == mComposition) {
    if (isForInk) takeInk(request.page, drawn ? drawn->ink : std::nullopt);
    if (!isForInk && drawn) emit pageDrawn(request.page, request.scale, drawn->image);
    if (!drawn) emit pageFailed(request.page, asLine(drawn.error().sentence));
  }
  drawNext();
}

namespace {

constexpr std::size_t kLeastRoom = 40;
constexpr double kSameScale = 1e-3;
constexpr double kOldScale = 0;

}  // namespace

QImage PageCache::image(int page) {
  const auto found = mEntries.find(page);
  if (found == mEntries.end()) return {};
  found->second.lastUse = ++mUses;
  return found->second.image;
}

bool PageCache::has(int page, double scale) const {
  const auto found = mEntries.find(page);
  return found != mEntries.end() && std::abs(found->second.scale - scale) < kSameScale;
}

void PageCache::setRoom(std::size_t labels) {
  mRoom = std::max(labels, kLeastRoom);
  while (mEntries.size() > mRoom) forgetOldest();
}

void PageCache::insert(int page, double scale, QImage image) {
  mEntries[page] = {std::move(image), scale, ++mUses};
  if (mEntries.size() > mRoom) forgetOldest();
}

void PageCache::setOld() {
  for (auto& [page, entry] : mEntries) entry.scale = kOldScale;
}

void PageCache::clear() { mEntries.clear(); }

void PageCache::forgetOldest() {
  mEntries.erase(std::min_element(
      mEntries.begin(), mEntries.end(),
      [](const auto& a, const auto& b) { return a.second.lastUse < b.second.lastUse; }));
}

}  // namespace cutline
