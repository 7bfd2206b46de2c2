#include "strip/KnifeRules.h"

namespace cutline {

bool KnifeRules::hasLeader() const {
  if (mSettings.chains) return false;
  return mSettings.leader ? *mSettings.leader > 0 : !mSettings.isRoll;
}

bool KnifeRules::feedsOut() const { return !mSettings.chains && mSettings.feed != 0.0; }

Cut KnifeRules::behindLeader() const {
  if (!hasLeader()) return Cut::None;
  if (mSettings.halfCuts) return Cut::Half;
  return mSettings.cutsAutomatically ? Cut::Full : Cut::None;
}

// Half cuts make a strip of labels. With one label to a strip they would be for nothing, so the job
// becomes one strip.
unsigned KnifeRules::labelsPerPiece() const {
  if (!mSettings.cutsAutomatically) return 0;
  return mSettings.halfCuts && mSettings.labelsPerCut == 1 ? 0 : mSettings.labelsPerCut;
}

std::uint64_t KnifeRules::fullCutsBefore(std::uint64_t number) const {
  const unsigned perPiece = labelsPerPiece();
  return perPiece == 0 || number == 0 ? 0 : (number - 1) / perPiece;
}

Cut KnifeRules::behindLabel(std::uint64_t number) const {
  const unsigned perPiece = labelsPerPiece();
  if (perPiece > 0 && number % perPiece == 0) return Cut::Full;
  return mSettings.halfCuts ? Cut::Half : Cut::None;
}

Cut KnifeRules::atEnd() const {
  if (mSettings.chains) return Cut::None;
  const bool cutsLastPiece = mSettings.cutsAutomatically && mSettings.cutsRest;
  if (cutsLastPiece || mSettings.cutsAtEnd) return Cut::Full;
  return mSettings.halfCuts ? Cut::Half : Cut::None;
}

}  // namespace cutline
