#include "host/dialog/DialogLanguage.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <algorithm>
#include <array>

#include "qt/QtText.h"

namespace cutline {

namespace {

// Names of languages by their script, as bundles have them, whose tables are named by a place.
struct ScriptName {
  const char* name;
  const char* code;
};
constexpr std::array kScriptNames =
    std::to_array<ScriptName>({{"zh-Hans", "zh_CN"}, {"zh-Hant", "zh_TW"}});

// Where Qt knows a language by one of its countries only: 6.4.2 has Portuguese as Brazil writes it,
// and without this row the few texts of its own stay English beside Portuguese ones.
constexpr std::array kToolkitNames = std::to_array<ScriptName>({{"pt", "pt_BR"}});

QString english() { return QStringLiteral("en"); }

QString codeOf(const std::string& name) {
  const auto* row = std::find_if(kScriptNames.begin(), kScriptNames.end(),
                                 [&](const ScriptName& script) { return script.name == name; });
  return row != kScriptNames.end() ? QString::fromLatin1(row->code) : toQString(name);
}

QString tablePath(const QString& directory, const QString& code) {
  return directory + QStringLiteral("/cutline_%1.qm").arg(code);
}

QString languageOf(const QString& name) {
  return name.section(QLatin1Char('_'), 0, 0).section(QLatin1Char('-'), 0, 0);
}

// The user's own variety, which may have no table: the names go from the particular to the general.
QLocale localeFor(const QString& code, const std::vector<std::string>& names) {
  const auto name = std::find_if(names.begin(), names.end(), [&](const std::string& each) {
    return languageOf(toQString(each)) == languageOf(code);
  });
  const QLocale own(name != names.end() ? toQString(*name) : code);
  return own.language() == QLocale::C ? QLocale(code) : own;
}

QString toolkitTable(const QString& code) {
  const auto* row =
      std::find_if(kToolkitNames.begin(), kToolkitNames.end(),
                   [&](const ScriptName& known) { return code == QLatin1String(known.name); });
  const QString name = row != kToolkitNames.end() ? QString::fromLatin1(row->code) : code;
  return QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + name;
}

// Without a table of the toolkit's own its few texts stay English.
void install(QTranslator& texts, const QString& path) {
  if (texts.load(path)) QCoreApplication::installTranslator(&texts);
}

}  // namespace

DialogLanguage chooseLanguage(const std::vector<std::string>& names, const QString& directory) {
  for (const std::string& name : names) {
    const QString code = codeOf(name);
    if (code == english()) break;
    if (QFile::exists(tablePath(directory, code))) return {code, localeFor(code, names)};
  }
  return {english(), localeFor(english(), names)};
}

LanguageInForce::LanguageInForce(const DialogLanguage& language, const QString& directory) {
  QLocale::setDefault(language.locale);
  QGuiApplication::setLayoutDirection(language.locale.textDirection());
  if (language.code == english()) return;
  install(mToolkitTexts, toolkitTable(language.code));
  install(mTexts, tablePath(directory, language.code));
}

// The translators take themselves out.
LanguageInForce::~LanguageInForce() { QLocale::setDefault(mBefore); }

namespace {

constexpr QChar kSign = QLatin1Char('%');

QString wordsOf(const Phrase& phrase) {
  return QCoreApplication::translate(phrase.context, phrase.source);
}

// The number of the place at `at`; 0 for anything else.
int placeAt(const QString& words, qsizetype at) {
  return words[at] == kSign && at + 1 < words.size() ? words[at + 1].digitValue() : 0;
}

// All places in one pass, because what is put in may look like a place.
QString filled(const QString& words, const std::vector<Sentence>& arguments) {
  QString text;
  for (qsizetype at = 0; at < words.size(); ++at) {
    const int place = placeAt(words, at);
    if (place < 1 || place > static_cast<int>(arguments.size())) {
      text += words[at];
      continue;
    }
    text += translated(arguments[static_cast<std::size_t>(place) - 1]);
    ++at;
  }
  return text;
}

// False where a name comes first.
bool beginsWithWords(const Sentence& sentence) {
  if (!sentence.phrase()) return false;
  const QString words = wordsOf(*sentence.phrase());
  const int place = words.isEmpty() ? 0 : placeAt(words, 0);
  if (place < 1 || place > static_cast<int>(sentence.arguments().size())) return true;
  return beginsWithWords(sentence.arguments()[static_cast<std::size_t>(place) - 1]);
}

}  // namespace

QString translated(const Sentence& sentence) {
  if (!sentence.phrase()) return toQString(sentence.verbatim());
  return filled(wordsOf(*sentence.phrase()), sentence.arguments());
}

QString asLine(const Sentence& sentence) {
  QString line = translated(sentence);
  if (!line.isEmpty() && beginsWithWords(sentence)) line[0] = line[0].toUpper();
  return line;
}

}  // namespace cutline
