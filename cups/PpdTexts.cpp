#include "cups/PpdTexts.h"

#include <cups/ppd.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>

#include "cups/PpdLines.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

// libcups 2.4.2 drops `*de.Translation`, unless German is its language, and keeps
// `*de-Translation`.
constexpr char kSeparator = '.';
constexpr char kKeptSeparator = '-';
constexpr std::string_view kTranslation = "Translation";
constexpr std::string_view kLanguages = "*cupsLanguages:";
constexpr std::string_view kNoValue = "\"\"";

// Languages that PPDs name otherwise.
struct Alias {
  std::string_view language;
  std::string_view inPpds;
};
constexpr Alias kAliases[] = {
    {"zh-Hans", "zh_CN"}, {"zh-Hant", "zh_TW"}, {"ja", "jp"}, {"nb", "no"}, {"no", "nb"},
};

using Languages = std::vector<std::string>;

// "de" for `*de.Translation LxMirror/Spiegeln: ""`; empty for a line that is in no language. As to
// libcups 2.4.2, names of two letters and those with a territory are languages.
std::string_view languageOfLine(std::string_view line) {
  constexpr std::size_t kLengths[] = {2, 5};
  if (!line.starts_with('*')) return {};
  for (const std::size_t length : kLengths) {
    if (line.size() <= length + 1 || line[length + 1] != kSeparator) continue;
    const std::string_view language = line.substr(1, length);
    return language.find(kSeparator) == language.npos ? language : std::string_view();
  }
  return {};
}

// What a PPD says of its languages, and its lines that are in one.
struct Spoken {
  std::set<std::string, std::less<>> inLines;
  std::set<std::string, std::less<>> listed;
  std::vector<std::string_view> lines;
};

Spoken languagesOf(std::string_view contents) {
  Spoken spoken;
  forEachPpdLine(contents, [&](std::string_view line, std::string_view) {
    if (const auto language = languageOfLine(line); !language.empty()) {
      if (!spoken.inLines.contains(language)) spoken.inLines.emplace(language);
      spoken.lines.push_back(line);
    }
    if (!line.starts_with(kLanguages)) return;
    std::string names(line.substr(kLanguages.size()));
    std::ranges::replace(names, '"', ' ');
    std::istringstream words(names);
    for (std::string name; words >> name;) spoken.listed.insert(name);
  });
  return spoken;
}

// The languages as PPDs name them.
Languages namesInPpds(const Languages& languages) {
  Languages names;
  for (const std::string& language : languages) {
    names.push_back(language);
    for (const Alias& alias : kAliases) {
      if (alias.language == language) names.emplace_back(alias.inPpds);
    }
  }
  return names;
}

std::string_view withoutTerritory(std::string_view language) {
  return language.substr(0, language.find_first_of("_-"));
}

// The first of the languages that the PPD speaks, then the more general forms of it.
Languages chosen(const Languages& languages, const Spoken& spoken) {
  const auto first = std::ranges::find_if(languages, [&](const std::string& language) {
    return spoken.inLines.contains(language) || spoken.listed.contains(language);
  });
  Languages same;
  std::copy_if(first, languages.end(), std::back_inserter(same), [&](const std::string& language) {
    return withoutTerritory(language) == withoutTerritory(*first) &&
           spoken.inLines.contains(language);
  });
  return same;
}

// Null when no kept language has a text for it.
const char* keptText(ppd_file_t& ppd, const Languages& kept, std::string_view of,
                     const char* name) {
  for (const std::string& language : kept) {
    const std::string keyword = language + kKeptSeparator + std::string(of);
    const ppd_attr_t* attribute = ppdFindAttr(&ppd, keyword.c_str(), name);
    if (attribute && attribute->text[0]) return attribute->text;
  }
  return nullptr;
}

// A text that is longer than the record's place is cut, be it within a character: readers of the
// records expect that of libcups, too.
template <std::size_t Size>
void replace(char (&text)[Size], const char* kept) {
  if (!kept) return;
  text[std::string_view(kept).copy(text, Size - 1)] = '\0';
}

void putTextsOf(ppd_file_t& ppd, std::span<ppd_group_t> groups, const Languages& kept) {
  for (ppd_group_t& group : groups) {
    replace(group.text, keptText(ppd, kept, kTranslation, group.name));
    for (ppd_option_t& option : optionsOf(group)) {
      replace(option.text, keptText(ppd, kept, kTranslation, option.keyword));
      for (ppd_choice_t& choice : choicesOf(option)) {
        replace(choice.text, keptText(ppd, kept, option.keyword, choice.choice));
      }
    }
    putTextsOf(ppd, subgroupsOf(group), kept);
  }
}

}  // namespace

Languages keepTexts(std::string& contents, const Languages& languages) {
  const Spoken spoken = languagesOf(contents);
  if (spoken.inLines.empty()) return {};
  const Languages kept = chosen(namesInPpds(languages), spoken);
  // Nothing becomes longer, so that it can be done in place.
  char* end = contents.data();
  const char* taken = end;  // up to where the contents are taken over
  const auto takeUpTo = [&](const char* stop) {
    end = std::copy(std::exchange(taken, stop), stop, end);
  };
  for (const std::string_view line : spoken.lines) {
    const std::string_view language = languageOfLine(line);
    const bool isKept = std::ranges::find(kept, language) != kept.end();
    if (!isKept && !line.ends_with(kNoValue)) continue;
    const char* lineEnd = line.data() + line.size();
    takeUpTo(line.data());
    if (isKept) {
      char* separator = end + 1 + language.size();
      takeUpTo(lineEnd);
      *separator = kKeptSeparator;
    }
    taken = lineEnd;
  }
  takeUpTo(contents.data() + contents.size());
  contents.resize(static_cast<std::size_t>(end - contents.data()));
  return kept;
}

void putTexts(ppd_file_t& ppd, const Languages& kept) {
  if (!kept.empty()) putTextsOf(ppd, groupsOf(&ppd), kept);
}

}  // namespace cutline
