// What a printer without the cut panel can be asked to cut, in plain meanings, and which choices of
// its driver's options say so.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/OptionList.h"
#include "host/core/CutWords.h"

namespace cutline {

class PpdFile;

enum class CutMeaning { never, eachLabel, everyFew, eachCopy, atEnd, printerDecides };

struct CutOffer {
  CutMeaning meaning = CutMeaning::never;
  unsigned labels = 0;         // of everyFew: between two cuts
  OptionList assignment = {};  // the choices to change; none where it is in force without conflict
};

struct CutMeanings {
  std::vector<CutOffer> offers;  // in the order of CutMeaning, fewer labels first
  // Which of them the choices that are marked now mean. Nothing where the words say nothing of
  // them.
  std::optional<std::size_t> inForce;
};

// What the driver can do: for each meaning the assignment with the fewest changes that leaves none
// of its options in conflict. Other options that conflict go to their defaults. None for a PPD that
// has our own keywords, and for one that no word is about. The marks are as before afterwards.
CutMeanings cutMeaningsOf(const PpdFile& ppd, const CutWords& words);

}  // namespace cutline
