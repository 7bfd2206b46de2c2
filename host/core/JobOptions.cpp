#include "host/core/JobOptions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "host/core/CutRules.h"
#include "host/core/OpenPrinter.h"
#include "host/core/PrinterStart.h"

namespace cutline {

namespace {

// Settled elsewhere: paper by PageSize, copies and pages by the print model.
constexpr std::array<std::string_view, 4> kSettledElsewhere = {"media", "PageRegion", "copies",
                                                               "page-ranges"};

// Before the keyword of an option, in a preset: its value is what was wanted.
constexpr std::string_view kWantedPrefix = "cutline-wanted-";

bool isSettledElsewhere(const std::string& name) {
  return std::find(kSettledElsewhere.begin(), kSettledElsewhere.end(), name) !=
         kSettledElsewhere.end();
}

void set(OptionList& options, const std::string& name, const std::string& value) {
  const auto old = std::find_if(options.begin(), options.end(),
                                [&](const auto& option) { return option.first == name; });
  if (old != options.end())
    old->second = value;
  else
    options.emplace_back(name, value);
}

void addMarked(OptionList& options, const OpenPrinter& printer, const std::string& keyword) {
  const std::string marked = printer.ppd().markedChoice(keyword);
  if (!marked.empty()) set(options, keyword, marked);
}

void addOthers(OptionList& options, const OpenPrinter& printer) {
  for (const auto& [keyword, choice] : printer.ppd().markedBesideDefaults(printer.askedFor()))
    if (!isSettledElsewhere(keyword)) set(options, keyword, choice);
}

// The same again in IPP's numbers, for a PPD that has the options for it: they may say otherwise by
// now.
bool isSaidByOptions(const OpenPrinter& printer, const std::string& name) {
  return name == "finishings" && printer.options().find(kCutMediaKeyword) != nullptr;
}

void addBesidePpd(OptionList& options, const OpenPrinter& printer) {
  for (const OptionList& layer : printer.layers())
    for (const auto& [name, value] : layer)
      if (printer.options().find(name) == nullptr && !isSettledElsewhere(name) &&
          !isSaidByOptions(printer, name))
        set(options, name, value);
}

}  // namespace

OptionList jobOptions(const OpenPrinter& printer) {
  OptionList options;
  for (const std::string_view keyword : kCutKeywords)
    addMarked(options, printer, std::string(keyword));
  addMarked(options, printer, kCutMediaKeyword);
  addMarked(options, printer, "PageSize");
  addOthers(options, printer);
  addBesidePpd(options, printer);
  return options;
}

OptionList jobOptionsBesidePpd(const OpenPrinter& printer) {
  OptionList options;
  addBesidePpd(options, printer);
  return options;
}

OptionList presetOptions(const OpenPrinter& printer) {
  OptionList options = jobOptions(printer);
  for (const auto& [keyword, choice] : printer.wanted().all())
    if (printer.ppd().markedChoice(keyword) != choice)
      options.emplace_back(std::string(kWantedPrefix) + keyword, choice);
  return options;
}

OptionList withWishes(const OptionList& preset) {
  OptionList options;
  for (const auto& option : preset)
    if (!option.first.starts_with(kWantedPrefix)) options.push_back(option);
  for (const auto& [name, value] : preset)
    if (name.starts_with(kWantedPrefix)) set(options, name.substr(kWantedPrefix.size()), value);
  return options;
}

}  // namespace cutline
