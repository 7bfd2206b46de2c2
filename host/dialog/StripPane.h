// The preview with what belongs to it: which label it shows, steps to the next, zoom.
#pragma once

#include <QWidget>

#include "host/dialog/StripView.h"

class QLabel;
class QToolButton;

namespace cutline {

class StripPane : public QWidget {
  Q_OBJECT

 public:
  explicit StripPane(QWidget* parent = nullptr);

  StripView& strip() const noexcept { return *mStrip; }
  // Said beside the label's number, such as the paper's name.
  void setPaperText(const QString& text);

 private:
  QToolButton* makeButton(const QString& text, const QString& name, void (StripPane::*step)());
  void refresh();
  QString pageText() const;
  void showPrevious();
  void showNext();
  void zoomOut();
  void zoomToFit();
  void zoomIn();

  StripView* mStrip;
  QToolButton* mPrevious;
  QLabel* mPosition;
  QToolButton* mNext;
  QToolButton* mZoomOut;
  QToolButton* mFit;
  QToolButton* mZoomIn;
  QString mPaperText;
};

}  // namespace cutline
