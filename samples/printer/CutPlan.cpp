#include "samples/printer/CutPlan.h"

#include <charconv>
#include <string_view>

namespace cutline::printer {
namespace {

std::string_view choiceOf(const Choices& choices, std::string_view keyword) {
  const auto found = choices.find(keyword);
  return found == choices.end() ? std::string_view() : std::string_view(found->second);
}

bool isOn(const Choices& choices, std::string_view keyword) {
  return choiceOf(choices, keyword) == "ON";
}

unsigned countOf(std::string_view text) {
  unsigned count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  return error == std::errc() && count > 0 ? count : 1;
}

// Labels that are stuck on the tape at fixed places can't move closer together.
bool isPreCut(std::string_view size) { return size.starts_with("DC") || size.starts_with("AV"); }

}  // namespace

CutPlan::CutPlan(const Choices& choices)
    : mLabelsPerStrip(countOf(choiceOf(choices, "LxCutLabel"))),
      mMirror(isOn(choices, "LxMirror")),
      mRemoveBlankSpace(isOn(choices, "LxRemoveBlkSpace") &&
                        !isPreCut(choiceOf(choices, "PageSize"))),
      mRoll(choiceOf(choices, kFamilyKey) == kRollFamily) {
  if (isOn(choices, "LxSpecialTape")) return;
  mCutAtEnd = isOn(choices, "LxCutAtEnd");
  mAutoCut = isOn(choices, "LxAutoTapeCut");
  mHalfCut = isOn(choices, "LxHalfCut");
  mChain = isOn(choices, "LxChainPrint");
  mCutMarks = isOn(choices, "LxCutMark");
}

bool CutPlan::stripEndsAfter(unsigned number) const {
  if (!mAutoCut) return false;
  // Half cuts make a strip of labels. With one label to a strip they would be for nothing, so the
  // job becomes one strip.
  if (mHalfCut && mLabelsPerStrip == 1) return false;
  return number % mLabelsPerStrip == 0;
}

Cut CutPlan::afterLabel(unsigned number) const {
  if (stripEndsAfter(number)) return Cut::Full;
  return mHalfCut ? Cut::Half : Cut::None;
}

Cut CutPlan::atEnd() const {
  if (mChain) return Cut::None;
  return mAutoCut || mCutAtEnd ? Cut::Full : Cut::None;
}

}  // namespace cutline::printer
