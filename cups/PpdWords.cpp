#include "cups/PpdWords.h"

#include <algorithm>

#include "base/CharacterSet.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

constexpr std::string_view kDefault = "Default";

char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr CharacterSet kInWords = CharacterSet::of([](char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '.' || c == '-' || c == '+';
});
constexpr CharacterSet kInTranslations(".-");

}  // namespace

bool isPpdWord(std::string_view text) {
  return !text.empty() && text.size() <= kLongestPpdName && kInWords.hasAll(text);
}

bool isSameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::ranges::equal(a, b, {}, small, small);
}

bool isDefault(std::string_view keyword) {
  return isSameName(keyword.substr(0, kDefault.size()), kDefault);
}

std::string_view withoutDefault(std::string_view keyword) {
  return isDefault(keyword) ? keyword.substr(kDefault.size()) : keyword;
}

bool isTranslation(std::string_view keyword) {
  return kInTranslations.firstIn(keyword) < keyword.size() && !isDefault(keyword);
}

}  // namespace cutline
