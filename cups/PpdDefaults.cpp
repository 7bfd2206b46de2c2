#include "cups/PpdDefaults.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "cups/PpdRecords.h"

namespace cutline {

namespace {

using Options = std::vector<ppd_option_t*>;
using SomeOptions = std::set<const ppd_option_t*>;

// Marking one of these changes other marks.
constexpr std::array kLinked = std::to_array<const char*>(
    {"AP_D_InputSlot", "InputSlot", "ManualFeed", "PageRegion", "PageSize"});

bool isSame(const char* a, const char* b) { return strcasecmp(a, b) == 0; }

// A default that is no choice of the option's, but has the values of a custom one.
bool hasValuesByDefault(const ppd_option_t& option) {
  constexpr std::string_view kCustomStart = "Custom.";
  return option.defchoice[0] == '{' ||
         strncasecmp(option.defchoice, kCustomStart.data(), kCustomStart.size()) == 0;
}

// Of options with the same name, only libcups knows which it marks. They are next to each other in
// its list.
void addNamesakes(SomeOptions& special, const Options& sorted) {
  for (std::size_t i = 1; i < sorted.size(); ++i)
    if (isSame(sorted[i - 1]->keyword, sorted[i]->keyword))
      special.insert({sorted[i - 1], sorted[i]});
}

// Those whose default choice takes more than its own mark.
SomeOptions specialOnes(ppd_file_t* ppd, const Options& sorted) {
  SomeOptions special;
  for (const char* keyword : kLinked) special.insert(ppdFindOption(ppd, keyword));
  for (const ppd_option_t* option : sorted)
    if (hasValuesByDefault(*option)) special.insert(option);
  addNamesakes(special, sorted);
  return special;
}

void unmarkAll(ppd_file_t* ppd) {
  for (ppd_choice_t* choice : elementsOf<ppd_choice_t>(ppd->marked)) choice->marked = '\0';
  cupsArrayClear(ppd->marked);
}

void markDefaultOf(ppd_file_t* ppd, const ppd_option_t& option) {
  const auto choices = choicesOf(option);
  const auto choice = std::ranges::find_if(choices, [&option](const ppd_choice_t& each) {
    return isSame(each.choice, option.defchoice);
  });
  if (choice == choices.end()) return;
  choice->marked = 1;
  cupsArrayAdd(ppd->marked, &*choice);
}

// Has libcups mark the defaults of these options alone.
class MarkingApart {
 public:
  void add(const ppd_option_t& option) { mOptions.push_back(option); }

  void mark(ppd_file_t* ppd) {
    ppd_group_t group{};
    group.options = mOptions.data();
    group.num_options = static_cast<int>(mOptions.size());
    ppd_group_t* const groups = std::exchange(ppd->groups, &group);
    const int count = std::exchange(ppd->num_groups, 1);
    ppdMarkDefaults(ppd);
    ppd->groups = groups;
    ppd->num_groups = count;
  }

 private:
  std::vector<ppd_option_t> mOptions;  // of their names and defaults, it finds the options
};

// In the order of the marks, so that none has to move for another. Most PPDs write all names alike,
// so they have it already.
void markDefaultsOf(ppd_file_t* ppd, Options options) {
  const auto name = [](const ppd_option_t* each) -> std::string_view { return each->keyword; };
  if (!std::ranges::is_sorted(options, {}, name)) std::ranges::sort(options, {}, name);
  for (const ppd_option_t* each : options) markDefaultOf(ppd, *each);
}

}  // namespace

void markDefaults(ppd_file_t* ppd, std::size_t fewOptions) {
  unmarkAll(ppd);
  Options options = elementsOf<ppd_option_t>(ppd->options);
  if (options.size() <= fewOptions) return ppdMarkDefaults(ppd);
  const SomeOptions special = specialOnes(ppd, options);
  MarkingApart apart;
  for (const ppd_group_t& group : groupsOf(ppd))
    for (const ppd_option_t& option : optionsOf(group))
      if (special.contains(&option)) apart.add(option);
  apart.mark(ppd);
  std::erase_if(options, [&](const ppd_option_t* option) { return special.contains(option); });
  markDefaultsOf(ppd, std::move(options));
  ppdConflicts(ppd);
}

}  // namespace cutline
