#include "samples/printer/Choices.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include "base/CutFacts.h"
#include "base/Numbers.h"

namespace cutline::printer {
namespace {

using Ppd = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

void mark(ppd_file_t* ppd, const std::string& options) {
  cups_option_t* list = nullptr;
  const int count = cupsParseOptions(options.c_str(), 0, &list);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, list);
  cupsFreeOptions(count, list);
}

void addMarked(Choices& choices, const ppd_group_t& group) {
  for (int at = 0; at < group.num_options; ++at) {
    const ppd_option_t& option = group.options[at];
    for (int place = 0; place < option.num_choices; ++place) {
      const ppd_choice_t& choice = option.choices[place];
      if (choice.marked) choices[option.keyword] = choice.choice;
    }
  }
}

std::string_view choiceOf(const Choices& choices, std::string_view keyword) {
  const auto found = choices.find(keyword);
  return found == choices.end() ? std::string_view() : std::string_view(found->second);
}

unsigned countOf(std::string_view text) {
  return std::max(1U, numberIn<unsigned>(text).value_or(1));
}

}  // namespace

std::optional<Choices> choicesOf(const std::string& ppdPath, const std::string& options) {
  const Ppd ppd(ppdOpenFile(ppdPath.c_str()), &ppdClose);
  if (!ppd) return std::nullopt;
  mark(ppd.get(), options);
  Choices choices;
  for (int at = 0; at < ppd->num_groups; ++at) addMarked(choices, ppd->groups[at]);
  const ppd_attr_t* family = ppdFindAttr(ppd.get(), kFamilyKey, nullptr);
  if (family != nullptr && family->value != nullptr) choices[kFamilyKey] = family->value;
  return choices;
}

CutSettings cutSettingsOf(const Choices& choices) {
  const auto on = [&](std::string_view keyword) { return choiceOf(choices, keyword) == "ON"; };
  const bool isRoll = choiceOf(choices, kFamilyKey) == kRollFamily;
  return {.cutsAutomatically = on("LxAutoTapeCut"),
          .labelsPerCut = countOf(choiceOf(choices, "LxCutLabel")),
          .cutsAtEnd = on("LxCutAtEnd"),
          .halfCuts = on("LxHalfCut"),
          .chains = on("LxChainPrint"),
          .isSpecialTape = on("LxSpecialTape"),
          .printsCutMarks = on("LxCutMark"),
          .removesBlankSpace =
              on("LxRemoveBlkSpace") && !keepsBlankSpace(choiceOf(choices, "PageSize")),
          .mirrors = on("LxMirror"),
          .isRoll = isRoll,
          .leader = isRoll ? kRollLeader : kTapeLeader,
          .feed = kFeed};
}

}  // namespace cutline::printer
