// The preview: the whole job as it leaves the printer, at true proportions. Labels count from 1 in
// the order of printing, the document's pages from 0.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>
#include <deque>
#include <optional>

#include "host/dialog/DocumentPages.h"
#include "host/dialog/StripContent.h"
#include "host/dialog/StripLayout.h"
#include "host/dialog/StripTexts.h"

namespace cutline {

class StripView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit StripView(QWidget* parent = nullptr);

  // Pictures stay for labels of the same size. The same content again changes nothing.
  void setContent(const StripContent& content);
  // There are newer pictures of all pages: those that are shown stay until these come.
  void setPicturesOld();
  // What is shown is no more what was asked for.
  void setDimmed(bool dimmed);
  // Shown over the strip, for waiting and for failures; empty shows none.
  void setMessage(const QString& message);
  // What is shown, for those who cannot see it; a message goes before.
  void setWords(const QString& words);
  // A page's picture as a reader holds it, at so many pixels a point.
  void showPage(int page, double scale, const QImage& image);

  // 0 without a document.
  std::uint64_t labelCount() const noexcept;
  std::uint64_t currentLabel() const noexcept { return mCurrent; }
  // Scrolls the label into view; the nearest one where there is none of the number.
  void setCurrentLabel(std::uint64_t label);

  double zoom() const noexcept { return mZoom.factor; }
  bool canZoomIn() const noexcept;
  bool canZoomOut() const noexcept;
  void zoomIn();
  void zoomOut();
  void zoomToFit();

  // The current label fills the view, until one goes back to where one was.
  void showLarge();
  void leaveLarge();
  bool isLarge() const noexcept { return mZoom.isLarge; }

  // Where everything lies now; nothing before there is a content.
  const std::optional<StripLayout>& stripLayout() const noexcept { return mLayout; }
  // What of the strip is at the view's corner.
  QPointF offset() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // Visible pages that are not drawn at the present scale.
  void pagesWanted(const std::deque<PageRequest>& requests);
  void currentLabelChanged();
  void zoomChanged();
  // The user wants this page, counted from 1, and no other.
  void onlyThisWanted(unsigned page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;

 private:
  void describe();
  void layOut();
  void setZoom(StripZoom zoom);
  void setBars();
  void colourBars();
  void scrollTo(QPointF corner);
  void showCurrent();
  void wantPages();
  int pageOf(std::uint64_t label) const;
  bool stepByKey(int key);
  double drawnScale() const;
  StripRoom room() const;
  QStringList captions(std::uint64_t label) const;
  QString widestCaption() const;

  class LabelPainter;
  void paintStrip(QPainter& painter);
  void paintMessage(QPainter& painter) const;

  std::optional<StripContent> mContent;
  std::uint64_t mCurrent = 1;
  bool mIsDimmed = false;
  QString mMessage;
  QString mWords;
  StripZoom mZoom;
  QPointF mOffsetBefore;      // before a label was shown large
  bool mHasJustLeft = false;  // that, by the last press
  std::optional<StripLayout> mLayout;
  double mPixelsPerStep = 1;  // of the scroll bars
  PageCache mCache;
  StripTexts mCaptions;
  StripTexts mNumbers;
};

}  // namespace cutline
