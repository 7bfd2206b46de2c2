// What happens at each place of a job's strip. A driver that does not know yet how many labels
// there will be can follow them label by label. It counts labels: RunSettings.h has what counts
// copies or pages.
#pragma once

#include <cstdint>

#include "strip/CutSettings.h"

namespace cutline {

enum class Cut {
  None,
  Half,  // through the printed layer; the backing holds the labels together
  Full,
};

class KnifeRules {
 public:
  explicit KnifeRules(const CutSettings& asked) : mSettings(inForce(asked)) {}

  // As they are in force.
  const CutSettings& settings() const { return mSettings; }

  // Whether blank tape leaves the printer before the first label: the way from the print head to
  // the knife. A chain's first label follows the last one of the job before, and a roll is led
  // back.
  bool hasLeader() const;
  // Whether blank tape follows the last label. A chain's last label stays inside the printer.
  bool feedsOut() const;

  // Between the leader and the first label: as between two labels.
  Cut behindLeader() const;
  // Between the label `number`, counted from 1 over the whole job, and the next one.
  Cut behindLabel(std::uint64_t number) const;
  // Behind the last label: a full cut behind the feed, or a half cut before it. A chain's last
  // label has not reached the knife.
  Cut atEnd() const;

  // After how many labels a piece ends; 0 when the job is one piece.
  unsigned labelsPerPiece() const;
  // How many full cuts between labels lie before the label `number`, counted from 1.
  std::uint64_t fullCutsBefore(std::uint64_t number) const;

  friend bool operator==(const KnifeRules&, const KnifeRules&) = default;

 private:
  CutSettings mSettings;
};

}  // namespace cutline
