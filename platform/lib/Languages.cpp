#include "platform/lib/Languages.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace cutline {
namespace {

constexpr char kBaseLanguage[] = "en";
constexpr std::string_view kNameLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";

// Scripts that a territory or a modifier implies.
struct Script {
  std::string_view locale;
  std::string_view folder;
};
constexpr Script kScripts[] = {
    {"zh_TW", "zh-Hant"}, {"zh_HK", "zh-Hant"}, {"zh_MO", "zh-Hant"},    {"zh_CN", "zh-Hans"},
    {"zh_SG", "zh-Hans"}, {"zh", "zh-Hans"},    {"sr@latin", "sr-Latn"},
};

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// The locale for messages: the first that is set and not empty.
std::string messageLocale() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (std::string value = environment(name); !value.empty()) return value;
  }
  return "C";
}

bool isUntranslated(std::string_view locale) { return locale == "C" || locale == "POSIX"; }

// "sr_RS.UTF-8@latin" gives "sr_RS".
std::string_view territoryOf(std::string_view locale) {
  return locale.substr(0, locale.find_first_of(".@"));
}

std::string_view languageOf(std::string_view territory) {
  return territory.substr(0, territory.find_first_of("_-"));
}

// "zh_Hant_HK" gives "zh_Hant"; nothing is left of "zh".
std::string_view withoutLastPart(std::string_view territory) {
  const auto separator = territory.find_last_of("_-");
  return separator == territory.npos ? std::string_view() : territory.substr(0, separator);
}

std::string_view modifierOf(std::string_view locale) {
  const auto at = locale.find('@');
  return at == locale.npos ? std::string_view() : locale.substr(at);
}

std::string_view scriptOf(std::string_view locale) {
  const auto* row = std::find_if(std::begin(kScripts), std::end(kScripts),
                                 [&](const Script& script) { return script.locale == locale; });
  return row == std::end(kScripts) ? std::string_view() : row->folder;
}

std::string withSeparator(std::string_view name, char separator) {
  std::string result(name);
  std::replace_if(
      result.begin(), result.end(), [](char c) { return c == '_' || c == '-'; }, separator);
  return result;
}

void append(std::vector<std::string>& names, std::string_view name) {
  if (name.empty() || std::find(names.begin(), names.end(), name) != names.end()) return;
  names.emplace_back(name);
}

void append(std::vector<std::string>& names, const std::vector<std::string>& more) {
  for (const std::string& name : more) append(names, name);
}

}  // namespace

std::vector<std::string> localizationsForLocale(const std::string& locale) noexcept {
  std::vector<std::string> names;
  const std::string_view territory = territoryOf(locale);
  if (isUntranslated(territory)) return names;
  if (territory.find_first_not_of(kNameLetters) != territory.npos) return names;
  const std::string language(languageOf(territory));
  if (const auto modifier = modifierOf(locale); !modifier.empty()) {
    append(names, scriptOf(language + std::string(modifier)));
  }
  append(names, withSeparator(territory, '_'));
  append(names, withSeparator(territory, '-'));
  append(names, scriptOf(withSeparator(territory, '_')));
  for (auto part = withoutLastPart(territory); !part.empty(); part = withoutLastPart(part)) {
    append(names, withSeparator(part, '_'));
    append(names, withSeparator(part, '-'));
  }
  return names;
}

std::vector<std::string> preferredLocalizations() noexcept {
  std::vector<std::string> names;
  const std::string locale = messageLocale();
  if (!isUntranslated(locale)) {
    const std::string asked = environment("LANGUAGE");
    std::istringstream languages(asked.empty() ? locale : asked);
    // Whoever reads the untranslated texts before a language doesn't want that language.
    for (std::string one; std::getline(languages, one, ':') && !isUntranslated(one);) {
      append(names, localizationsForLocale(one));
    }
  }
  append(names, kBaseLanguage);
  return names;
}

}  // namespace cutline
