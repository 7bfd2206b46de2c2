// What a job asks of the printer's knife: effects, whatever a driver calls them.
#pragma once

#include <optional>

namespace cutline {

struct CutSettings {
  bool cutsAutomatically = false;  // after every `labelsPerCut` labels, and behind the last one
  unsigned labelsPerCut = 1;       // 1 or more
  bool cutsAtEnd = false;          // behind the last label
  bool halfCuts = false;           // through the printed layer, wherever the tape is not cut off
  bool chains = false;             // the last label waits in the printer for the next job
  bool isSpecialTape = false;      // tape that must not meet the knife
  bool printsCutMarks = false;     // at both ends of each label
  bool removesBlankSpace = false;  // around the print, along the tape
  bool mirrors = false;            // of the drawing alone
  bool isRoll = false;             // labels on a roll, and not a tape
  // Millimetres of blank tape before the first label and behind the last; nothing: not known.
  std::optional<double> leader = std::nullopt;
  std::optional<double> feed = std::nullopt;

  friend bool operator==(const CutSettings&, const CutSettings&) = default;
};

// What is left of the settings on the tape that they name: special tape is never cut, half cut,
// chained or marked.
CutSettings inForce(CutSettings asked);

}  // namespace cutline
