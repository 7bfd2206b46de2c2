#include "host/dialog/translated.h"

#include <QCoreApplication>

#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr QChar kSign = QLatin1Char('%');

// All places in one pass, because what is put in may look like a place.
QString filled(const QString& words, const std::vector<Sentence>& arguments) {
  QString text;
  for (qsizetype at = 0; at < words.size(); ++at) {
    const int place = words[at] == kSign && at + 1 < words.size() ? words[at + 1].digitValue() : 0;
    if (place < 1 || place > static_cast<int>(arguments.size())) {
      text += words[at];
      continue;
    }
    text += translated(arguments[static_cast<std::size_t>(place) - 1]);
    ++at;
  }
  return text;
}

}  // namespace

QString translated(const Sentence& sentence) {
  if (!sentence.phrase()) return toQString(sentence.verbatim());
  const Phrase& phrase = *sentence.phrase();
  return filled(QCoreApplication::translate(phrase.context, phrase.source), sentence.arguments());
}

}  // namespace cutline
