// The drawn pages that the preview holds. Forgets those that were not looked at for longest.
#pragma once

#include <QImage>
#include <cstdint>
#include <map>

namespace cutline {

class PageCache {
 public:
  // The page at whatever scale it was last drawn; a null image when there is none.
  QImage image(int page);
  // True when the page is there at this scale (pixels a point).
  bool has(int page, double scale) const;
  void insert(int page, double scale, QImage image);
  void clear();

 private:
  struct Entry {
    QImage image;
    double scale = 0;
    std::uint64_t lastUse = 0;
  };
  void forgetOldest();

  std::map<int, Entry> mEntries;
  std::uint64_t mUses = 0;
};

}  // namespace cutline
