// What a job asks of the printer's knife: effects, whatever a driver calls them.
#pragma once

#include <cstdint>
#include <optional>

namespace cutline {

// What automatic cutting counts.
enum class CutUnit : std::uint8_t {
  Label,
  Page,      // of the document, with the copies that the printer itself makes of it
  Copy,      // of the whole document
  Document,  // with all its copies
};

// Who says where it is cut.
enum class CutAuthority : std::uint8_t {
  Settings,  // the members below
  Printer,   // what it has stored, or what it finds best: nobody here knows
  Nobody,    // the driver has no word for it
};

struct CutSettings {
  CutAuthority authority = CutAuthority::Settings;
  bool cutsAutomatically = false;  // after every `labelsPerCut` labels, and behind the last one
  unsigned labelsPerCut = 1;       // 1 or more
  CutUnit unit = CutUnit::Label;   // after each of these; `labelsPerCut` counts labels alone
  bool cutsRest = true;            // behind the last label, too, where a piece is not full
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
// chained or marked. Where somebody else says where it is cut, nothing of it is said here.
CutSettings inForce(CutSettings asked);

}  // namespace cutline
