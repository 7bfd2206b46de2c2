// What a cut option does, what it would change of the job at hand, and why it cannot be used now:
// as a tool tip, behind F1, and for a screen reader.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <map>
#include <string>

#include "strip/CutPlan.h"

class QWidget;

namespace cutline {

class PrintModel;

// "Would save 12 mm of tape", or what else is known of it; empty where nothing is. `plan` is what
// the settings come to now, `asked` the settings.
QString effectOf(const std::string& keyword, const CutSettings& asked, const CutPlan& plan);

class ChoiceHints : public QObject {
  Q_OBJECT

 public:
  // What the labels and pages are that the effects are told of.
  using PlanSource = std::function<CutPlan()>;

  // The model is borrowed.
  ChoiceHints(const PrintModel& model, PlanSource plan, QObject* parent);

  // Tells them of the boxes of the model's panels, which are in a window now.
  void watchPanels();
  // Several lines; empty for an option that is none of the cut options.
  QString hintFor(const std::string& keyword, bool isEnabled) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString reasonOf(const std::string& keyword) const;

  const PrintModel& mModel;
  PlanSource mPlan;
  std::map<QObject*, std::string> mKeywords;
};

}  // namespace cutline
