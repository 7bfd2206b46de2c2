#include "portal/ChosenJob.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace cutline::portal {
namespace {

// What the application must not apply once more, as it is for one copy of all pages.
struct Plain {
  const char* key;
  const char* value;
};
constexpr Plain kPlain[] = {{"n-copies", "1"},    {"print-pages", "all"}, {"collate", "false"},
                            {"reverse", "false"}, {"page-set", "all"},    {"number-up", "1"},
                            {"scale", "100"}};
// What would speak against the page setup.
constexpr const char* kGone[] = {"page-ranges",  "paper-format", "paper-width",
                                 "paper-height", "orientation",  "number-up-layout"};
constexpr QLatin1String kOptionPrefix("cups-");

QMap<QString, QString> textsIn(const QJsonObject& object) {
  QMap<QString, QString> texts;
  for (auto each = object.begin(); each != object.end(); ++each)
    texts.insert(each.key(), each.value().toString());
  return texts;
}

ChosenJob::Page pageIn(const QJsonObject& object) {
  const auto length = [&object](const char* name) {
    return object.value(QLatin1String(name)).toDouble();
  };
  return {object.value(QStringLiteral("name")).toString(),
          length("width"),
          length("length"),
          length("top"),
          length("right"),
          length("bottom"),
          length("left")};
}

void addOptions(const QMap<QString, QString>& options, QStringList& words) {
  for (auto each = options.begin(); each != options.end(); ++each)
    words << QStringLiteral("-o") << optionWord(each.key(), each.value());
}

}  // namespace

std::optional<ChosenJob> ChosenJob::parse(const QByteArray& json) {
  const QJsonObject object = QJsonDocument::fromJson(json).object();
  ChosenJob job;
  job.printer = object.value(QStringLiteral("printer")).toString();
  job.options = textsIn(object.value(QStringLiteral("options")).toObject());
  job.others = textsIn(object.value(QStringLiteral("job")).toObject());
  job.copies = object.value(QStringLiteral("copies")).toInt();
  job.pages = object.value(QStringLiteral("pages")).toString();
  job.page = pageIn(object.value(QStringLiteral("page")).toObject());
  const bool isWhole = !job.printer.isEmpty() && job.copies > 0 && job.page.width > 0;
  return isWhole ? std::optional(job) : std::nullopt;
}

QVariantMap ChosenJob::settings(const QVariantMap& asked) const {
  QVariantMap answer;
  for (auto each = asked.begin(); each != asked.end(); ++each)
    if (!each.key().startsWith(kOptionPrefix)) answer.insert(each.key(), each.value());
  for (const char* key : kGone) answer.remove(QLatin1String(key));
  for (const Plain& each : kPlain)
    answer.insert(QLatin1String(each.key), QLatin1String(each.value));
  answer.insert(QStringLiteral("printer"), printer);
  for (auto each = options.begin(); each != options.end(); ++each)
    answer.insert(kOptionPrefix + each.key(), each.value());
  return answer;
}

QVariantMap ChosenJob::pageSetup() const {
  return {{QStringLiteral("Name"), page.name},
          {QStringLiteral("DisplayName"), page.name},
          {QStringLiteral("Width"), page.width},
          {QStringLiteral("Height"), page.length},
          {QStringLiteral("MarginTop"), page.top},
          {QStringLiteral("MarginRight"), page.right},
          {QStringLiteral("MarginBottom"), page.bottom},
          {QStringLiteral("MarginLeft"), page.left},
          {QStringLiteral("Orientation"), QStringLiteral("portrait")}};
}

QStringList ChosenJob::words() const {
  QStringList words = {QStringLiteral("-d"), printer, QStringLiteral("-n"),
                       QString::number(copies)};
  if (!pages.isEmpty()) words << QStringLiteral("-P") << pages;
  addOptions(options, words);
  addOptions(others, words);
  return words;
}

QString optionWord(const QString& name, const QString& value) {
  QString quoted;
  for (const QChar sign : value) {
    if (sign == u'\'' || sign == u'\\') quoted += u'\\';
    quoted += sign;
  }
  return name + QStringLiteral("='") + quoted + u'\'';
}

}  // namespace cutline::portal
