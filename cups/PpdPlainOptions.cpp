#include "cups/PpdPlainOptions.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "cups/NameOrder.h"
#include "cups/PpdWords.h"

namespace cutline {

namespace {

constexpr std::string_view kOpening = "OpenUI";
constexpr std::string_view kJclOpening = "JCLOpenUI";
constexpr std::string_view kClosing = "CloseUI";
constexpr std::string_view kOrder = "OrderDependency";

// What says where options and groups begin and end: in the block of an option that is called so,
// its choices do, too.
constexpr std::array kStructure =
    std::to_array<std::string_view>({kOpening, kJclOpening, kClosing, "JCLCloseUI", "OpenGroup",
                                     "CloseGroup", "OpenSubGroup", "CloseSubGroup"});

constexpr std::array kCustoms = std::to_array<std::string_view>({"Custom", "ParamCustom"});

// "Duplex" of `*OpenUI *Duplex/Two sides: PickOne`.
std::string_view openedBy(const PpdStatement& statement) {
  std::string_view name = nameOf(statement);
  name = name.substr(0, name.find('/'));
  return name.starts_with('*') ? name.substr(1) : name;
}

// Whether the statement may stand within the block of a plain option.
bool belongsTo(std::string_view option, std::string_view keyword) {
  return keyword.empty() || withoutDefault(keyword) == option || keyword == kOrder ||
         isTranslation(keyword);
}

// Nothing where no option begins with the statement, or one whose block has more in it.
std::optional<PlainOption> optionAt(const std::vector<PpdStatement>& statements, std::size_t at) {
  const bool isDefaultFirst = isDefault(statements[at].keyword());
  const std::size_t opening = isDefaultFirst ? at + 1 : at;
  if (opening == statements.size() || statements[opening].keyword() != kOpening)
    return std::nullopt;
  PlainOption option{openedBy(statements[opening]), at, opening + 1};
  const bool isNamedSo = std::ranges::find(kStructure, option.keyword) != kStructure.end();
  if (!isPpdWord(option.keyword) || isNamedSo) return std::nullopt;
  if (isDefaultFirst && withoutDefault(statements[at].keyword()) != option.keyword)
    return std::nullopt;
  while (option.last < statements.size() &&
         belongsTo(option.keyword, statements[option.last].keyword()))
    ++option.last;
  if (option.last == statements.size() || statements[option.last].keyword() != kClosing ||
      !hasValue(statements[option.last]))
    return std::nullopt;
  return option;
}

// "Duplex" of `*CustomDuplex`; empty for other keywords.
std::string_view customOf(std::string_view keyword) {
  const auto start = std::ranges::find_if(kCustoms, [keyword](std::string_view each) {
    return isSameName(keyword.substr(0, each.size()), each);
  });
  return start == kCustoms.end() ? std::string_view() : keyword.substr(start->size());
}

// "Duplex" of `*OrderDependency: 10 Prolog *Duplex`; empty for other statements.
std::string_view orderedBy(const PpdStatement& statement) {
  if (statement.keyword() != kOrder) return {};
  std::string_view value = valueOf(statement);
  nextWord(value);
  nextWord(value);
  const std::string_view name = nextWord(value);
  return name.starts_with('*') ? name.substr(1) : name;
}

// Finds options by their names. No PPD can make it slow, as it could a table of hashes.
class OptionIndex {
 public:
  explicit OptionIndex(std::vector<PlainOption>& options) {
    mSorted.reserve(options.size());
    for (PlainOption& each : options) mSorted.push_back(&each);
    sortByName(mSorted, keywordOf);
    for (std::size_t i = 1; i < mSorted.size(); ++i)
      if (isSameName(mSorted[i - 1]->keyword, mSorted[i]->keyword))
        mSorted[i - 1]->isOpenedTwice = mSorted[i]->isOpenedTwice = true;
  }

  // A statement outside of the options' blocks.
  void add(const PpdStatement& statement) {
    if (statement.keyword() == kOpening || statement.keyword() == kJclOpening) {
      for (PlainOption* each : named(openedBy(statement))) each->isOpenedTwice = true;
      return;
    }
    for (const std::string_view name :
         {withoutDefault(statement.keyword()), customOf(statement.keyword()), orderedBy(statement)})
      if (!name.empty())
        for (PlainOption* each : named(name)) each->isNamedElsewhere = true;
  }

 private:
  static std::string_view keywordOf(const PlainOption* option) { return option->keyword; }
  std::span<PlainOption* const> named(std::string_view name) const {
    const auto first = std::ranges::lower_bound(mSorted, name, nameComesBefore, keywordOf);
    const auto last = std::ranges::upper_bound(mSorted, name, nameComesBefore, keywordOf);
    return std::span(mSorted).subspan(static_cast<std::size_t>(first - mSorted.begin()),
                                      static_cast<std::size_t>(last - first));
  }

  std::vector<PlainOption*> mSorted;
};

}  // namespace

std::vector<PlainOption> plainOptions(const std::vector<PpdStatement>& statements) {
  constexpr std::size_t kInOption = 4;  // statements, at least
  std::vector<PlainOption> options;
  options.reserve(statements.size() / kInOption);
  std::vector<const PpdStatement*> others;
  for (std::size_t at = 0; at < statements.size(); ++at) {
    const auto option = optionAt(statements, at);
    if (!option) {
      others.push_back(&statements[at]);
      continue;
    }
    at = option->last;
    options.push_back(*option);
  }
  OptionIndex index(options);
  for (const PpdStatement* each : others) index.add(*each);
  std::erase_if(options, [](const PlainOption& each) { return each.isOpenedTwice; });
  return options;
}

}  // namespace cutline
