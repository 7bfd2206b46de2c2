// Walks over the records of an open PPD. Works around libcups 2.4.2: ppdFirstOption and
// ppdNextOption share a cursor with ppdFindOption, so that a walk with a search in it may never
// end; the records are walked directly.
#pragma once

#include <cups/ppd.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace cutline {

inline constexpr std::size_t kLongestPpdName = PPD_MAX_NAME - 1;
inline constexpr const char* kPageSizeKeyword = "PageSize";
inline constexpr const char* kCustomChoice = "Custom";

std::span<ppd_group_t> groupsOf(const ppd_file_t* ppd);
std::span<ppd_group_t> subgroupsOf(const ppd_group_t& group);
std::span<ppd_option_t> optionsOf(const ppd_group_t& group);
std::span<ppd_choice_t> choicesOf(const ppd_option_t& option);
std::span<ppd_size_t> sizesOf(const ppd_file_t* ppd);

// The parts that a printer may have or lack, which are no settings of a job.
bool isInstallable(const ppd_group_t& group);
bool isInstallable(const ppd_file_t* ppd, const ppd_option_t& option);
// The size that measures alone make.
bool isCustom(const ppd_size_t& size);
// Null when no size is marked.
const ppd_size_t* markedSize(const ppd_file_t* ppd);

// A text for people, or the keyword where there is none. libcups 2.4.2 cuts a text at its buffer's
// end, be it in the middle of a character: such an end is left out.
std::string textOr(const char* text, const char* keyword);

// Calls function(group) for each group and subgroup, installable options left out.
template <typename Function>
void forEachGroup(std::span<ppd_group_t> groups, const Function& function) {
  for (const ppd_group_t& group : groups) {
    if (isInstallable(group)) continue;
    function(group);
    forEachGroup(subgroupsOf(group), function);
  }
}

// Calls function(option) for each option of those groups.
template <typename Function>
void forEachOption(const ppd_file_t* ppd, const Function& function) {
  forEachGroup(groupsOf(ppd), [&](const ppd_group_t& group) {
    for (const ppd_option_t& option : optionsOf(group)) function(option);
  });
}

// The elements of a list of libcups' in its order.
template <typename Element>
std::vector<Element*> elementsOf(cups_array_t* list) {
  std::vector<Element*> elements;
  elements.reserve(static_cast<std::size_t>(cupsArrayCount(list)));
  for (int i = 0; i < cupsArrayCount(list); ++i)
    elements.push_back(static_cast<Element*>(cupsArrayIndex(list, i)));
  return elements;
}

// Gives the list these elements instead of those that it has. No where there is no memory.
template <typename Element>
bool refill(cups_array_t* list, const std::vector<Element*>& elements) {
  cupsArrayClear(list);
  for (Element* element : elements)
    if (cupsArrayAdd(list, element) == 0) return false;
  return true;
}

}  // namespace cutline
