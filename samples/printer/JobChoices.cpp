#include "samples/printer/JobChoices.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <memory>

namespace cutline::printer {
namespace {

using Ppd = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

void mark(ppd_file_t* ppd, const std::string& options) {
  cups_option_t* list = nullptr;
  const int count = cupsParseOptions(options.c_str(), 0, &list);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, list);
  cupsFreeOptions(count, list);
}

void addMarked(Choices& choices, const ppd_group_t& group) {
  for (int at = 0; at < group.num_options; ++at) {
    const ppd_option_t& option = group.options[at];
    for (int place = 0; place < option.num_choices; ++place) {
      const ppd_choice_t& choice = option.choices[place];
      if (choice.marked) choices[option.keyword] = choice.choice;
    }
  }
}

}  // namespace

std::optional<Choices> choicesOf(const std::string& ppdPath, const std::string& options) {
  const Ppd ppd(ppdOpenFile(ppdPath.c_str()), &ppdClose);
  if (!ppd) return std::nullopt;
  mark(ppd.get(), options);
  Choices choices;
  for (int at = 0; at < ppd->num_groups; ++at) addMarked(choices, ppd->groups[at]);
  const ppd_attr_t* family = ppdFindAttr(ppd.get(), kFamilyKey, nullptr);
  if (family != nullptr && family->value != nullptr) choices[kFamilyKey] = family->value;
  return choices;
}

}  // namespace cutline::printer
