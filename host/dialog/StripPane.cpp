#include "host/dialog/StripPane.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/dialog/Icons.h"
#include "host/dialog/WrappedLabel.h"

namespace cutline {
namespace {

const QString kSeparator = QStringLiteral(" \u00b7 ");
constexpr int kPaneGap = 12;

}  // namespace

StripPane::StripPane(QWidget* parent)
    : QWidget(parent),
      mStrip(new StripView(this)),
      mSentence(new LabelRoom(this)),
      mPrevious(makeButton(tr("Previous label"), &StripPane::showPrevious)),
      mPosition(new LabelRoom(this)),
      mNext(makeButton(tr("Next label"), &StripPane::showNext)),
      mZoomOut(makeButton(tr("Zoom out"), &StripPane::zoomOut)),
      mFit(makeButton(tr("Fit the job into the view"), &StripPane::zoomToFit)),
      mZoomIn(makeButton(tr("Zoom in"), &StripPane::zoomIn)) {
  mPrevious->setIcon(icon(Glyph::previous));
  mNext->setIcon(icon(Glyph::next));
  mZoomOut->setIcon(icon(Glyph::fewer));
  mFit->setText(tr("Fit"));
  mZoomIn->setIcon(icon(Glyph::more));
  makeLayout();
  connect(mStrip, &StripView::currentLabelChanged, this, &StripPane::refresh);
  connect(mStrip, &StripView::zoomChanged, this, &StripPane::refresh);
  refresh();
}

void StripPane::makeLayout() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mStrip, 1);
  column->addWidget(mSentence);
  auto* row = new QHBoxLayout;
  row->setSpacing(2);
  row->addWidget(mPosition, 1);
  row->addSpacing(kPaneGap);
  for (QWidget* each : {mPrevious, mNext, mZoomOut, mFit, mZoomIn}) row->addWidget(each);
  column->addLayout(row);
  // As headings are: each size of a font takes time to begin.
  QFont bold = mSentence->font();
  bold.setBold(true);
  mSentence->setFont(bold);
  mPosition->label().setForegroundRole(QPalette::PlaceholderText);
}

QToolButton* StripPane::makeButton(const QString& name, void (StripPane::*step)()) {
  auto* button = new QToolButton(this);
  button->setToolTip(name);
  button->setAccessibleName(name);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, step);
  return button;
}

void StripPane::setJob(const StripContent& content, const QString& sentence, const QString& paper) {
  mPaper = paper;
  mSentence->setText(sentence);
  mStrip->setContent(content);
  refresh();
}

QString StripPane::position() const {
  if (mStrip->labelCount() == 0) return mPaper;
  const QString label = tr("Label %1 of %2").arg(mStrip->currentLabel()).arg(mStrip->labelCount());
  return mPaper.isEmpty() ? label : label + kSeparator + mPaper;
}

void StripPane::refresh() {
  const QString place = position();
  const QString sentence = mSentence->text();
  mPosition->setText(place);
  mStrip->setWords(sentence.isEmpty() ? place : sentence + QStringLiteral("\n") + place);
  mPrevious->setEnabled(mStrip->currentLabel() > 1);
  mNext->setEnabled(mStrip->currentLabel() < mStrip->labelCount());
  mZoomOut->setEnabled(mStrip->canZoomOut());
  mZoomIn->setEnabled(mStrip->canZoomIn());
  mFit->setEnabled(mStrip->canZoomIn() || mStrip->canZoomOut());
}

void StripPane::showPrevious() { mStrip->setCurrentLabel(mStrip->currentLabel() - 1); }
void StripPane::showNext() { mStrip->setCurrentLabel(mStrip->currentLabel() + 1); }
void StripPane::zoomOut() { mStrip->zoomOut(); }
void StripPane::zoomToFit() { mStrip->zoomToFit(); }
void StripPane::zoomIn() { mStrip->zoomIn(); }

}  // namespace cutline
