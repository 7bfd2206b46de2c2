// The strip of a job: leader, labels, cuts, marks and feed, in order and with their lengths. It
// holds the rules and the run, no list of events, so a long job costs no more than a short one.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "strip/KnifeRules.h"
#include "strip/LabelRun.h"

namespace cutline {

enum class StripEventKind : std::uint8_t { Leader, Label, Feed, HalfCut, FullCut, CutMark };

struct StripEvent {
  StripEventKind kind = StripEventKind::Label;
  // The label that it is or lies behind, counted from 1; 0 before the first one.
  std::uint64_t label = 0;
  // Millimetres from the strip's front end to its beginning. What isn't known counts as 0, and a
  // label whose blank space is removed counts as whole: `isExact` tells.
  double position = 0;
  double length = 0;          // mm; 0 for cuts and marks
  bool isExact = true;        // the position is what comes out
  bool isLengthExact = true;  // the length is, too
};

// What hangs together between full cuts and holds labels; neighbours that are alike are one run.
struct PieceRun {
  enum class End { Cut, HangsOut, StaysInPrinter };
  std::uint64_t pieces = 0;
  std::uint64_t labels = 0;  // of each piece
  End end = End::Cut;
  friend bool operator==(const PieceRun&, const PieceRun&) = default;
};

class CutPlan {
 public:
  CutPlan(const CutSettings& asked, LabelRun run);

  // In labels, whatever was counted.
  const KnifeRules& rules() const { return mRules; }
  const LabelRun& run() const { return mRun; }

  std::uint64_t labels() const { return mRun.labels(); }
  // False where nobody but the printer knows, or the driver has no word for it: then cuts, pieces
  // and marks count none, and only the labels are events.
  bool knowsCuts() const;
  // Pieces with labels on them, that in the printer included.
  std::uint64_t pieces() const;
  std::uint64_t fullCuts() const;
  std::uint64_t halfCuts() const;
  // Places where a mark is printed: where two labels meet, it is one.
  std::uint64_t cutMarks() const;
  std::uint64_t fullCutsBetweenLabels() const;
  std::uint64_t halfCutsBetweenLabels() const;
  std::vector<PieceRun> pieceRuns() const;
  // What becomes of the last piece.
  PieceRun::End end() const;

  // All tape of the job in millimetres; nothing when a part of it, or what is cut, is not known.
  std::optional<double> tape() const;
  // The same, but that it may come out shorter because blank space is removed.
  std::optional<double> mostTape() const;
  // Leader and feed, in millimetres; nothing when one of them is not known.
  std::optional<double> waste() const;

  // The label's beginning; see StripEvent::position.
  double positionOf(std::uint64_t label) const;
  // From the front end to the back end.
  void forEachEvent(const std::function<void(const StripEvent&)>& take) const;

  friend bool operator==(const CutPlan&, const CutPlan&) = default;

 private:
  double leader() const;
  double labelLength() const { return mRun.labelLength.value_or(0); }
  bool labelsAreExact() const;
  void forEachLabel(const std::function<void(const StripEvent&)>& take) const;

  KnifeRules mRules;
  LabelRun mRun;
};

}  // namespace cutline
