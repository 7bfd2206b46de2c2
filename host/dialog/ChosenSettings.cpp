#include "host/dialog/ChosenSettings.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <array>

#include "host/core/JobOptions.h"
#include "host/core/OptionTable.h"
#include "host/core/PrintModel.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

double millimetres(double points) { return points * kMillimetresPerPoint; }

// Lengths in points; the margins in the order of a clock, from the top.
struct Page {
  double width, length;
  std::array<double, 4> margins;
};

// What a reader holds lies turned on a tape. Applications turn pages each their own way, so they
// get them as they are read, and are turned with their documents.
Page pageAsRead(const LabelPage& label) {
  const double top = label.length - label.top;
  const double right = label.width - label.right;
  if (label.upright == 0 || label.length <= label.width)
    return {label.width, label.length, {top, right, label.bottom, label.left}};
  if (label.upright == kQuarterTurn)
    return {label.length, label.width, {right, label.bottom, label.left, top}};
  return {label.length, label.width, {label.left, top, right, label.bottom}};
}

QJsonObject pageOf(const PrintModel& model) {
  const Page page = pageAsRead(model.label());
  return {{QStringLiteral("name"), toQString(model.currentPaper().name)},
          {QStringLiteral("width"), millimetres(page.width)},
          {QStringLiteral("length"), millimetres(page.length)},
          {QStringLiteral("top"), millimetres(page.margins[0])},
          {QStringLiteral("right"), millimetres(page.margins[1])},
          {QStringLiteral("bottom"), millimetres(page.margins[2])},
          {QStringLiteral("left"), millimetres(page.margins[3])}};
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
  return QJsonDocument({{QStringLiteral("printer"), toQString(model.destination().name.text())},
                        {QStringLiteral("options"), ofPrinter},
                        {QStringLiteral("job"), ofJob},
                        {QStringLiteral("copies"), model.copies()},
                        {QStringLiteral("pages"), toQString(model.pageRanges())},
                        {QStringLiteral("page"), pageOf(model)}})
      .toJson(QJsonDocument::Compact);
}

}  // namespace cutline
