#include "host/dialog/ChosenSettings.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "host/core/JobOptions.h"
#include "host/core/OptionTable.h"
#include "host/core/PrintModel.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

double millimetres(double points) { return points * kMillimetresPerPoint; }

QJsonObject paperOf(const PaperSize& paper) {
  return {{QStringLiteral("name"), toQString(paper.name)},
          {QStringLiteral("width"), millimetres(paper.width)},
          {QStringLiteral("length"), millimetres(paper.length)},
          {QStringLiteral("left"), millimetres(paper.left)},
          {QStringLiteral("top"), millimetres(paper.length - paper.top)},
          {QStringLiteral("right"), millimetres(paper.width - paper.right)},
          {QStringLiteral("bottom"), millimetres(paper.bottom)}};
}

// On a tape a reader holds the length level. How far what is read is turned on the paper, as GTK
// has it.
const char* orientationOf(const LabelPage& label) {
  constexpr int kQuarter = 90;
  if (label.upright == 0 || label.length <= label.width) return "portrait";
  return label.upright == kQuarter ? "landscape" : "reverse-landscape";
}

}  // namespace

// A saved option that the program itself would not take is nobody's choice.
QByteArray chosenSettings(PrintModel& model) {
  const PpdFile& ppd = *model.ppdFile();
  QJsonObject ofPrinter;
  QJsonObject ofJob;
  const Result<OptionList> kept = model.savePreset();
  for (const auto& option : kept ? withWishes(*kept) : OptionList()) {
    if (option.first == "copies" || !checkOptions(ppd, {option})) continue;
    QJsonObject& place = ppd.hasOption(option.first) ? ofPrinter : ofJob;
    place.insert(toQString(option.first), toQString(option.second));
  }
  return QJsonDocument(
             {{QStringLiteral("printer"), toQString(model.destination().name.text())},
              {QStringLiteral("options"), ofPrinter},
              {QStringLiteral("job"), ofJob},
              {QStringLiteral("copies"), model.copies()},
              {QStringLiteral("pages"), toQString(model.pageRanges())},
              {QStringLiteral("paper"), paperOf(model.currentPaper())},
              {QStringLiteral("orientation"), QLatin1String(orientationOf(model.label()))}})
      .toJson(QJsonDocument::Compact);
}

}  // namespace cutline
