#include "cups/Constraints.h"

#include <cups/ppd.h>
#include <strings.h>

#include <algorithm>
#include <array>
#include <sstream>

namespace cutline {

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

std::vector<Constraint> constraintsOf(const ppd_file_t* ppd) {
  std::vector<Constraint> constraints;
  for (int i = 0; ppd->consts && i < ppd->num_consts; ++i) {
    const ppd_const_t& record = ppd->consts[i];
    constraints.push_back(
        {termOf(record.option1, record.choice1), termOf(record.option2, record.choice2)});
  }
  for (int i = 0; ppd->attrs && i < ppd->num_attrs; ++i) {
    const ppd_attr_t* attribute = ppd->attrs[i];
    const bool isConstraint = std::string_view(attribute->name) == "cupsUIConstraints";
    if (isConstraint && attribute->value) constraints.push_back(parsed(attribute->value));
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

void addOnce(std::vector<Conflict>& conflicts, const Term& one, const Term& other) {
  const Conflict conflict{one.keyword, one.choice, other.keyword, other.choice};
  const Conflict mirrored{other.keyword, other.choice, one.keyword, one.choice};
  const bool isKnown = std::ranges::any_of(
      conflicts, [&](const Conflict& c) { return c == conflict || c == mirrored; });
  if (!isKnown) conflicts.push_back(conflict);
}

}  // namespace

// Works around libcups 2.4.2: cupsGetConflicts reports every broken constraint of the PPD for
// whichever option it is asked about, so the records are read here.
std::vector<Conflict> brokenConstraints(ppd_file_s* ppd) {
  std::vector<Conflict> conflicts;
  for (Constraint& terms : constraintsOf(ppd)) {
    const auto holdsNow = [&](Term& term) { return holds(ppd, term); };
    if (terms.size() < 2 || !std::ranges::all_of(terms, holdsNow)) continue;
    for (std::size_t i = 1; i < terms.size(); ++i) addOnce(conflicts, terms.front(), terms[i]);
  }
  return conflicts;
}

}  // namespace cutline
