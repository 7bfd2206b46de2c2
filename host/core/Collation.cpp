#include "host/core/Collation.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <string>

namespace cutline {
namespace {

struct Spelling {
  const char* name;
  const char* collated;
  const char* uncollated;
};
constexpr std::array kSpellings = std::to_array<Spelling>({
    {kCollationOptions[0], "true", "false"},
    {kCollationOptions[1], "separate-documents-collated-copies",
     "separate-documents-uncollated-copies"},
});

bool isSame(const std::string& text, const char* other) {
  return strcasecmp(text.c_str(), other) == 0;
}

}  // namespace

bool collates(const OptionList& options) {
  return std::ranges::any_of(options, [](const auto& option) {
    return std::ranges::any_of(kSpellings, [&](const Spelling& each) {
      return isSame(option.first, each.name) && isSame(option.second, each.collated);
    });
  });
}

void setCollation(bool isCollated, OptionList& options) {
  for (const Spelling& each : kSpellings) {
    std::erase_if(options, [&](const auto& option) { return isSame(option.first, each.name); });
    options.emplace_back(each.name, isCollated ? each.collated : each.uncollated);
  }
}

}  // namespace cutline
