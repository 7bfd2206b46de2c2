#include "host/dialog/PageCache.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace cutline {
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
