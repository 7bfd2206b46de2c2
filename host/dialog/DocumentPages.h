// The pages of the document, drawn in the background and kept for the preview.
#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "base/Result.h"
#include "host/core/DocumentRenderer.h"
#include "host/dialog/Background.h"

namespace cutline {

struct PageRequest {
  int page;
  double scale;  // pixels a point
};

// Opens the document and draws its pages on another thread, one call at a time.
class DocumentLoader : public QObject {
  Q_OBJECT

 public:
  using Opener = std::function<Result<std::shared_ptr<Document>>()>;

  explicit DocumentLoader(QObject* parent = nullptr);

  // Calls the opener on another thread; opened, unavailable (the opener answered null: documents
  // cannot be shown here) or failed follows.
  void open(Opener opener);
  // Draws these pages next, in this order; earlier requests that were not begun are dropped.
  void request(std::deque<PageRequest> requests);

  bool isOpen() const noexcept { return mDocument != nullptr; }
  bool hasFailed() const noexcept { return mHasFailed; }
  bool isPlaceholder() const noexcept { return mIsPlaceholder; }
  // Nothing is being opened or drawn.
  bool isIdle() const noexcept { return !mIsBusy && mRequests.empty(); }
  const std::vector<Size>& pageSizes() const noexcept { return mPageSizes; }

 signals:
  void opened();
  void unavailable();
  void failed(const QString& reason);
  void pageDrawn(int page, double scale, const QImage& image);
  void pageFailed(int page, const QString& reason);
  void becameIdle();

 private:
  void take(const Result<std::shared_ptr<Document>>& document, std::vector<Size> sizes);
  void drawNext();
  void deliver(const PageRequest& request, const Result<QImage>& image);

  std::shared_ptr<Document> mDocument;
  std::vector<Size> mPageSizes;
  std::deque<PageRequest> mRequests;
  bool mIsPlaceholder = false;
  bool mHasFailed = false;
  bool mIsBusy = false;
  Background mBackground;
};

// The drawn pages that the preview holds. Forgets those that were not looked at for longest.
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
