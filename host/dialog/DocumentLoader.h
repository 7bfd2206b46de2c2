// Opens the document and draws its pages on another thread, one call at a time.
#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <deque>
#include <functional>
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

}  // namespace cutline
