#include "host/core/CutRules.h"

#include <algorithm>

#include "base/CutFacts.h"
#include "cups/PpdFile.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

constexpr std::string_view kCountKeyword = "LxCutLabel";

// A box is on for each but the first choice.
bool isOn(const PpdFile& ppd, const OptionTable& options, const std::string& keyword) {
  return options.position(keyword, ppd.markedChoice(keyword)).value_or(0) != 0;
}

bool specialTapeIsOn(const PpdFile& ppd, const OptionTable& options) {
  return isOn(ppd, options, "LxSpecialTape");
}

// Arguments: the option, its choice, the paper.
struct RuleWords {
  CutRule rule;
  Phrase words;
};
constexpr std::array<RuleWords, 7> kWords = {{
    {CutRule::none, Phrase("host", "%1: sent as \"%2\".")},
    {CutRule::specialTape, Phrase("host", "%1: sent as \"%2\" because special tape is on.")},
    {CutRule::fixedPaper,
     Phrase("host", "%1: sent as \"%2\" because the paper \"%3\" keeps its blank space.")},
    {CutRule::uncutPaper,
     Phrase("host", "%1: sent as \"%2\" because the paper \"%3\" must not be cut automatically.")},
    {CutRule::cutsUncutPaper,
     Phrase("host", "%1: sent as \"%2\" although the paper \"%3\" must not be cut automatically.")},
    {CutRule::cutsNothing,
     Phrase("host", "%1: sent as \"%2\", but nothing is cut while special tape is on.")},
    {CutRule::notInPicture, Phrase("host", "%1: sent as \"%2\", which the picture does not show.")},
}};

bool takesPaper(CutRule rule) {
  return rule == CutRule::fixedPaper || rule == CutRule::uncutPaper ||
         rule == CutRule::cutsUncutPaper;
}

}  // namespace

bool isCutKeyword(std::string_view keyword) noexcept {
  return std::find(kCutKeywords.begin(), kCutKeywords.end(), keyword) != kCutKeywords.end();
}

bool hasCutOptions(const PpdFile& ppd) {
  return std::any_of(kCutKeywords.begin(), kCutKeywords.end(),
                     [&](std::string_view keyword) { return ppd.hasOption(std::string(keyword)); });
}

bool isLabelRoll(const PpdFile& ppd) { return ppd.attribute("LxTapeType") == "WN"; }

bool panelMayLackControl(const OptionTable& options, const std::string& keyword) {
  if (keyword == kAutoCutKeyword) return true;
  return keyword == kCountKeyword && options.find(kAutoCutKeyword) == nullptr;
}

CutRule rulingOver(const PpdFile& ppd, const OptionTable& options, std::string_view keyword) {
  if (underSpecialTape(keyword).savedOff && specialTapeIsOn(ppd, options))
    return CutRule::specialTape;
  const std::string paper = ppd.markedChoice("PageSize");
  if (keyword == "LxRemoveBlkSpace" && keepsBlankSpace(paper)) return CutRule::fixedPaper;
  if (keyword == kAutoCutKeyword && mustNotBeCutAutomatically(paper)) return CutRule::uncutPaper;
  return CutRule::none;
}

CutRule brokenBy(const PpdFile& ppd, const OptionTable& options, const std::string& keyword,
                 bool hasBox) {
  if (keyword == kCountKeyword || !isOn(ppd, options, keyword)) return CutRule::none;
  const bool isAutoCut = keyword == kAutoCutKeyword;
  if (isAutoCut && mustNotBeCutAutomatically(ppd.markedChoice("PageSize")))
    return CutRule::cutsUncutPaper;
  if (underSpecialTape(keyword).withoutEffect && specialTapeIsOn(ppd, options))
    return CutRule::cutsNothing;
  const bool isThird = options.position(keyword, ppd.markedChoice(keyword)) > 1;
  return isThird || (isAutoCut && !hasBox) ? CutRule::notInPicture : CutRule::none;
}

Sentence sentenceForRule(CutRule rule, const std::string& option, const std::string& choice,
                         const std::string& paper) {
  const auto row = std::find_if(kWords.begin(), kWords.end(),
                                [&](const RuleWords& words) { return words.rule == rule; });
  if (takesPaper(rule)) return {row->words, {option, choice, paper}};
  return {row->words, {option, choice}};
}

}  // namespace cutline
