#include "host/core/JobLayout.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

#include "base/Numbers.h"
#include "cups/CustomSize.h"

namespace cutline {
namespace {

constexpr double kMostPercent = 1000;
constexpr double kMostTextSize = 1000;

// One value of an option, and what it does.
struct Value {
  std::string_view option;
  std::string_view value;
  void (*apply)(JobLayout&);
  // The one of several names that layoutOptions writes.
  bool isWritten = false;
};

template <Scaling kScaling>
void scale(JobLayout& layout) {
  layout.placing.scaling = kScaling;
}
template <Turn kTurn>
void turn(JobLayout& layout) {
  layout.placing.turn = kTurn;
}
template <Position kPosition>
void place(JobLayout& layout) {
  layout.placing.position = kPosition;
}
template <PageSet kSet>
void pick(JobLayout& layout) {
  layout.pageSet = kSet;
}
template <bool JobLayout::*kFlag, bool kOn>
void flag(JobLayout& layout) {
  layout.*kFlag = kOn;
}
template <TextUnit kUnit>
void unit(JobLayout& layout) {
  layout.text.unit = kUnit;
}
void nothing(JobLayout&) {}

constexpr std::array kValues = std::to_array<Value>({
    {"print-scaling", "auto", scale<Scaling::automatic>},
    {"print-scaling", "auto-fit", scale<Scaling::automatic>},
    {"print-scaling", "none", scale<Scaling::actual>, true},
    {"print-scaling", "fit", scale<Scaling::fit>, true},
    {"print-scaling", "fill", scale<Scaling::fill>, true},
    {"fit-to-page", "true", scale<Scaling::fit>},
    {"fit-to-page", "false", nothing},
    {"fitplot", "true", scale<Scaling::fit>},
    {"fitplot", "false", nothing},
    {"fill", "true", scale<Scaling::fill>},
    {"fill", "false", nothing},
    {"orientation-requested", "3", turn<Turn::portrait>, true},
    {"orientation-requested", "4", turn<Turn::landscape>, true},
    {"orientation-requested", "5", turn<Turn::reverseLandscape>, true},
    {"orientation-requested", "6", turn<Turn::reversePortrait>, true},
    {"landscape", "true", turn<Turn::landscape>},
    {"landscape", "false", nothing},
    {"position", "center", place<Position::center>},
    {"position", "top", place<Position::top>, true},
    {"position", "bottom", place<Position::bottom>, true},
    {"position", "left", place<Position::left>, true},
    {"position", "right", place<Position::right>, true},
    {"position", "top-left", place<Position::topLeft>, true},
    {"position", "top-right", place<Position::topRight>, true},
    {"position", "bottom-left", place<Position::bottomLeft>, true},
    {"position", "bottom-right", place<Position::bottomRight>, true},
    {"mirror", "true", flag<&JobLayout::isMirrored, true>, true},
    {"mirror", "false", flag<&JobLayout::isMirrored, false>},
    {"page-set", "all", pick<PageSet::all>},
    {"page-set", "odd", pick<PageSet::odd>, true},
    {"page-set", "even", pick<PageSet::even>, true},
    {"outputorder", "normal", flag<&JobLayout::isReversed, false>},
    {"outputorder", "reverse", flag<&JobLayout::isReversed, true>, true},
    {"label-length", "paper", flag<&JobLayout::followsContent, false>},
    {"label-length", "content", flag<&JobLayout::followsContent, true>, true},
    {"text-labels", "paragraph", unit<TextUnit::paragraph>},
    {"text-labels", "line", unit<TextUnit::line>, true},
});

// Options whose value is a number within bounds, or any text.
struct Measure {
  std::string_view option;
  std::string_view values;  // for people
  bool (*apply)(JobLayout&, const std::string&);
};

std::optional<double> numberUpTo(const std::string& text, double most) {
  std::string_view rest = text;
  const std::optional<double> number = takeNumber(rest);
  const bool isWhole = rest.empty() || rest == "%";
  return number && isWhole && *number > 0 && *number <= most ? number : std::nullopt;
}

bool applyPercent(JobLayout& layout, const std::string& value) {
  const std::optional<double> percent = numberUpTo(value, kMostPercent);
  if (!percent) return false;
  layout.placing.scaling = Scaling::percent;
  layout.placing.percent = *percent;
  return true;
}

bool applyTextSize(JobLayout& layout, const std::string& value) {
  const std::optional<double> size = numberUpTo(value, kMostTextSize);
  if (!size && value != "auto") return false;
  layout.text.size = size.value_or(0);
  return true;
}

bool applyFont(JobLayout& layout, const std::string& value) {
  layout.text.font = value;
  return true;
}

constexpr std::array kMeasures = std::to_array<Measure>({
    {"natural-scaling", "1 to 1000", applyPercent},
    {"text-size", "auto, 1 to 1000", applyTextSize},
    {"text-font", "", applyFont},
});

constexpr std::array kForeign = std::to_array<std::string_view>(
    {"booklet", "columns", "cpi", "crop-to-fit", "lpi", "number-up", "number-up-layout",
     "page-border", "page-bottom", "page-label", "page-left", "page-right", "page-top", "ppi",
     "prettyprint", "scaling", "wrap"});

// The document that is sent tells its kind itself, only its chosen pages are in it, and no printer
// takes it as it is.
constexpr std::array kSettled =
    std::to_array<std::string_view>({"document-format", "page-ranges", "raw"});

// Whatever a queue or a user has as a default would act again.
constexpr std::array<std::pair<const char*, const char*>, 12> kAsItIs = {
    {{"print-scaling", "none"},
     {"page-ranges", "1-99999"},
     {"booklet", "false"},
     {"number-up", "1"},
     {"orientation-requested", "3"},
     {"page-set", "all"},
     {"outputorder", "normal"},
     {"landscape", "false"},
     {"mirror", "false"},
     {"page-border", "none"},
     {"page-label", ""},
     {"fit-to-page", "false"}}};

constexpr char kSheets[] = "job-sheets";

const Measure* measureNamed(std::string_view name) {
  const auto* found = std::ranges::find(kMeasures, name, &Measure::option);
  return found != kMeasures.end() ? found : nullptr;
}

const Value* valueNamed(std::string_view name, std::string_view value) {
  const auto* found = std::ranges::find_if(
      kValues, [&](const Value& row) { return row.option == name && row.value == value; });
  return found != kValues.end() ? found : nullptr;
}

std::string valuesOf(std::string_view name) {
  if (const Measure* measure = measureNamed(name)) return std::string(measure->values);
  std::string values;
  for (const Value& row : kValues)
    if (row.option == name) values.append(values.empty() ? "" : ", ").append(row.value);
  return values;
}

bool applyOne(const std::string& name, const std::string& value, JobLayout& layout) {
  if (const Measure* measure = measureNamed(name)) return measure->apply(layout, value);
  const Value* row = valueNamed(name, value);
  if (row == nullptr) return false;
  row->apply(layout);
  return true;
}

bool isOneOf(std::span<const std::string_view> names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

}  // namespace

bool isLayoutOption(std::string_view name) noexcept {
  return measureNamed(name) != nullptr ||
         std::ranges::find(kValues, name, &Value::option) != kValues.end();
}

void applyLayoutOptions(const OptionList& options, JobLayout& layout) {
  for (const auto& [name, value] : options) applyOne(name, value, layout);
}

Result<Done> checkLayoutOption(const std::string& name, const std::string& value) {
  JobLayout scratch;
  if (!isLayoutOption(name) || applyOne(name, value, scratch)) return Done{};
  return Error{Sentence(Phrase("host", "%1 has no value \"%2\": its values are %3"),
                        {name, value, valuesOf(name)})};
}

// A value is written where the layout is as it makes it.
OptionList layoutOptions(const JobLayout& layout) {
  OptionList options;
  for (const Value& row : kValues) {
    if (!row.isWritten) continue;
    JobLayout applied = layout;
    row.apply(applied);
    if (applied == layout) options.emplace_back(row.option, row.value);
  }
  if (layout.placing.scaling == Scaling::percent)
    options.emplace_back("natural-scaling",
                         decimalText(static_cast<float>(layout.placing.percent)));
  if (layout.text.size > 0)
    options.emplace_back("text-size", decimalText(static_cast<float>(layout.text.size)));
  if (!layout.text.font.empty()) options.emplace_back("text-font", layout.text.font);
  return options;
}

bool isForeignLayoutOption(std::string_view name) noexcept { return isOneOf(kForeign, name); }

OptionList withoutLayout(const OptionList& options) {
  OptionList rest;
  for (const auto& option : options)
    if (!isLayoutOption(option.first) && !isForeignLayoutOption(option.first) &&
        !isOneOf(kSettled, option.first))
      rest.push_back(option);
  return rest;
}

OptionList forLaidOutDocument(const OptionList& options) {
  OptionList sent = withoutLayout(options);
  sent.insert(sent.end(), kAsItIs.begin(), kAsItIs.end());
  // A queue's sheets before and behind a job would waste tape; who asks for them gets them.
  if (std::ranges::find(options, kSheets, &OptionList::value_type::first) == options.end())
    sent.emplace_back(kSheets, "none");
  return sent;
}

}  // namespace cutline
