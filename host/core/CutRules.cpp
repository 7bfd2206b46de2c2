#include "host/core/CutRules.h"

#include <algorithm>

#include "cups/PpdFile.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

constexpr std::array<std::string_view, 4> kOffUnderSpecialTape = {"LxAutoTapeCut", "LxHalfCut",
                                                                  "LxChainPrint", "LxCutMark"};

bool contains(const auto& keywords, std::string_view keyword) {
  return std::find(keywords.begin(), keywords.end(), keyword) != keywords.end();
}

// The panel takes each but the first choice of special tape for on.
bool specialTapeIsOn(const PpdFile& ppd, const OptionTable& options) {
  const std::string marked = ppd.markedChoice("LxSpecialTape");
  return options.position("LxSpecialTape", marked).value_or(0) != 0;
}

bool paperBegins(const PpdFile& ppd, std::string_view prefix) {
  return ppd.markedChoice("PageSize").starts_with(prefix);
}

}  // namespace

bool isCutKeyword(std::string_view keyword) noexcept { return contains(kCutKeywords, keyword); }

bool hasCutOptions(const PpdFile& ppd) {
  return std::any_of(kCutKeywords.begin(), kCutKeywords.end(),
                     [&](std::string_view keyword) { return ppd.hasOption(std::string(keyword)); });
}

bool isLabelRoll(const PpdFile& ppd) { return ppd.attribute("LxTapeType") == "WN"; }

CutRule cutRuleFor(const PpdFile& ppd, const OptionTable& options, std::string_view keyword,
                   bool isShown) {
  if (isShown && contains(kOffUnderSpecialTape, keyword) && specialTapeIsOn(ppd, options))
    return CutRule::specialTape;
  if (keyword == "LxAutoTapeCut" && paperBegins(ppd, "HS")) return CutRule::uncutPaper;
  if (keyword != "LxRemoveBlkSpace") return CutRule::none;
  const bool fixed = paperBegins(ppd, "DC") || paperBegins(ppd, "AV");
  return fixed ? CutRule::fixedPaper : CutRule::none;
}

Sentence sentenceForRule(CutRule rule, const std::string& option, const std::string& choice,
                         const std::string& paper) {
  switch (rule) {
    case CutRule::specialTape:
      return {Phrase("host", "%1: sent as \"%2\" because special tape is on."), {option, choice}};
    case CutRule::fixedPaper:
      return {Phrase("host", "%1: stays \"%2\" because it cannot be changed on the paper \"%3\"."),
              {option, choice, paper}};
    case CutRule::uncutPaper:
      return {Phrase("host",
                     "%1: sent as \"%2\" because the paper \"%3\" must not be cut automatically."),
              {option, choice, paper}};
    case CutRule::none:
      break;
  }
  return {Phrase("host", "%1: sent as \"%2\"."), {option, choice}};
}

}  // namespace cutline
