#include "cups/PpdRecords.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <string_view>

#include "base/Utf8.h"

namespace cutline {

namespace {

// A damaged PPD may have a count without records.
template <typename Record>
std::span<Record> records(Record* first, int count) {
  return {first, first ? static_cast<std::size_t>(count) : 0};
}

}  // namespace

std::span<ppd_group_t> groupsOf(const ppd_file_t* ppd) {
  return records(ppd->groups, ppd->num_groups);
}

std::span<ppd_group_t> subgroupsOf(const ppd_group_t& group) {
  return records(group.subgroups, group.num_subgroups);
}

std::span<ppd_option_t> optionsOf(const ppd_group_t& group) {
  return records(group.options, group.num_options);
}

std::span<ppd_choice_t> choicesOf(const ppd_option_t& option) {
  return records(option.choices, option.num_choices);
}

std::span<ppd_size_t> sizesOf(const ppd_file_t* ppd) { return records(ppd->sizes, ppd->num_sizes); }

bool isInstallable(const ppd_group_t& group) {
  return std::strcmp(group.name, "InstallableOptions") == 0;
}

bool isInstallable(const ppd_file_t* ppd, const ppd_option_t& option) {
  return std::ranges::any_of(groupsOf(ppd), [&option](const ppd_group_t& group) {
    const auto options = optionsOf(group);
    const std::less<> less;
    return isInstallable(group) && !options.empty() && !less(&option, &options.front()) &&
           !less(&options.back(), &option);
  });
}

bool isCustom(const ppd_size_t& size) { return std::strcmp(size.name, kCustomChoice) == 0; }

const ppd_size_t* markedSize(const ppd_file_t* ppd) {
  const auto sizes = sizesOf(ppd);
  const auto marked =
      std::ranges::find_if(sizes, [](const ppd_size_t& size) { return size.marked != 0; });
  return marked == sizes.end() ? nullptr : &*marked;
}

std::string textOr(const char* text, const char* keyword) {
  const std::string_view whole = withoutCutCharacter(text);
  return std::string(whole.empty() ? keyword : whole);
}

}  // namespace cutline
