// The preview: the document's pages on the chosen tape or roll, at true proportions.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>
#include <deque>
#include <optional>

#include "composition/PageRanges.h"
#include "host/dialog/DocumentPages.h"
#include "host/dialog/StripLayout.h"

namespace cutline {

class StripView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit StripView(QWidget* parent = nullptr);

  // The tape or roll; without it nothing is drawn.
  void setPaper(const PaperSize& paper, StripDirection direction);
  // The document's pages, in points; none yet shows one empty label.
  void setPages(std::vector<Size> pages);
  void setSelection(const PageRanges& selection);
  void setMirrored(bool mirrored);
  // Shown over the strip, for waiting and for failures; empty shows none.
  void setMessage(const QString& message);
  // What is shown, for those who cannot see it; a message goes before.
  void setWords(const QString& words);
  void showPage(int page, double scale, const QImage& image);

  int pageCount() const noexcept { return static_cast<int>(mPages.size()); }
  int currentPage() const noexcept { return mCurrentPage; }
  // Scrolls the page into view.
  void setCurrentPage(int page);

  double zoom() const noexcept { return mZoom; }
  bool canZoomIn() const noexcept;
  bool canZoomOut() const noexcept;
  void zoomIn();
  void zoomOut();
  void zoomToFit();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // Visible pages that are not drawn at the present scale.
  void pagesWanted(const std::deque<PageRequest>& requests);
  void currentPageChanged(int page);
  void zoomChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void describe();
  void layOut();
  void setZoom(double zoom);
  void setBars();
  void wantPages();
  QPointF offset() const;
  bool stepByKey(int key);

  void paintLane(QPainter& painter, const StripLayout::Lane& lane) const;
  void paintLabel(QPainter& painter, int page);
  void paintContent(QPainter& painter, int page);
  void paintNumber(QPainter& painter, int page) const;
  void paintMessage(QPainter& painter) const;

  std::optional<PaperSize> mPaper;
  StripDirection mDirection = StripDirection::across;
  std::vector<Size> mPages;
  PageRanges mSelection;
  bool mIsMirrored = false;
  QString mMessage;
  QString mWords;
  double mZoom = 1;
  int mCurrentPage = 0;
  std::optional<StripLayout> mLayout;
  PageCache mCache;
};

}  // namespace cutline
