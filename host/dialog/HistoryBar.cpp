#include "host/dialog/HistoryBar.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

#include "host/core/PrintModel.h"
#include "host/dialog/Icons.h"

namespace cutline {
namespace {

constexpr int kPauseMilliseconds = 400;
constexpr int kButtonGap = 4;

}  // namespace

HistoryBar::HistoryBar(PrintModel& model, QWidget* parent)
    : QWidget(parent),
      mModel(model),
      mUndo(makeButton(Glyph::undo, tr("Undo the last change of a setting"), QKeySequence::Undo,
                       &HistoryBar::undo)),
      mRedo(makeButton(Glyph::redo, tr("Redo what was undone"), QKeySequence::Redo,
                       &HistoryBar::redo)),
      mReset(new QPushButton(tr("Reset"), this)) {
  mReset->setFlat(true);
  mReset->setToolTip(tr("Go back to the settings that the driver starts with"));
  mPause.setSingleShot(true);
  mPause.setInterval(kPauseMilliseconds);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kButtonGap);
  for (QWidget* each : std::initializer_list<QWidget*>{mUndo, mRedo, mReset}) row->addWidget(each);
  connect(&mPause, &QTimer::timeout, this, &HistoryBar::note);
  connect(mReset, &QPushButton::clicked, this, &HistoryBar::reset);
  refresh();
}

QToolButton* HistoryBar::makeButton(Glyph glyph, const QString& name, const QKeySequence& keys,
                                    void (HistoryBar::*act)()) {
  auto* button = new QToolButton(this);
  button->setIcon(icon(glyph));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAccessibleName(name);
  button->setToolTip(tr("%1 (%2)").arg(name, keys.toString(QKeySequence::NativeText)));
  connect(button, &QToolButton::clicked, this, act);
  // A field that is being typed into has its own undo first.
  connect(new QShortcut(keys, this, nullptr, nullptr, Qt::WindowShortcut), &QShortcut::activated,
          button, &QToolButton::click);
  return button;
}

void HistoryBar::start() {
  mPause.stop();
  mHistory.start(mModel.settings());
  refresh();
}

void HistoryBar::modelDidChange() { mPause.start(); }

void HistoryBar::leaveOut(const std::function<void()>& change) {
  if (mPause.isActive()) note();
  change();
  mPause.stop();
  mHistory.amend(mModel.settings());
}

void HistoryBar::note() {
  mPause.stop();
  if (!mModel.isOpen()) return;
  mHistory.note(mModel.settings());
  refresh();
}

void HistoryBar::undo() {
  if (mPause.isActive()) note();
  if (mHistory.canUndo()) restore(mHistory.undo());
}

void HistoryBar::redo() {
  if (mPause.isActive()) note();
  if (mHistory.canRedo()) restore(mHistory.redo());
}

void HistoryBar::reset() {
  if (mPause.isActive()) note();
  mModel.reset();
  note();
}

void HistoryBar::restore(const Settings& settings) {
  mModel.restore(settings);
  mPause.stop();
  mHistory.amend(mModel.settings());
  refresh();
}

void HistoryBar::refresh() {
  mUndo->setEnabled(mHistory.canUndo());
  mRedo->setEnabled(mHistory.canRedo());
  mReset->setEnabled(mModel.isOpen());
}

}  // namespace cutline
