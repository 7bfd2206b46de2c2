#include "host/core/CutWordsText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/Numbers.h"
#include "base/Result.h"

namespace cutline {

namespace {

// More help nobody, and hide what is wrong first.
constexpr std::size_t kMostProblems = 20;
constexpr double kLongestTape = 10'000;  // millimetres
constexpr unsigned kMostLabels = 1'000'000;
constexpr std::string_view kBlanks = " \t\r";

using Tokens = std::vector<std::string_view>;

// In the order of CutPlace.
constexpr std::array<std::string_view, 7> kPlaceNames = {"never",    "label", "page",   "copy",
                                                         "document", "job",   "printer"};

struct FlagName {
  std::string_view name;
  bool CutSettings::*flag;
};
constexpr std::array<FlagName, 7> kFlags = {{{"rest", &CutSettings::cutsRest},
                                             {"half", &CutSettings::halfCuts},
                                             {"chain", &CutSettings::chains},
                                             {"special", &CutSettings::isSpecialTape},
                                             {"marks", &CutSettings::printsCutMarks},
                                             {"no-blank", &CutSettings::removesBlankSpace},
                                             {"mirror", &CutSettings::mirrors}}};
struct LengthName {
  std::string_view name;
  std::optional<double> CutSettings::*length;
};
constexpr std::array<LengthName, 2> kLengths = {
    {{"leader", &CutSettings::leader}, {"feed", &CutSettings::feed}}};

// Up to a "#" at a word's beginning.
Tokens tokensOf(std::string_view line) {
  Tokens tokens;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty() || line.front() == '#') return tokens;
    const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
    tokens.push_back(line.substr(0, end));
    line.remove_prefix(end);
  }
}

// Before and behind the first "="; nothing where one of the two is missing.
std::optional<std::pair<std::string_view, std::string_view>> splitOf(std::string_view token) {
  const std::size_t at = token.find('=');
  if (at == 0 || at == std::string_view::npos || at + 1 == token.size()) return std::nullopt;
  return std::pair{token.substr(0, at), token.substr(at + 1)};
}

std::optional<CutEffect> placeOf(std::string_view value) {
  const auto found = std::ranges::find(kPlaceNames, value);
  if (found == kPlaceNames.end()) return std::nullopt;
  return static_cast<CutPlace>(found - kPlaceNames.begin());
}

std::optional<CutEffect> everyOf(std::string_view value) {
  if (value == kAnyNumber) return EveryEffect{};
  const std::optional<unsigned> labels = numberIn<unsigned>(value);
  if (!labels || *labels == 0 || *labels > kMostLabels) return std::nullopt;
  return EveryEffect{*labels};
}

std::optional<CutEffect> lengthOf(const LengthName& row, std::string_view value) {
  const std::optional<double> length = takeNumber(value);
  if (!length || !value.empty() || !(*length >= 0 && *length <= kLongestTape)) return std::nullopt;
  return LengthEffect{row.length, *length};
}

std::optional<CutEffect> effectOf(std::string_view token) {
  const auto parts = splitOf(token);
  if (!parts) return std::nullopt;
  const auto& [name, value] = *parts;
  if (name == "cut") return placeOf(value);
  if (name == "every") return everyOf(value);
  for (const FlagName& row : kFlags)
    if (row.name == name && (value == "on" || value == "off"))
      return FlagEffect{row.flag, value == "on"};
  for (const LengthName& row : kLengths)
    if (row.name == name) return lengthOf(row, value);
  return std::nullopt;
}

// Where it is cut comes first, since it starts the counting anew.
void addEffect(CutWord& word, const CutEffect& effect) {
  const bool isPlace = std::holds_alternative<CutPlace>(effect);
  word.effects.insert(isPlace ? word.effects.begin() : word.effects.end(), effect);
}

// "if OPTION=CHOICE" or "with FILTER".
bool takeCondition(CutWord& word, std::string_view kind, std::string_view value) {
  if (kind == "with") {
    word.filter = value;
    return true;
  }
  const auto parts = splitOf(value);
  if (!parts) return false;
  word.otherOption = parts->first;
  word.otherChoice = parts->second;
  return true;
}

bool isCondition(std::string_view token) { return token == "if" || token == "with"; }

// Takes what stands behind option and choice; answers the first word that means nothing there.
std::optional<std::string_view> takeRest(CutWord& word, const Tokens& tokens) {
  std::size_t at = 2;
  for (; at < tokens.size() && !isCondition(tokens[at]); ++at) {
    const std::optional<CutEffect> effect = effectOf(tokens[at]);
    if (!effect) return tokens[at];
    addEffect(word, *effect);
  }
  for (; at < tokens.size(); at += 2) {
    if (!isCondition(tokens[at]) || at + 1 == tokens.size()) return tokens[at];
    if (!takeCondition(word, tokens[at], tokens[at + 1])) return tokens[at + 1];
  }
  return std::nullopt;
}

// Nothing for a line without words.
Result<std::optional<CutWord>> wordOf(std::string_view line, const Sentence& place) {
  const Tokens tokens = tokensOf(line);
  if (tokens.empty()) return std::optional<CutWord>();
  CutWord word;
  const std::optional<std::string_view> odd = takeRest(word, tokens);
  if (odd)
    return Error{Sentence(Phrase("host", "%1 is left out: \"%2\" means nothing there"),
                          {place, std::string(*odd)})};
  if (word.effects.empty())
    return Error{Sentence(
        Phrase("host", "%1 is left out: it needs an option, a choice, and what comes of it"),
        {place})};
  word.option = tokens[0];
  word.choice = tokens[1];
  return std::optional<CutWord>(std::move(word));
}

}  // namespace

CutWordsText cutWordsIn(std::string_view text, const std::string& name) {
  CutWordsText all;
  for (unsigned number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const Sentence place(Phrase("host", "\"%1\", line %2,"), {name, std::to_string(number)});
    Result<std::optional<CutWord>> word = wordOf(text.substr(0, end), place);
    if (!word && all.problems.size() < kMostProblems) all.problems.push_back(word.error().sentence);
    if (word && *word) all.words.push_back(std::move(**word));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return all;
}

}  // namespace cutline
