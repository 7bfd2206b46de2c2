#include "cups/PpdGroupOptions.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "cups/NameOrder.h"
#include "cups/PpdOptionRecords.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

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

  bool putBack(std::string_view name, OptionRecords& options) {
    ppd_group_t* group = groupNamed(mPpd, name);
    if (!group || !move(*group, options)) return false;
    replace(*group, options);
    return true;
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
  bool move(const ppd_group_t& group, OptionRecords& options) {
    const auto kept = optionsOf(group);
    const auto isSame = [&](const ppd_option_t& option, std::size_t place) {
      return std::strcmp(option.keyword, options.all()[place].keyword) == 0;
    };
    if (!std::ranges::equal(kept, options.places(), isSame)) return false;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      ppd_option_t& place = options.all()[options.places()[i]];
      place = kept[i];
      mNow.emplace(&kept[i], &place);
    }
    return true;
  }

  void replace(ppd_group_t& group, OptionRecords& options) {
    const auto all = options.all();
    auto place = options.places().begin();
    for (std::size_t i = 0; i < all.size(); ++i) {
      for (ppd_choice_t& choice : choicesOf(all[i])) choice.option = &all[i];
      const bool isPlace = place != options.places().end() && *place == i;
      if (isPlace) ++place;
      if (!isPlace) mBack.push_back(&all[i]);
    }
    std::free(std::exchange(group.options, options.release()));
    group.num_options = static_cast<int>(all.size());
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

}  // namespace

std::optional<std::vector<ppd_option_t*>> putBackOptions(ppd_file_t& ppd, EasedPpd& eased) {
  PuttingBack back(ppd);
  for (auto& [name, options] : eased.groups)
    if (!back.putBack(name, options)) return std::nullopt;
  return back.sortIn();
}

}  // namespace cutline
