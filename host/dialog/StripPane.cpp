#include "host/dialog/StripPane.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace cutline {
namespace {

const QString kSeparator = QStringLiteral(" \u00b7 ");

}  // namespace

StripPane::StripPane(QWidget* parent)
    : QWidget(parent),
      mStrip(new StripView(this)),
      mPrevious(
          makeButton(QStringLiteral("\u2039"), tr("Previous label"), &StripPane::showPrevious)),
      mPosition(new QLabel(this)),
      mNext(makeButton(QStringLiteral("\u203a"), tr("Next label"), &StripPane::showNext)),
      mZoomOut(makeButton(QStringLiteral("\u2212"), tr("Zoom out"), &StripPane::zoomOut)),
      mFit(makeButton(tr("Fit"), tr("Fit a label into the view"), &StripPane::zoomToFit)),
      mZoomIn(makeButton(QStringLiteral("+"), tr("Zoom in"), &StripPane::zoomIn)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mStrip, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(mPrevious);
  row->addWidget(mNext);
  row->addWidget(mPosition, 1);
  row->addWidget(mZoomOut);
  row->addWidget(mFit);
  row->addWidget(mZoomIn);
  column->addLayout(row);
  mPosition->setTextFormat(Qt::PlainText);
  mPosition->setWordWrap(true);
  connect(mStrip, &StripView::currentPageChanged, this, &StripPane::refresh);
  connect(mStrip, &StripView::zoomChanged, this, &StripPane::refresh);
  refresh();
}

QToolButton* StripPane::makeButton(const QString& text, const QString& name,
                                   void (StripPane::*step)()) {
  auto* button = new QToolButton(this);
  button->setText(text);
  button->setToolTip(name);
  button->setAccessibleName(name);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, step);
  return button;
}

void StripPane::setPaperText(const QString& text) {
  mPaperText = text;
  refresh();
}

QString StripPane::pageText() const {
  if (mStrip->pageCount() == 0) return {};
  return tr("Label %1 of %2").arg(mStrip->currentPage() + 1).arg(mStrip->pageCount());
}

void StripPane::refresh() {
  const QString page = pageText();
  mPosition->setText(page.isEmpty() || mPaperText.isEmpty() ? page + mPaperText
                                                            : page + kSeparator + mPaperText);
  mStrip->setWords(mPosition->text());
  mPrevious->setEnabled(mStrip->currentPage() > 0);
  mNext->setEnabled(mStrip->currentPage() + 1 < mStrip->pageCount());
  mZoomOut->setEnabled(mStrip->canZoomOut());
  mZoomIn->setEnabled(mStrip->canZoomIn());
}

void StripPane::showPrevious() { mStrip->setCurrentPage(mStrip->currentPage() - 1); }
void StripPane::showNext() { mStrip->setCurrentPage(mStrip->currentPage() + 1); }
void StripPane::zoomOut() { mStrip->zoomOut(); }
void StripPane::zoomToFit() { mStrip->zoomToFit(); }
void StripPane::zoomIn() { mStrip->zoomIn(); }

}  // namespace cutline
