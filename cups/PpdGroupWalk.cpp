#include "cups/PpdGroupWalk.h"

#include <cups/ppd.h>

#include <algorithm>
#include <array>

namespace cutline {

namespace {

// Where libcups puts options that stand outside of groups.
constexpr std::string_view kGeneral = "General";

// libcups puts options of a kind into it.
constexpr std::string_view kJcl = "JCL";

constexpr std::array kOptionOpenings = std::to_array<std::string_view>({"OpenUI", "JCLOpenUI"});
constexpr std::array kOptionClosings = std::to_array<std::string_view>({"CloseUI", "JCLCloseUI"});
// libcups makes options of their choices even where no option is open.
constexpr std::array kOpenedByChoices = std::to_array<std::string_view>({"PageSize", "PageRegion"});

bool isAmong(const auto& table, std::string_view word) {
  return std::ranges::find(table, word) != table.end();
}

// NAME or NAME/TEXT with a text that cannot come out empty: libcups takes a group without text for
// something else.
bool isClearGroup(std::string_view value) {
  const std::string_view name = value.substr(0, value.find('/'));
  return !name.empty() && name.size() < PPD_MAX_NAME && !value.ends_with('/') &&
         value.find_first_of("\"<") == value.npos;
}

}  // namespace

void PpdGroupWalk::pass(const PpdStatement& statement) {
  const std::string_view keyword = statement.keyword();
  if (keyword == "OpenGroup") return open(statement);
  if (keyword == "CloseGroup" && hasValue(statement)) return mOpen.reset();
  // It ends the group without a word.
  if (keyword == "JCLOpenUI") mIsClear = mIsClear && !mOpen;
  if (keyword == "OpenUI" || isAmong(kOpenedByChoices, keyword)) mMixed.insert(group());
  if (isAmong(kOptionOpenings, keyword)) mIsOptionOpen = true;
  if (isAmong(kOptionClosings, keyword) && hasValue(statement)) mIsOptionOpen = false;
}

std::string_view PpdGroupWalk::group() const { return mOpen.value_or(kGeneral); }

bool PpdGroupWalk::isPlain(std::string_view group) const {
  return mIsClear && !mMixed.contains(group) && group != kJcl;
}

void PpdGroupWalk::open(const PpdStatement& statement) {
  const std::string_view value = valueOf(statement);
  mIsClear = mIsClear && isClearGroup(value);
  mOpen = value.substr(0, value.find('/'));
}

}  // namespace cutline
