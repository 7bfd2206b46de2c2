// What the host knows of the cut options: their keywords, and the rules of tape and media that
// change a choice or speak against it. The panel applies some of them by itself and keeps them to
// itself; the host sees to the rest, and names them to the user before printing.
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
inline constexpr char kAutoCutKeyword[] = "LxAutoTapeCut";

bool isCutKeyword(std::string_view keyword) noexcept;
bool hasCutOptions(const PpdFile& ppd);
// True for printers of continuous label rolls, false for tape printers.
bool isLabelRoll(const PpdFile& ppd);

// Whether the cut panel, which declares the option, can be without a control for it: automatic
// cutting has a box only where the PPD says so, and the number of labels can be typed only while
// automatic cutting is on.
bool panelMayLackControl(const OptionTable& options, const std::string& keyword);

enum class CutRule {
  none,
  specialTape,  // special tape turns auto cut, half cut, chain printing and cut marks off
  fixedPaper,   // DC and AV sizes keep their blank space
  uncutPaper,   // HS media turn auto cut off until the user insists
  // Nothing is changed, and the user must know nevertheless.
  cutsUncutPaper,  // the user insists on auto cut on HS media
  cutsNothing,     // special tape is not cut at the end either
  notInPicture,    // no box, and so no picture, says it
};

// The rule that turns the option to its first choice with the choices marked now, but for
// uncutPaper, which does so only as often as a paper is chosen.
CutRule rulingOver(const PpdFile& ppd, const OptionTable& options, std::string_view keyword);

// What speaks against the choice that is marked now, or has it do nothing. `hasBox`: one of the
// panel's check boxes stands for the option.
CutRule brokenBy(const PpdFile& ppd, const OptionTable& options, const std::string& keyword,
                 bool hasBox);

// The rule in words; `option`, `choice` and `paper` are texts for people.
Sentence sentenceForRule(CutRule rule, const std::string& option, const std::string& choice,
                         const std::string& paper);

}  // namespace cutline
