#include "host/dialog/DocumentPages.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

std::vector<Size> sizesOf(const Result<std::shared_ptr<Document>>& document) {
  std::vector<Size> sizes;
  if (!document || !*document) return sizes;
  for (int page = 0; page < (*document)->pageCount(); ++page) {
    sizes.push_back((*document)->pageSize(page));
  }
  return sizes;
}

QImage imageFrom(const PageImage& page) {
  QImage image(page.width, page.height, QImage::Format_ARGB32_Premultiplied);
  const std::size_t width = page.width;
  for (int row = 0; row < image.height(); ++row) {
    std::memcpy(image.scanLine(row), page.pixels.data() + width * row,
                width * sizeof(std::uint32_t));
  }
  return image;
}

Result<QImage> draw(Document& document, const PageRequest& request) {
  const Result<PageImage> page = document.render(request.page, request.scale);
  if (!page) return page.error();
  return imageFrom(*page);
}

}  // namespace

DocumentLoader::DocumentLoader(QObject* parent) : QObject(parent) {}

void DocumentLoader::open(Opener opener) {
  mIsBusy = true;
  mBackground.start([this, opener = std::move(opener)]() -> Background::Delivery {
    const Result<std::shared_ptr<Document>> document = opener();
    return [this, document, sizes = sizesOf(document)] { take(document, sizes); };
  });
}

void DocumentLoader::take(const Result<std::shared_ptr<Document>>& document,
                          std::vector<Size> sizes) {
  mIsBusy = false;
  mHasFailed = !document;
  if (!document) emit failed(asLine(document.error().sentence));
  if (document && !*document) emit unavailable();
  if (document && *document) {
    mDocument = *document;
    mPageSizes = std::move(sizes);
    mIsPlaceholder = mDocument->isPlaceholder();
    emit opened();
  }
  if (!mIsBusy) drawNext();
}

void DocumentLoader::request(std::deque<PageRequest> requests) {
  mRequests = std::move(requests);
  if (mDocument && !mIsBusy) drawNext();
}

void DocumentLoader::drawNext() {
  if (mRequests.empty()) {
    emit becameIdle();
    return;
  }
  const PageRequest next = mRequests.front();
  mRequests.pop_front();
  mIsBusy = true;
  mBackground.start([this, next, document = mDocument]() -> Background::Delivery {
    return [this, next, image = draw(*document, next)] { deliver(next, image); };
  });
}

void DocumentLoader::deliver(const PageRequest& request, const Result<QImage>& image) {
  mIsBusy = false;
  if (image) {
    emit pageDrawn(request.page, request.scale, *image);
  } else {
    emit pageFailed(request.page, asLine(image.error().sentence));
  }
  if (!mIsBusy) drawNext();
}

namespace {

constexpr std::size_t kMostPages = 40;
constexpr double kSameScale = 1e-3;

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

void PageCache::insert(int page, double scale, QImage image) {
  mEntries[page] = {std::move(image), scale, ++mUses};
  if (mEntries.size() > kMostPages) forgetOldest();
}

void PageCache::clear() { mEntries.clear(); }

void PageCache::forgetOldest() {
  mEntries.erase(std::min_element(
      mEntries.begin(), mEntries.end(),
      [](const auto& a, const auto& b) { return a.second.lastUse < b.second.lastUse; }));
}

}  // namespace cutline
