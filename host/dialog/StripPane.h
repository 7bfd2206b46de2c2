// The preview with what belongs to it: the job in a sentence, which label is the current one, steps
// to the next, zoom.
#pragma once

#include <QWidget>

#include "host/dialog/StripView.h"

class QToolButton;

namespace cutline {

class LabelRoom;

class StripPane : public QWidget {
  Q_OBJECT

 public:
  explicit StripPane(QWidget* parent = nullptr);

  StripView& strip() const noexcept { return *mStrip; }
  // Shows the job and says what becomes of it. `paper`, such as its name, is said beside the
  // label's number. The same again changes nothing.
  void setJob(const StripContent& content, const QString& sentence, const QString& paper);

 private:
  QToolButton* makeButton(const QString& name, void (StripPane::*step)());
  void makeLayout();
  void refresh();
  QString position() const;
  void showPrevious();
  void showNext();
  void zoomOut();
  void zoomToFit();
  void zoomIn();

  StripView* mStrip;
  LabelRoom* mSentence;
  QToolButton* mPrevious;
  LabelRoom* mPosition;
  QToolButton* mNext;
  QToolButton* mZoomOut;
  QToolButton* mFit;
  QToolButton* mZoomIn;
  QString mPaper;
};

}  // namespace cutline
