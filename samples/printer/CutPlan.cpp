#include "samples/printer/CutPlan.h"

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

bool isOn(const Choices& choices, std::string_view keyword) {
  return choiceOf(choices, keyword) == "ON";
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

CutPlan::CutPlan(const Choices& choices)
    : mLabelsPerStrip(countOf(choiceOf(choices, "LxCutLabel"))),
      mMirror(isOn(choices, "LxMirror")),
      mRemoveBlankSpace(isOn(choices, "LxRemoveBlkSpace") &&
                        !keepsBlankSpace(choiceOf(choices, "PageSize"))),
      mRoll(choiceOf(choices, kFamilyKey) == kRollFamily) {
  const bool isSpecialTape = isOn(choices, "LxSpecialTape");
  const auto works = [&](std::string_view keyword) {
    return isOn(choices, keyword) && !(isSpecialTape && underSpecialTape(keyword).withoutEffect);
  };
  mCutAtEnd = works("LxCutAtEnd");
  mAutoCut = works("LxAutoTapeCut");
  mHalfCut = works("LxHalfCut");
  mChain = works("LxChainPrint");
  mCutMarks = works("LxCutMark");
}

bool CutPlan::stripEndsAfter(unsigned number) const {
  if (!mAutoCut) return false;
  // Half cuts make a strip of labels. With one label to a strip they would be for nothing, so the
  // job becomes one strip.
  if (mHalfCut && mLabelsPerStrip == 1) return false;
  return number % mLabelsPerStrip == 0;
}

Cut CutPlan::afterLabel(unsigned number) const {
  if (stripEndsAfter(number)) return Cut::Full;
  return mHalfCut ? Cut::Half : Cut::None;
}

Cut CutPlan::atEnd() const {
  if (mChain) return Cut::None;
  return mAutoCut || mCutAtEnd ? Cut::Full : Cut::None;
}

}  // namespace cutline::printer
