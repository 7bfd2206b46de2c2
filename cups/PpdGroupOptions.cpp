#include "cups/PpdGroupOptions.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>

#include "cups/NameOrder.h"
#include "cups/PpdOptionRecords.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

struct FreeOptions {
  void operator()(ppd_option_t* options) const noexcept { std::free(options); }
};
// libcups frees them, too, once they are a group's.
using OptionMemory = std::unique_ptr<ppd_option_t, FreeOptions>;

ppd_group_t* groupNamed(ppd_file_t& ppd, std::string_view name) {
  const auto groups = groupsOf(&ppd);
  const auto found =
      std::ranges::find_if(groups, [name](const ppd_group_t& group) { return group.name == name; });
  return found == groups.end() ? nullptr : &*found;
}

bool comesBefore(const ppd_option_t* a, const ppd_option_t* b) {
  return strcasecmp(a->keyword, b->keyword) < 0;
}

class PuttingBack {
 public:
  explicit PuttingBack(ppd_file_t& ppd) : mPpd(ppd) {}

  bool putBack(std::string_view name, const std::vector<EasedOption>& options) {
    ppd_group_t* group = groupNamed(mPpd, name);
    if (!group) return false;
    OptionMemory all(static_cast<ppd_option_t*>(std::calloc(options.size(), sizeof(ppd_option_t))));
    return all && move(*group, options, all.get()) && replace(*group, std::move(all), options);
  }

  // Once all groups have theirs.
  std::optional<std::vector<ppd_option_t*>> sortIn() {
    for (ppd_coption_t* custom : elementsOf<ppd_coption_t>(mPpd.coptions))
      custom->option = now(custom->option);
    auto sorted = elementsOf<ppd_option_t>(mPpd.options);
    for (ppd_option_t*& option : sorted) option = now(option);
    sortByName(mBack, [](const ppd_option_t* each) { return std::string_view(each->keyword); });
    const auto middle = static_cast<std::ptrdiff_t>(sorted.size());
    std::ranges::copy(mBack, std::back_inserter(sorted));
    std::inplace_merge(sorted.begin(), sorted.begin() + middle, sorted.end(), comesBefore);
    if (!refill(mPpd.options, sorted)) return std::nullopt;
    return std::move(mBack);
  }

 private:
  // Copies the options that the group has to their places. No where it has others.
  bool move(const ppd_group_t& group, const std::vector<EasedOption>& options,
            ppd_option_t* places) {
    auto kept = optionsOf(group).begin();
    const auto end = optionsOf(group).end();
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (options[i].leftOut) continue;
      if (kept == end || kept->keyword != options[i].keyword) return false;
      places[i] = *kept;
      for (ppd_choice_t& choice : choicesOf(places[i])) choice.option = &places[i];
      mNow.emplace(&*kept++, &places[i]);
    }
    return kept == end;
  }

  bool replace(ppd_group_t& group, OptionMemory all, const std::vector<EasedOption>& options) {
    std::free(std::exchange(group.options, all.release()));
    group.num_options = static_cast<int>(options.size());
    mBack.reserve(mBack.size() + options.size());
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (!options[i].leftOut) continue;
      if (!fillOption(group.options[i], *options[i].leftOut)) return false;
      mBack.push_back(&group.options[i]);
    }
    return true;
  }

  // Where an option is that was elsewhere before.
  ppd_option_t* now(ppd_option_t* option) const {
    const auto found = mNow.find(option);
    return found == mNow.end() ? option : found->second;
  }

  ppd_file_t& mPpd;
  std::unordered_map<ppd_option_t*, ppd_option_t*> mNow;
  std::vector<ppd_option_t*> mBack;
};

bool isWhole(const std::vector<EasedOption>& options) {
  return std::ranges::none_of(options,
                              [](const EasedOption& each) { return each.leftOut.has_value(); });
}

}  // namespace

std::optional<std::vector<ppd_option_t*>> putBackOptions(ppd_file_t& ppd, const EasedPpd& eased) {
  PuttingBack back(ppd);
  for (const auto& [name, options] : eased.groups)
    if (!isWhole(options) && !back.putBack(name, options)) return std::nullopt;
  return back.sortIn();
}

}  // namespace cutline
