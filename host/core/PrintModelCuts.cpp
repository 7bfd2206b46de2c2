// The part of PrintModel that has to do with cutting where no panel does it.
#include "host/core/CutWordsFiles.h"
#include "host/core/OpenPrinter.h"
#include "host/core/PrintModel.h"

namespace cutline {

CutMeanings PrintModel::cutMeanings() const {
  return cutMeaningsOf(*ppdFile(), cutWordsFor(*ppdFile()).words);
}

void PrintModel::chooseCut(const CutOffer& offer) {
  if (offer.assignment.empty()) return;
  mPrinter->chooseOptions(offer.assignment);
  tell(ModelChange::options);
}

}  // namespace cutline
