// The dialog's language: which one it is, its texts and numbers, and sentences said in it.
#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>
#include <string>
#include <vector>

#include "base/Sentence.h"

namespace cutline {

struct DialogLanguage {
  QString code;    // of its table of texts, such as "de" or "zh_TW"; "en" needs none
  QLocale locale;  // how it is written where the user lives, such as Swiss German
};

// The first of these names, best first as preferredLocalizations answers them, that is English or
// that `directory` has a table for ("cutline_de.qm"); English when there is none.
DialogLanguage chooseLanguage(const std::vector<std::string>& names, const QString& directory);

// The program speaks the language as long as this lives.
class LanguageInForce {
 public:
  // `directory` as for chooseLanguage. The application exists.
  LanguageInForce(const DialogLanguage& language, const QString& directory);
  ~LanguageInForce();
  LanguageInForce(const LanguageInForce&) = delete;
  LanguageInForce& operator=(const LanguageInForce&) = delete;

 private:
  QLocale mBefore;
  QTranslator mToolkitTexts;
  QTranslator mTexts;
};

// Sentences of the parts without a toolkit, in the dialog's language.
QString translated(const Sentence& sentence);

// The same for a line of its own: an error's words begin with a capital, a name stays as it is.
QString asLine(const Sentence& sentence);

}  // namespace cutline
