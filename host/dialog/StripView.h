// The preview: the labels as they will come out of the printer, at true proportions.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>
#include <deque>
#include <optional>
#include <vector>

#include "composition/Composition.h"
#include "host/dialog/DocumentPages.h"
#include "host/dialog/StripLayout.h"

namespace cutline {

class StripView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit StripView(QWidget* parent = nullptr);

  // So many labels like this one; none shows an empty one. Pictures of equal labels stay until
  // newer ones come.
  void setLabels(const LabelPage& label, int count);
  // The others are shown as not printed.
  void setSelection(const PageSelection& selection);
  void setMirrored(bool mirrored);
  // What is shown is no more what was asked for.
  void setDimmed(bool dimmed);
  // Shown over the strip, for waiting and for failures; empty shows none.
  void setMessage(const QString& message);
  // What is shown, for those who cannot see it; a message goes before.
  void setWords(const QString& words);
  // A label's picture as a reader holds it, at so many pixels a point.
  void showPage(int page, double scale, const QImage& image);

  int pageCount() const noexcept { return mPageCount; }
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
  // Visible labels that are not drawn at the present scale.
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
  double drawnScale() const;
  void pick();
  bool isPrinted(int page) const;

  void paintLane(QPainter& painter, const StripLayout::Lane& lane) const;
  void paintLabel(QPainter& painter, int page);
  void paintContent(QPainter& painter, int page);
  QRectF pictureRect(const QImage& picture, int page) const;
  void paintNumber(QPainter& painter, int page) const;
  void paintMessage(QPainter& painter) const;

  std::optional<LabelPage> mLabel;
  int mPageCount = 0;
  PageSelection mSelection;
  std::vector<bool> mIsPicked;  // of each page, whether it is printed
  bool mIsMirrored = false;
  bool mIsDimmed = false;
  QString mMessage;
  QString mWords;
  double mZoom = 1;
  int mCurrentPage = 0;
  std::optional<StripLayout> mLayout;
  PageCache mCache;
};

}  // namespace cutline
