#include "host/dialog/ChoiceHints.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <QWhatsThis>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/CutFacts.h"
#include "host/core/CutSettingsReader.h"
#include "host/core/PrintModel.h"
#include "platform/ports/Controls.h"
#include "qt/QtToolkit.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

struct CutChoice {
  std::string_view keyword;
  bool CutSettings::*setting;
  const char* meaning;
};

constexpr std::array kChoices = std::to_array<CutChoice>({
    {"LxAutoTapeCut", &CutSettings::cutsAutomatically,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "The printer cuts the tape off after every so many labels, and behind the "
                       "last one.")},
    {"LxCutAtEnd", &CutSettings::cutsAtEnd,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "The printer cuts the tape off behind the last label.")},
    {"LxHalfCut", &CutSettings::halfCuts,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "The knife goes through the printed layer only: the labels stay together on "
                       "their backing, and peel off one by one.")},
    {"LxSpecialTape", &CutSettings::isSpecialTape,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "For tape that would harm the knife, such as fabric or heat-shrink tube: "
                       "the printer never cuts it. Cut it with scissors.")},
    {"LxChainPrint", &CutSettings::chains,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "The last label stays in the printer, and the next job follows it without "
                       "blank tape between them. Feed and cut at the printer after the last job.")},
    {"LxMirror", &CutSettings::mirrors,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "Prints mirrored, for labels that are read from behind or ironed on.")},
    {"LxRemoveBlkSpace", &CutSettings::removesBlankSpace,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "Leaves out the blank space before and behind the print: each label is as "
                       "long as what is on it.")},
    {"LxCutMark", &CutSettings::printsCutMarks,
     QT_TRANSLATE_NOOP("cutline::ChoiceHints",
                       "Prints a mark at the ends of each label, where to cut by hand.")},
});

const CutChoice* choiceOf(const std::string& keyword) {
  const auto found = std::ranges::find(kChoices, keyword, &CutChoice::keyword);
  return found != kChoices.end() ? &*found : nullptr;
}

bool isHelpKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  return static_cast<const QKeyEvent&>(event).key() == Qt::Key_F1;
}

QString tapeEffect(double saved, bool isOn) {
  const QString length = QString::number(std::abs(std::lround(saved)));
  if (isOn) {
    return saved > 0 ? ChoiceHints::tr("Saves %1 mm of tape.").arg(length)
                     : ChoiceHints::tr("Takes %1 mm more tape.").arg(length);
  }
  return saved > 0 ? ChoiceHints::tr("Would save %1 mm of tape.").arg(length)
                   : ChoiceHints::tr("Would take %1 mm more tape.").arg(length);
}

}  // namespace

QString effectOf(const std::string& keyword, const CutSettings& asked, const CutPlan& plan) {
  const CutChoice* choice = choiceOf(keyword);
  if (choice == nullptr) return {};
  CutSettings other = asked;
  const bool isOn = asked.*(choice->setting);
  other.*(choice->setting) = !isOn;
  const CutPlan otherwise(other, plan.run());
  const CutPlan& with = isOn ? plan : otherwise;
  const CutPlan& without = isOn ? otherwise : plan;
  if (with.tape() && without.tape() && std::lround(*with.tape()) != std::lround(*without.tape())) {
    return tapeEffect(*without.tape() - *with.tape(), isOn);
  }
  if (with.pieces() == without.pieces()) return {};
  const QString pattern = isOn ? ChoiceHints::tr("Pieces: %1 instead of %2.")
                               : ChoiceHints::tr("Pieces: would be %1 instead of %2.");
  return pattern.arg(with.pieces()).arg(without.pieces());
}

ChoiceHints::ChoiceHints(const PrintModel& model, PlanSource plan, QObject* parent)
    : QObject(parent), mModel(model), mPlan(std::move(plan)) {}

void ChoiceHints::watchPanels() {
  mKeywords.clear();
  for (CheckBox* box : mModel.boxes()) {
    QWidget* widget = QtToolkit::widgetOf(*box);
    if (widget == nullptr) continue;
    mKeywords[widget] = box->ppdKeyword();
    widget->installEventFilter(this);
  }
}

QString ChoiceHints::reasonOf(const std::string& keyword) const {
  const CutSettings asked = cutSettingsOf(*mModel.ppdFile());
  if (asked.isSpecialTape && underSpecialTape(keyword).greyed) {
    return tr("Special tape is never cut, so this cannot be chosen.");
  }
  if (keyword == "LxRemoveBlkSpace" && keepsBlankSpace(mModel.currentPaper().name)) {
    return tr("Labels of this size lie at fixed places, so this cannot be chosen.");
  }
  return {};
}

QString ChoiceHints::hintFor(const std::string& keyword, bool isEnabled) const {
  const CutChoice* choice = choiceOf(keyword);
  if (choice == nullptr || !mModel.isOpen()) return {};
  QStringList lines = {tr(choice->meaning)};
  const QString more =
      isEnabled ? effectOf(keyword, cutSettingsOf(*mModel.ppdFile()), mPlan()) : reasonOf(keyword);
  if (!more.isEmpty()) lines.append(more);
  return lines.join(QLatin1Char('\n'));
}

bool ChoiceHints::eventFilter(QObject* watched, QEvent* event) {
  const auto found = mKeywords.find(watched);
  if (found == mKeywords.end()) return QObject::eventFilter(watched, event);
  auto* widget = static_cast<QWidget*>(watched);
  const auto hint = [&] { return hintFor(found->second, widget->isEnabled()); };
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), hint(), widget);
    return true;
  }
  if (event->type() == QEvent::FocusIn) tellAccessibleDescription(*widget, hint());
  if (!isHelpKey(*event)) return QObject::eventFilter(watched, event);
  event->accept();  // the window's own help would come otherwise
  if (event->type() == QEvent::KeyPress) {
    QWhatsThis::showText(widget->mapToGlobal(QPoint(0, widget->height())), hint(), widget);
  }
  return true;
}

}  // namespace cutline
