// Where a job's tape is cut: the PPD choices that are in force, and what they mean to the knife.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace cutline::printer {

// The PPD choices in force, by keyword.
using Choices = std::map<std::string, std::string, std::less<>>;

enum class Cut {
  None,
  Half,  // through the printed layer; the backing holds the labels together
  Full,
};

class CutPlan {
 public:
  // An option that the printer doesn't have is off. Special tape must not meet the knife, and is
  // not led back for the next job: it switches off every cut, chain printing and cut marks.
  explicit CutPlan(const Choices& choices);

  // The cut between the label `number`, counted from 1, and the next one of the job.
  Cut afterLabel(unsigned number) const;
  // The cut behind the job's last label. A chain's last label stays inside the printer, where it
  // waits for the next job, so there is nothing to cut yet.
  Cut atEnd() const;

  // Whether blank tape runs out before the first label and behind the last, which is the way from
  // the print head to the knife.
  bool feedsOut() const { return !mChain; }
  bool mirrors() const { return mMirror; }
  bool removesBlankSpace() const { return mRemoveBlankSpace; }
  bool printsCutMarks() const { return mCutMarks; }
  // Whether the labels lie on a roll, upright one below the other, and not along a tape.
  bool isRoll() const { return mRoll; }

 private:
  bool stripEndsAfter(unsigned number) const;

  unsigned mLabelsPerStrip = 1;
  bool mCutAtEnd = false;
  bool mMirror = false;
  bool mAutoCut = false;
  bool mHalfCut = false;
  bool mChain = false;
  bool mRemoveBlankSpace = false;
  bool mCutMarks = false;
  bool mRoll = false;
};

// The name under which the printer's family is told among the choices, and its value for rolls.
inline constexpr const char* kFamilyKey = "LxTapeType";
inline constexpr const char* kRollFamily = "WN";

// The choices that are in force for a job: the defaults of the PPD in the file `ppdPath`, overlaid
// with the job's `options` as the scheduler hands them to a filter ("NAME=VALUE NAME=VALUE ..."),
// and the printer's family. None when the file is no PPD.
std::optional<Choices> choicesOf(const std::string& ppdPath, const std::string& options);

}  // namespace cutline::printer
