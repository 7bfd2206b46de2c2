#include "host/dialog/translated.h"

#include <QCoreApplication>

#include "qt/QtText.h"

namespace cutline {
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
