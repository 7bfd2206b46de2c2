#include "host/core/WantedChoices.h"

#include "base/CutFacts.h"
#include "host/core/CutRules.h"

namespace cutline {

void WantedChoices::want(const std::string& keyword, const std::string& choice) {
  mWanted[keyword] = choice;
  if (keyword == kAutoCutKeyword) mAutoCutIsOffByPaper = false;
}

std::string WantedChoices::wanted(const std::string& keyword) const {
  const auto entry = mWanted.find(keyword);
  return entry != mWanted.end() ? entry->second : "";
}

void WantedChoices::paperWasChosen() {
  mAutoCutIsOffByPaper = mustNotBeCutAutomatically(mPpd.markedChoice("PageSize"));
}

std::string WantedChoices::shown(const std::string& keyword) const {
  const bool isOffByPaper = keyword == kAutoCutKeyword && mAutoCutIsOffByPaper;
  return isOffByPaper ? mOptions.choiceAt(keyword, 0).value_or("") : wanted(keyword);
}

std::string WantedChoices::sent(const std::string& keyword) const {
  const CutRule rule = rulingOver(mPpd, mOptions, keyword);
  if (rule != CutRule::specialTape && rule != CutRule::fixedPaper) return shown(keyword);
  return mOptions.choiceAt(keyword, 0).value_or("");
}

}  // namespace cutline
