#include "bundle/preview/PictureWords.h"

#include <array>

#include "platform/ports/Bundle.h"

namespace cutline {
namespace {

struct Fragment {
  const char* key;
  bool (*isSaid)(const ShownOptions& shown);
};

using Shown = const ShownOptions&;

// In the order in which they are said. Of the two families' first fragments exactly one holds. What
// a printer cannot do at all is not mentioned.
constexpr std::array kFragments = {
    Fragment{"RS_Picture_SpecialTape", [](Shown s) { return !s.isWN && s.specialTape; }},
    Fragment{"RS_Picture_AutoCutOn", [](Shown s) { return !s.isWN && !s.specialTape && s.cut; }},
    Fragment{"RS_Picture_AutoCutOff", [](Shown s) { return !s.isWN && !s.specialTape && !s.cut; }},
    Fragment{"RS_Picture_CutEvery", [](Shown s) { return s.isWN && s.cut; }},
    Fragment{"RS_Picture_CutAtEnd", [](Shown s) { return s.isWN && !s.cut && s.cutAtEnd; }},
    Fragment{"RS_Picture_NoCut", [](Shown s) { return s.isWN && !s.cut && !s.cutAtEnd; }},
    Fragment{"RS_Picture_HalfCutOn", [](Shown s) { return !s.isWN && s.halfCut; }},
    Fragment{"RS_Picture_HalfCutOff",
             [](Shown s) { return !s.isWN && s.offersHalfCut && !s.specialTape && !s.halfCut; }},
    Fragment{"RS_Picture_ChainPrint", [](Shown s) { return !s.isWN && s.chainPrint; }},
    Fragment{"RS_Picture_Mirrored", [](Shown s) { return s.mirror; }},
    Fragment{"RS_Picture_NotMirrored", [](Shown s) { return s.offersMirror && !s.mirror; }},
};

std::string localized(const Bundle& bundle, const char* key) {
  return bundle.localizedStringForKey(key, std::nullopt, std::nullopt);
}

}  // namespace

PictureWords::PictureWords(const Bundle* bundle) {
  if (!bundle) return;
  for (const Fragment& fragment : kFragments) {
    mFragments.push_back(localized(*bundle, fragment.key));
  }
  mSeparator = localized(*bundle, "RS_Picture_Separator");
}

std::string PictureWords::describe(const ShownOptions& shown) const {
  std::string words;
  for (std::size_t i = 0; i < mFragments.size(); ++i) {
    if (!kFragments[i].isSaid(shown)) continue;
    if (!words.empty()) words += mSeparator;
    words += mFragments[i];
  }
  return words;
}

}  // namespace cutline
