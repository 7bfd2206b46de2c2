#include "cups/PpdPlainOptions.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>

#include "cups/PpdRecords.h"

namespace cutline {

namespace {

constexpr std::string_view kDefault = "Default";
constexpr std::string_view kOpening = "OpenUI";
constexpr std::string_view kJclOpening = "JCLOpenUI";
constexpr std::string_view kClosing = "CloseUI";

// What says where options and groups begin and end: in the block of an option that is called so,
// its choices do, too.
constexpr std::array kStructure =
    std::to_array<std::string_view>({kOpening, kJclOpening, kClosing, "JCLCloseUI", "OpenGroup",
                                     "CloseGroup", "OpenSubGroup", "CloseSubGroup"});
// Their defaults mean more than a choice of the option.
constexpr std::array kSpecialDefaults =
    std::to_array<std::string_view>({"ColorSpace", "PageSize", "PageRegion"});

bool contains(const auto& table, std::string_view word) {
  return std::ranges::find(table, word) != table.end();
}

// libcups finds options and attributes in whichever letters they are written, and in every locale.
char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isSameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, small, small);
}
std::string inSmallLetters(std::string_view name) {
  std::string text(name);
  std::ranges::transform(text, text.begin(), small);
  return text;
}
// How often the PPD speaks of each option, in small letters, outside of plain blocks, and each such
// block once. No PPD can make it slow, as it could a table of hashes.
using Mentions = std::map<std::string, int>;

bool isWordCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '.' || c == '-' || c == '+';
}

bool isWord(std::string_view text) {
  return !text.empty() && text.size() <= kLongestPpdName &&
         std::ranges::all_of(text, isWordCharacter);
}

bool isDefault(std::string_view keyword) {
  return isSameName(keyword.substr(0, kDefault.size()), kDefault);
}

std::string_view withoutDefault(std::string_view keyword) {
  return isDefault(keyword) ? keyword.substr(kDefault.size()) : keyword;
}

// "Duplex" of `*OpenUI *Duplex/Two sides: PickOne`.
std::string_view openedBy(const PpdStatement& statement) {
  std::string_view name = nameOf(statement);
  name = name.substr(0, name.find('/'));
  return name.starts_with('*') ? name.substr(1) : name;
}

// Which option a statement outside of plain blocks speaks of.
std::string_view mentionedBy(const PpdStatement& statement) {
  const bool opens = statement.keyword == kOpening || statement.keyword == kJclOpening;
  return opens ? openedBy(statement) : withoutDefault(statement.keyword);
}

bool isTranslation(std::string_view keyword) {
  return keyword.find_first_of(".-") != keyword.npos && !isDefault(keyword);
}

// Whether the statement may stand within the block of a plain option.
bool belongsTo(std::string_view option, std::string_view keyword) {
  return keyword.empty() || withoutDefault(keyword) == option || keyword == "OrderDependency" ||
         isTranslation(keyword);
}

bool isPlainDefault(std::string_view option, const PpdStatement& statement) {
  return statement.keyword.starts_with(kDefault) && statement.keyword.size() <= kLongestPpdName &&
         nameOf(statement).empty() && isWord(valueOf(statement)) &&
         !contains(kSpecialDefaults, option);
}

void takeDefault(PlainOption& option, const std::vector<PpdStatement>& statements) {
  std::size_t found = 0;
  for (std::size_t at = option.first + 1; at < option.last; ++at) {
    if (!isDefault(statements[at].keyword)) continue;
    ++found;
    option.defaultAt = at;
  }
  if (found != 1 || !isPlainDefault(option.keyword, statements[option.defaultAt])) {
    option.defaultAt = kNoStatement;
  } else {
    option.defaultChoice = valueOf(statements[option.defaultAt]);
  }
}

// Nothing where the statement opens no option, or one whose block has more in it.
std::optional<PlainOption> optionAt(const std::vector<PpdStatement>& statements, std::size_t at) {
  if (statements[at].keyword != kOpening) return std::nullopt;
  PlainOption option{openedBy(statements[at]), at, at + 1, kNoStatement, {}};
  if (!isWord(option.keyword) || contains(kStructure, option.keyword)) return std::nullopt;
  while (option.last < statements.size() &&
         belongsTo(option.keyword, statements[option.last].keyword))
    ++option.last;
  if (option.last == statements.size() || statements[option.last].keyword != kClosing)
    return std::nullopt;
  takeDefault(option, statements);
  return option;
}

}  // namespace

std::vector<PlainOption> plainOptions(const std::vector<PpdStatement>& statements) {
  std::vector<PlainOption> options;
  Mentions mentions;
  for (std::size_t at = 0; at < statements.size(); ++at) {
    const auto option = optionAt(statements, at);
    ++mentions[inSmallLetters(option ? option->keyword : mentionedBy(statements[at]))];
    if (!option) continue;
    at = option->last;
    options.push_back(*option);
  }
  std::erase_if(options,
                [&](const PlainOption& o) { return mentions[inSmallLetters(o.keyword)] > 1; });
  return options;
}

}  // namespace cutline
