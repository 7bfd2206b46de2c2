#include <algorithm>
#include <numeric>

#include "base/Lists.h"
#include "host/core/JobLayout.h"
#include "host/core/OptionSpelling.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

// What one value of `media` may name.
constexpr const char* kMediaOptions[] = {"PageSize", "MediaType", "InputSlot"};

// How many single letters have to be changed, put in or taken out.
std::size_t distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const bool same = tolower(from[i]) == tolower(to[j]);
      const std::size_t change = diagonal + (same ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({change, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

std::vector<std::string> knownNames(const PpdFile& ppd) {
  std::vector<std::string> names(jobAttributes().begin(), jobAttributes().end());
  for (const OptionGroup& group : ppd.optionGroups())
    for (const PpdOption& option : group.options) names.push_back(option.keyword);
  return names;
}

Error unknownOption(const PpdFile& ppd, const std::string& name) {
  const std::size_t near = std::max<std::size_t>(2, name.size() / 3);
  std::vector<std::string> names;
  for (const std::string& known : knownNames(ppd))
    if (distance(name, known) <= near) names.push_back(known);
  if (names.empty()) {
    return Sentence(Phrase("host", "unknown option \"%1\"; this printer has no such option"),
                    {name});
  }
  return Sentence(Phrase("host", "unknown option \"%1\"; is it %2?"), {name, listed(names)});
}

// A list such as "24mm,Roll": each part names a size, a kind or a source of paper.
Result<Done> checkMedia(const PpdFile& ppd, const std::string& value) {
  for (const std::string& part : partsBetweenCommas(value)) {
    const bool known =
        std::any_of(std::begin(kMediaOptions), std::end(kMediaOptions), [&](const char* keyword) {
          return ppd.hasOption(keyword) && static_cast<bool>(ppd.checkChoice(keyword, part));
        });
    if (!known) return ppd.checkChoice("PageSize", part);
  }
  return Done{};
}

Result<Done> checkOption(const PpdFile& ppd, const std::string& name, const std::string& value) {
  if (name == "media") return checkMedia(ppd, value);
  if (ppd.hasOption(name)) return ppd.checkChoice(name, value);
  if (isLayoutOption(name)) return checkLayoutOption(name, value);
  const auto attributes = jobAttributes();
  if (std::ranges::find(attributes, name) != attributes.end()) return Done{};
  return unknownOption(ppd, name);
}

}  // namespace

Result<Done> checkOptions(const PpdFile& ppd, const OptionList& options) {
  for (const auto& [name, value] : spelledFor(ppd, options))
    if (Result<Done> checked = checkOption(ppd, name, value); !checked) return checked;
  return Done{};
}

}  // namespace cutline
