#include "portal/PortalSettings.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Numbers.h"
#include "composition/PageRanges.h"
#include "cups/CustomSize.h"
#include "cups/PpdFile.h"

namespace cutline::portal {
namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;
constexpr double kSame = 1;                // millimetre
constexpr double kWidestLabel = 80;        // millimetres; the narrowest sheets are postcards
constexpr QLatin1String kPrefix("cups-");  // before the name of a printer's option
constexpr char kPaperKeyword[] = "PageSize";

std::string text(const QVariantMap& map, const char* key) {
  return map.value(QLatin1String(key)).toString().toStdString();
}

struct Size {
  double width = 0;  // millimetres
  double length = 0;
};

// Nothing where the setup has no measures that a paper can have.
std::optional<Size> sizeOf(const QVariantMap& pageSetup) {
  const Size size{pageSetup.value(QStringLiteral("Width")).toDouble(),
                  pageSetup.value(QStringLiteral("Height")).toDouble()};
  const bool isSize =
      std::isfinite(size.width) && std::isfinite(size.length) && size.width > 0 && size.length > 0;
  return isSize ? std::optional(size) : std::nullopt;
}

bool isNear(double points, double millimetres) {
  return std::abs(points / kPointsPerMillimetre - millimetres) < kSame;
}

// A page that is drawn the other way is turned when it is laid onto its label.
std::string paperOfSize(const Size& size, const PpdFile& ppd) {
  for (const Size& each : {size, Size{size.length, size.width}})
    for (const PaperSize& paper : ppd.paperSizes())
      if (isNear(paper.width, each.width) && isNear(paper.length, each.length)) return paper.name;
  const CustomSize custom{size.width * kPointsPerMillimetre, size.length * kPointsPerMillimetre};
  const bool isTaken = ppd.customSizes() && ppd.checkChoice(kPaperKeyword, custom.choice());
  return isTaken ? custom.choice() : "";
}

// Empty where the printer has no such paper.
std::string paperOf(const QVariantMap& pageSetup, const PpdFile& ppd) {
  const std::string name = text(pageSetup, "PPDName");
  const bool isKnown = std::ranges::any_of(
      ppd.paperSizes(), [&name](const PaperSize& paper) { return paper.name == name; });
  if (isKnown) return name;
  const std::optional<Size> size = sizeOf(pageSetup);
  return size ? paperOfSize(*size, ppd) : "";
}

// Portals count pages from 0: "0-2,4".
std::optional<std::string> rangesOf(const QVariantMap& settings) {
  if (text(settings, "print-pages") != "ranges") return std::nullopt;
  QStringList ranges;
  const QStringList parts = settings.value(QStringLiteral("page-ranges")).toString().split(u',');
  for (const QString& part : parts) {
    QStringList ends;
    for (const QString& end : part.split(u'-')) {
      const std::optional<int> page = numberIn<int>(end.trimmed().toStdString());
      if (!page || *page < 0 || *page == std::numeric_limits<int>::max()) return std::nullopt;
      ends.append(QString::number(*page + 1));
    }
    ranges.append(ends.join(u'-'));
  }
  const Result<PageRanges> read = PageRanges::parse(ranges.join(u',').toStdString());
  return read ? std::optional(read->text()) : std::nullopt;
}

std::optional<int> copiesOf(const QVariantMap& settings) {
  const std::optional<int> copies = numberIn<int>(text(settings, "n-copies"));
  return copies && *copies >= 1 && *copies <= kMostCopies ? copies : std::nullopt;
}

struct Row {
  const char* key;
  const char* value;
  const char* option;
  const char* choice;
};
constexpr Row kOrders[] = {{"collate", "true", "collate", "true"},
                           {"collate", "false", "collate", "false"},
                           {"reverse", "true", "outputorder", "reverse"},
                           {"page-set", "even", "page-set", "even"},
                           {"page-set", "odd", "page-set", "odd"}};

void addPrinterOptions(const QVariantMap& settings, const PpdFile& ppd, OptionList& options) {
  for (auto each = settings.begin(); each != settings.end(); ++each) {
    if (!each.key().startsWith(kPrefix)) continue;
    const OptionList::value_type option = {each.key().mid(kPrefix.size()).toStdString(),
                                           each.value().toString().toStdString()};
    const auto spelled = ppd.spelled(option);
    const bool isPaper = spelled.first == kPaperKeyword || spelled.first == "PageRegion";
    if (isPaper || !ppd.hasOption(spelled.first)) continue;
    if (ppd.checkChoice(spelled.first, spelled.second)) options.push_back(spelled);
  }
}

}  // namespace

std::string printerNamed(const QVariantMap& settings) { return text(settings, "printer"); }

// Titles of dialogs say "Print"; the name for a file to print into is the document's.
QString documentNamed(const QVariantMap& settings) {
  return settings.value(QStringLiteral("output-basename")).toString();
}

AskedSettings askedOf(const QVariantMap& settings, const QVariantMap& pageSetup,
                      const PpdFile& ppd) {
  AskedSettings asked;
  asked.copies = copiesOf(settings);
  asked.pageRanges = rangesOf(settings);
  addPrinterOptions(settings, ppd, asked.options);
  const std::string paper = paperOf(pageSetup, ppd);
  if (!paper.empty()) asked.options.emplace_back(kPaperKeyword, paper);
  for (const Row& row : kOrders)
    if (text(settings, row.key) == row.value) asked.options.emplace_back(row.option, row.choice);
  return asked;
}

bool isLabelPage(const QVariantMap& pageSetup) {
  const std::optional<Size> size = sizeOf(pageSetup);
  return size && std::min(size->width, size->length) <= kWidestLabel;
}

}  // namespace cutline::portal
