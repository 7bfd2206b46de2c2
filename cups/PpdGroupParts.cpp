#include "cups/PpdGroupParts.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>

#include "cups/EasedPpd.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

struct FreeOptions {
  void operator()(ppd_option_t* options) const noexcept { std::free(options); }
};
// libcups frees them, too, once they are a group's.
using Options = std::unique_ptr<ppd_option_t, FreeOptions>;

using Groups = std::map<std::string_view, ppd_group_t*>;
// A group's parts in their order, the group itself before them.
using Parted = std::map<ppd_group_t*, std::vector<ppd_group_t*>>;

// Options that have a new place; those at the old one stay until they are all known.
class MovedOptions {
 public:
  void add(Options before, std::span<ppd_option_t> now) {
    mNow.emplace(before.get(), now);
    mBefore.push_back(std::move(before));
  }
  ppd_option_t* now(ppd_option_t* option) const {
    const auto next = mNow.upper_bound(option);
    if (next == mNow.begin()) return option;
    const auto& [first, moved] = *std::prev(next);
    if (!std::less<>()(option, first + moved.size())) return option;
    return &moved[static_cast<std::size_t>(option - first)];
  }

 private:
  std::map<ppd_option_t*, std::span<ppd_option_t>> mNow;
  std::vector<Options> mBefore;
};

Groups groupsByName(const ppd_file_t& ppd) {
  Groups groups;
  for (ppd_group_t& group : groupsOf(&ppd)) groups.emplace(group.name, &group);
  return groups;
}

// Fewer than there are parts where one of the groups is missing.
Parted partedGroups(const ppd_file_t& ppd, const std::vector<std::string_view>& parts) {
  const Groups groups = groupsByName(ppd);
  Parted parted;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const auto whole = groups.find(parts[i]), part = groups.find(partName(i));
    if (whole == groups.end() || part == groups.end()) return {};
    auto& together = parted[whole->second];
    if (together.empty()) together.push_back(whole->second);
    together.push_back(part->second);
  }
  return parted;
}

int optionsOfAll(const std::vector<ppd_group_t*>& groups) {
  int count = 0;
  for (const ppd_group_t* group : groups) count += group->num_options;
  return count;
}

bool join(const std::vector<ppd_group_t*>& together, MovedOptions& moved) {
  const int count = optionsOfAll(together);
  Options all(static_cast<ppd_option_t*>(
      std::calloc(static_cast<std::size_t>(count), sizeof(ppd_option_t))));
  if (!all) return false;
  ppd_option_t* place = all.get();
  for (ppd_group_t* part : together) {
    const auto options = optionsOf(*part);
    moved.add(Options(std::exchange(part->options, nullptr)), {place, options.size()});
    place = std::ranges::copy(options, place).out;
    part->num_options = 0;
  }
  together.front()->options = all.release();
  together.front()->num_options = count;
  return true;
}

// What points to options shall point to where they are now.
bool follow(ppd_file_t& ppd, const MovedOptions& moved) {
  for (const ppd_group_t& group : groupsOf(&ppd))
    for (ppd_option_t& option : optionsOf(group))
      for (ppd_choice_t& choice : choicesOf(option)) choice.option = &option;
  for (ppd_coption_t* custom : elementsOf<ppd_coption_t>(ppd.coptions))
    custom->option = moved.now(custom->option);
  auto sorted = elementsOf<ppd_option_t>(ppd.options);
  for (ppd_option_t*& option : sorted) option = moved.now(option);
  return refill(ppd.options, sorted);
}

void removeParts(ppd_file_t& ppd) {
  const auto groups = groupsOf(&ppd);
  const auto rest = std::remove_if(groups.begin(), groups.end(),
                                   [](const ppd_group_t& group) { return isPart(group.name); });
  ppd.num_groups = static_cast<int>(rest - groups.begin());
}

}  // namespace

bool joinParts(ppd_file_t& ppd, const std::vector<std::string_view>& parts) {
  if (parts.empty()) return true;
  const Parted parted = partedGroups(ppd, parts);
  if (parted.empty()) return false;
  MovedOptions moved;
  for (const auto& [group, together] : parted)
    if (!join(together, moved)) return false;
  if (!follow(ppd, moved)) return false;
  removeParts(ppd);
  return true;
}

}  // namespace cutline
