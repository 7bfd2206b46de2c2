#include "cups/PpdLimits.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "base/CharacterSet.h"
#include "cups/PpdLines.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

// Works around libcups 2.4.2: it looks through all that it has read for each new one of these, so
// that the time it needs grows with the square of their number. At these it needs some seconds.
struct Limit {
  std::string_view keyword;
  std::size_t most;
  Phrase what;
};
constexpr Phrase kOptions("cups", "options");
constexpr Phrase kGroups("cups", "groups of options");
constexpr Phrase kSizes("cups", "paper sizes");
constexpr Phrase kConstraints("cups", "constraints");
constexpr Phrase kParameters("cups", "parameters of custom values");
constexpr std::array kLimits = std::to_array<Limit>({
    {"*OpenUI", 10000, kOptions},
    {"*JCLOpenUI", 10000, kOptions},
    {"*OpenGroup", 2000, kGroups},
    {"*OpenSubGroup", 2000, kGroups},
    {"*PageSize", 5000, kSizes},
    {"*PaperDimension", 5000, kSizes},
    {"*ImageableArea", 5000, kSizes},
    {"*UIConstraints", 20000, kConstraints},
    {"*NonUIConstraints", 20000, kConstraints},
    {"*cupsUIConstraints", 20000, kConstraints},
    {"*cupsNonUIConstraints", 20000, kConstraints},
});
constexpr std::string_view kParameterStart = "*ParamCustom";
constexpr Limit kParameterLimit{kParameterStart, 2000, kParameters};
// Of any kind: each takes its place among those before it.
constexpr Limit kStatementLimit{"*", 100000, Phrase("cups", "statements")};

struct Counts {
  std::array<std::size_t, kLimits.size()> limited{};
  std::size_t parameters = 0;
  std::size_t statements = 0;
};

constexpr CharacterSet kBehindKeywords(" \t:");

// The parameters' keywords go on with the option's name.
void count(std::string_view line, Counts& counts) {
  if (!line.starts_with(kStatementLimit.keyword)) return;
  ++counts.statements;
  const std::string_view keyword = line.substr(0, kBehindKeywords.firstIn(line));
  const auto* limit = std::ranges::find(kLimits, keyword, &Limit::keyword);
  if (limit != kLimits.end()) ++counts.limited[static_cast<std::size_t>(limit - kLimits.begin())];
  if (line.starts_with(kParameterStart)) ++counts.parameters;
}

Error tooMany(const Sentence& name, const Limit& limit, std::size_t number) {
  return Sentence(Phrase("cups", "cannot use %1: it has %2 %3, and at most %4 can be used"),
                  {name, std::to_string(number), limit.what, std::to_string(limit.most)});
}

bool isMeasure(const ppd_cparam_t* parameter) {
  return !parameter || parameter->type == PPD_CUSTOM_POINTS || parameter->type == PPD_CUSTOM_REAL;
}

bool isLength(float points) {
  return std::isfinite(points) && points > 0 && points <= static_cast<float>(kLongestPaper);
}

const ppd_size_t* sizeNamed(const ppd_file_t* ppd, const char* name) {
  const auto sizes = sizesOf(ppd);
  const auto found = std::ranges::find_if(
      sizes, [&](const ppd_size_t& size) { return strcasecmp(size.name, name) == 0; });
  return found == sizes.end() ? nullptr : &*found;
}

}  // namespace

std::optional<Error> tooMuchForLibcups(std::string_view contents, const Sentence& name) {
  Counts counts;
  forEachPpdLine(contents, [&](std::string_view line, std::string_view) { count(line, counts); });
  for (std::size_t i = 0; i < kLimits.size(); ++i)
    if (counts.limited[i] > kLimits[i].most) return tooMany(name, kLimits[i], counts.limited[i]);
  if (counts.parameters > kParameterLimit.most)
    return tooMany(name, kParameterLimit, counts.parameters);
  if (counts.statements > kStatementLimit.most)
    return tooMany(name, kStatementLimit, counts.statements);
  return std::nullopt;
}

// Works around libcups 2.4.2: it writes the measures of a custom size that is marked into these two
// parameters, of whatever type they are; those of a text are then freed as one.
std::optional<Error> unusableSizes(ppd_file_t* ppd, const Sentence& name) {
  ppd_coption_t* custom = ppdFindCustomOption(ppd, kPageSizeKeyword);
  for (const char* parameter : {"Width", "Height"})
    if (custom && !isMeasure(ppdFindCustomParam(custom, parameter)))
      return Sentence(
          Phrase("cups", "cannot use %1: the parameter %2 of its custom page size is no measure"),
          {name, parameter});
  const ppd_option_t* option = ppdFindOption(ppd, kPageSizeKeyword);
  if (!option || !isUnusableSize(ppd, kPageSizeKeyword, option->defchoice)) return std::nullopt;
  return Sentence(
      Phrase("cups", "cannot use %1: its default paper \"%2\" has measures that no paper has"),
      {name, std::string(option->defchoice)});
}

bool isUsable(const ppd_size_t& size) { return isLength(size.width) && isLength(size.length); }

bool isUnusableSize(ppd_file_t* ppd, std::string_view keyword, const std::string& choice) {
  const std::string_view pageSize = kPageSizeKeyword;
  const bool isPageSize = keyword.size() == pageSize.size() &&
                          strncasecmp(keyword.data(), pageSize.data(), pageSize.size()) == 0;
  if (!isPageSize) return false;
  const ppd_size_t* size = sizeNamed(ppd, choice.c_str());
  return size && !isCustom(*size) && !isUsable(*size);
}

OptionList withoutUnusableSizes(ppd_file_t* ppd, const OptionList& options) {
  OptionList usable;
  std::ranges::copy_if(options, std::back_inserter(usable), [&](const auto& option) {
    return !isUnusableSize(ppd, option.first, option.second);
  });
  return usable;
}

}  // namespace cutline
