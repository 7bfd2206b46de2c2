// Undo, redo and reset of a job's settings. What the user does in one go is one step.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "host/core/SettingsHistory.h"

class QPushButton;
class QToolButton;

namespace cutline {

enum class Glyph;
class PrintModel;

class HistoryBar : public QWidget {
  Q_OBJECT

 public:
  // The model is borrowed and outlives the bar.
  explicit HistoryBar(PrintModel& model, QWidget* parent = nullptr);

  // Another printer is open: what was done before is not undone any more.
  void start();
  // The model has changed; a step follows when the user has paused.
  void modelDidChange();
  // What `change` does to the model is no step of the user's.
  void leaveOut(const std::function<void()>& change);

 private:
  QToolButton* makeButton(Glyph glyph, const QString& name, const QKeySequence& keys,
                          void (HistoryBar::*act)());
  void note();
  void undo();
  void redo();
  void reset();
  void restore(const Settings& settings);
  void refresh();

  PrintModel& mModel;
  SettingsHistory mHistory;
  QTimer mPause;
  QToolButton* mUndo;
  QToolButton* mRedo;
  QPushButton* mReset;
};

}  // namespace cutline
