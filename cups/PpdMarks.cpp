#include "cups/PpdMarks.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "cups/PpdChoice.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

// Marking one of these changes other marks.
constexpr std::array kLinked = std::to_array<const char*>(
    {"AP_D_InputSlot", "InputSlot", "ManualFeed", "PageRegion", "PageSize"});

using Options = std::vector<ppd_option_t*>;
using SomeOptions = std::set<ppd_option_t*>;

bool isSame(const char* a, const char* b) { return strcasecmp(a, b) == 0; }

// Whether it is no choice of an option's, but has the values of a custom one.
bool hasValues(const char* choice) {
  constexpr std::string_view kCustomStart = "Custom.";
  return choice[0] == '{' || strncasecmp(choice, kCustomStart.data(), kCustomStart.size()) == 0;
}

bool isMarked(const ppd_choice_t& choice) { return choice.marked != 0; }

// Null where the option has no such choice.
ppd_choice_t* choiceOf(const ppd_option_t& option, const char* name) {
  const auto choices = choicesOf(option);
  const auto found = std::ranges::find_if(
      choices, [name](const ppd_choice_t& each) { return isSame(each.choice, name); });
  return found == choices.end() ? nullptr : &*found;
}

// Of options with the same name, only libcups knows which it marks. They are next to each other in
// its list.
void addNamesakes(SomeOptions& special, const Options& sorted) {
  for (std::size_t i = 1; i < sorted.size(); ++i)
    if (isSame(sorted[i - 1]->keyword, sorted[i]->keyword))
      special.insert({sorted[i - 1], sorted[i]});
}

// Those of which a mark may be more than one choice instead of another.
SomeOptions specialOnes(ppd_file_t* ppd, const Options& sorted) {
  SomeOptions special;
  for (const char* keyword : kLinked) special.insert(ppdFindOption(ppd, keyword));
  for (ppd_option_t* option : sorted)
    if (option->ui == PPD_UI_PICKMANY || hasValues(option->defchoice)) special.insert(option);
  addNamesakes(special, sorted);
  return special;
}

// Most PPDs write all names alike, so they are in that order already.
void sortAsMarks(Options& options) {
  const auto name = [](const ppd_option_t* each) -> std::string_view { return each->keyword; };
  if (!std::ranges::is_sorted(options, {}, name)) std::ranges::sort(options, {}, name);
}

}  // namespace

PpdMarks::PpdMarks(ppd_file_t* ppd) : mPpd(ppd), mNoMarks(cupsArrayDup(ppd->marked)) {
  Options options = elementsOf<ppd_option_t>(ppd->options);
  mSpecial = specialOnes(ppd, options);
  for (const ppd_group_t& group : groupsOf(ppd))
    for (ppd_option_t& option : optionsOf(group))
      if (mSpecial.contains(&option)) mSpecialInOrder.push_back(option);
  std::erase_if(options, [this](ppd_option_t* each) { return mSpecial.contains(each); });
  sortAsMarks(options);
  for (ppd_option_t* each : options) mOrdinary.push_back({each, choiceOf(*each, each->defchoice)});
}

void PpdMarks::markDefaults() {
  markDefaultsOfSpecial();
  for (const Ordinary& each : mOrdinary) markOnly(*each.option, each.byDefault);
  refreshConflicts();
}

void PpdMarks::mark(const std::string& keyword, const std::string& choice) {
  ppd_option_t* option = ppdFindOption(mPpd, keyword.c_str());
  if (!option || mSpecial.contains(option) || hasValues(choice.c_str())) {
    ppdMarkOption(mPpd, keyword.c_str(), choice.c_str());
    return;
  }
  ppd_choice_t* wanted = choiceOf(*option, choice.c_str());
  if (wanted && markOnly(*option, wanted)) refreshConflicts();
}

bool PpdMarks::markOnly(ppd_option_t& option, ppd_choice_t* choice) {
  const auto isRight = [choice](const ppd_choice_t& each) {
    return (each.marked != 0) == (&each == choice);
  };
  const auto choices = choicesOf(option);
  if (std::ranges::all_of(choices, isRight)) return false;
  if (std::ranges::any_of(choices, isMarked)) unmark(mPpd, option);
  if (!choice) return true;
  choice->marked = 1;
  cupsArrayAdd(mPpd->marked, choice);
  return true;
}

// libcups is shown these options alone, and an empty list of marks: of names and defaults, it finds
// the options themselves.
void PpdMarks::markDefaultsOfSpecial() {
  for (ppd_option_t* option : mSpecial)
    if (option) unmark(mPpd, *option);
  ppd_group_t group{};
  group.options = mSpecialInOrder.data();
  group.num_options = static_cast<int>(mSpecialInOrder.size());
  ppd_group_t* const groups = std::exchange(mPpd->groups, &group);
  const int count = std::exchange(mPpd->num_groups, 1);
  cups_array_t* const marks = std::exchange(mPpd->marked, mNoMarks.get());
  ppdMarkDefaults(mPpd);
  mPpd->groups = groups;
  mPpd->num_groups = count;
  mPpd->marked = marks;
  for (ppd_choice_t* choice : elementsOf<ppd_choice_t>(mNoMarks.get())) cupsArrayAdd(marks, choice);
  cupsArrayClear(mNoMarks.get());
}

// libcups keeps of each option whether it is in conflict. It reads the constraints when it is first
// asked.
void PpdMarks::refreshConflicts() {
  const bool hasNone = mPpd->cups_uiconstraints && cupsArrayCount(mPpd->cups_uiconstraints) == 0;
  if (!hasNone) ppdConflicts(mPpd);
}

}  // namespace cutline
