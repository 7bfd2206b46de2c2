#include "cups/PpdProblems.h"

#include <cups/ppd.h>
#include <strings.h>

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <sstream>
#include <utility>

#include "cups/PpdRecords.h"

namespace cutline {

namespace {

// Works around libcups 2.4.2: it refuses the whole PPD for a name longer than kLongestPpdName, and
// the line that ppdLastError tells is often another one, so the name is looked for here.
struct LongName {
  int line = 0;
  std::string_view name;  // empty: every name fits
};

// *MAIN OPTION/TEXT: VALUE - the longer one of the two names that is too long, or nothing.
std::string_view longNameIn(std::string_view line) {
  if (!line.starts_with('*') || line.starts_with("*%")) return {};
  line.remove_prefix(1);
  const auto mainEnd = std::min(line.find_first_of(" \t:"), line.size());
  if (mainEnd > kLongestPpdName) return line.substr(0, mainEnd);
  line.remove_prefix(mainEnd);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  const auto optionEnd = std::min(line.find_first_of(":/\r\n"), line.size());
  return optionEnd > kLongestPpdName ? line.substr(0, optionEnd) : std::string_view{};
}

LongName findLongName(std::string_view text) {
  for (int number = 1; !text.empty(); ++number) {
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    if (const auto name = longNameIn(text.substr(0, end)); !name.empty()) return {number, name};
    const bool isPair = text.substr(end).starts_with("\r\n");
    text.remove_prefix(std::min(end + (isPair ? 2 : 1), text.size()));
  }
  return {};
}

Error unusable(const Sentence& name, int line, Sentence why) {
  if (line <= 0) return Sentence(Phrase("cups", "cannot use %1: %2"), {name, std::move(why)});
  return Sentence(Phrase("cups", "cannot use %1: line %2: %3"),
                  {name, std::to_string(line), std::move(why)});
}

}  // namespace

Error ppdProblem(const Sentence& name, std::string_view text) {
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  if (const LongName tooLong = findLongName(text); !tooLong.name.empty()) {
    return unusable(
        name, tooLong.line,
        {Phrase("cups", "the name \"%1\" has %2 bytes, and a PPD's names have at most %3"),
         {std::string(tooLong.name), std::to_string(tooLong.name.size()),
          std::to_string(kLongestPpdName)}});
  }
  return unusable(name, line, std::string(ppdErrorString(status)));
}

namespace {

// One side of a constraint; without a choice it means every choice that is not "off".
struct Term {
  std::string keyword;
  std::string choice;
};
using Constraint = std::vector<Term>;

bool isSame(const std::string& a, const char* b) { return strcasecmp(a.c_str(), b) == 0; }

bool isOff(const std::string& choice) {
  constexpr std::array kOffs{"None", "Off", "False"};
  return std::ranges::any_of(kOffs, [&](const char* off) { return isSame(choice, off); });
}

// "*CustomPageSize True" is how a constraint names the custom choice of the page size.
Term termOf(const std::string& keyword, const std::string& choice) {
  constexpr std::string_view kCustom = "Custom";
  const bool isCustom = keyword.starts_with(kCustom) && isSame(choice, "True");
  return isCustom ? Term{keyword.substr(kCustom.size()), std::string(kCustom)}
                  : Term{keyword, choice};
}

// *KEYWORD [CHOICE] *KEYWORD [CHOICE] ...
Constraint parsed(const char* text) {
  Constraint terms;
  std::istringstream words(text);
  for (std::string word, keyword; words >> word;) {
    if (word.starts_with('*')) {
      keyword = word.substr(1);
      terms.push_back({keyword, ""});
    } else if (!terms.empty()) {
      terms.back() = termOf(keyword, word);
    }
  }
  return terms;
}

bool isConstraint(const ppd_attr_t* attribute) {
  return std::string_view(attribute->name) == "cupsUIConstraints" && attribute->value;
}

std::vector<Constraint> constraintsOf(const ppd_file_t* ppd) {
  std::vector<Constraint> constraints;
  for (int i = 0; ppd->consts && i < ppd->num_consts; ++i) {
    const ppd_const_t& record = ppd->consts[i];
    constraints.push_back(
        {termOf(record.option1, record.choice1), termOf(record.option2, record.choice2)});
  }
  for (int i = 0; ppd->attrs && i < ppd->num_attrs; ++i) {
    const ppd_attr_t* attribute = ppd->attrs[i];
    if (isConstraint(attribute)) constraints.push_back(parsed(attribute->value));
  }
  return constraints;
}

// Puts the marked choice in where the term has none; false where the term does not hold.
bool holds(ppd_file_t* ppd, Term& term) {
  const ppd_choice_t* marked = ppdFindMarkedChoice(ppd, term.keyword.c_str());
  if (!marked) return false;
  if (!term.choice.empty()) return isSame(term.choice, marked->choice);
  term.choice = marked->choice;
  return !isOff(term.choice);
}

// The pairs that were found, each once, whichever of the two came first.
class Conflicts {
 public:
  void add(const Term& one, const Term& other) {
    Side first(one.keyword, one.choice), second(other.keyword, other.choice);
    if (second < first) std::swap(first, second);
    if (mKnown.emplace(std::move(first), std::move(second)).second)
      mList.push_back({one.keyword, one.choice, other.keyword, other.choice});
  }
  std::vector<Conflict> take() { return std::move(mList); }

 private:
  using Side = std::pair<std::string, std::string>;
  std::set<std::pair<Side, Side>> mKnown;
  std::vector<Conflict> mList;
};

}  // namespace

// Works around libcups 2.4.2: cupsGetConflicts reports every broken constraint of the PPD for
// whichever option it is asked about, so the records are read here.
std::vector<Conflict> brokenConstraints(ppd_file_s* ppd) {
  Conflicts conflicts;
  for (Constraint& terms : constraintsOf(ppd)) {
    const auto holdsNow = [&](Term& term) { return holds(ppd, term); };
    if (terms.size() < 2 || !std::ranges::all_of(terms, holdsNow)) continue;
    for (std::size_t i = 1; i < terms.size(); ++i) conflicts.add(terms.front(), terms[i]);
  }
  return conflicts.take();
}

std::size_t constraintCount(const ppd_file_s* ppd) {
  const auto records = static_cast<std::size_t>(ppd->consts ? ppd->num_consts : 0);
  const std::span attributes(ppd->attrs, static_cast<std::size_t>(ppd->attrs ? ppd->num_attrs : 0));
  return records + static_cast<std::size_t>(std::ranges::count_if(attributes, isConstraint));
}

}  // namespace cutline
