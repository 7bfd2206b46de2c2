// The languages that the panel speaks.
#pragma once

#include <string>

namespace cutline {

struct Language {
  const char* folder;  // of its string table, without ".lproj"
  const char* locale;  // what LANG says for one of its readers
};

inline constexpr Language kLanguages[] = {
    {"en", "en_GB.UTF-8"},      {"de", "de_DE.UTF-8"},      {"fr", "fr_FR.UTF-8"},
    {"es", "es_ES.UTF-8"},      {"it", "it_IT.UTF-8"},      {"nl", "nl_NL.UTF-8"},
    {"pt", "pt_BR.UTF-8"},      {"ja", "ja_JP.UTF-8"},      {"ko", "ko_KR.UTF-8"},
    {"zh-Hans", "zh_CN.UTF-8"}, {"zh-Hant", "zh_TW.UTF-8"},
};

// The folder as a test's name may have it.
inline std::string nameOf(const Language& language) {
  std::string name = language.folder;
  std::erase(name, '-');
  return name;
}

// The language as a PPD names it: with its territory where that makes a difference.
inline std::string ppdLanguage(const Language& language) {
  const std::string locale = language.locale;
  return locale.substr(0, locale.find(locale.starts_with("zh") ? '.' : '_'));
}

}  // namespace cutline
