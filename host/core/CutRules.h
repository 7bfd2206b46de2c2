// What the host knows of the cut options: their keywords, and the rules by which their panel
// changes a choice that was asked for. The panel keeps these rules to itself; the host names them
// to the user before printing.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Sentence.h"

namespace cutline {

class OptionTable;
class PpdFile;

// The options whose presence gives a printer the cut panel, in the panel's own order. All of them
// are sent with each job.
inline constexpr std::array<std::string_view, 9> kCutKeywords = {
    "LxCutLabel",   "LxCutAtEnd",    "LxMirror",         "LxAutoTapeCut", "LxHalfCut",
    "LxChainPrint", "LxSpecialTape", "LxRemoveBlkSpace", "LxCutMark"};

bool isCutKeyword(std::string_view keyword) noexcept;
bool hasCutOptions(const PpdFile& ppd);
// True for printers of continuous label rolls, false for tape printers.
bool isLabelRoll(const PpdFile& ppd);

enum class CutRule {
  none,
  specialTape,  // special tape keeps auto cut, half cut, chain printing and cut marks off
  fixedPaper,   // DC and AV sizes keep blank space as it was
  uncutPaper,   // HS media turn auto cut off
};

// The rule that governs the option with the choices marked now. Special tape only concerns options
// that the panel shows: it saves no others.
CutRule cutRuleFor(const PpdFile& ppd, const OptionTable& options, std::string_view keyword,
                   bool isShown);

// The rule in words; `option`, `choice` and `paper` are texts for people.
Sentence sentenceForRule(CutRule rule, const std::string& option, const std::string& choice,
                         const std::string& paper);

}  // namespace cutline
