#include "bundle/preview/OptionView13_v400_.h"

#include "bundle/controls/nil_controls.h"
#include "platform/ports/Bundle.h"
#include "platform/ports/Drawing.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

// The label family's pictures by slot: cut every, cut at end, mirror.
constexpr std::array<const char*, 6> kPicturesWN = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn",
};
constexpr std::size_t kFirstMirroredSlotWN = 3;

// The tape family's pictures by slot. The first sixteen count in binary: auto cut, half cut, chain
// printing, mirror. The cut-mark pictures at the end are kept in this order and never chosen.
constexpr std::array<const char*, 22> kPicturesKM = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff",
};
constexpr std::size_t kFirstSpecialTapeSlotKM = 16;

std::shared_ptr<Image> loadPicture(const Bundle* bundle, const char* name) noexcept {
  Toolkit* toolkit = currentPlatform().toolkit;
  if (!bundle || !toolkit) return nullptr;
  const auto path = bundle->pathForImageResource(name);
  return path ? toolkit->imageWithContentsOfFile(*path) : nullptr;
}

template <std::size_t Count>
void loadPictures(const Bundle* bundle, const std::array<const char*, Count>& names,
                  std::array<std::shared_ptr<Image>, Count>& pictures) noexcept {
  for (std::size_t slot = 0; slot < Count; ++slot) {
    pictures[slot] = loadPicture(bundle, names[slot]);
  }
}

}  // namespace

OptionView13_v400_::~OptionView13_v400_() {
  if (mNativeView) mNativeView->setClient(nullptr);
}

OptionView13_v400_* OptionView13_v400_::initWithFrame(const Rect& frame, const Bundle* bundle,
                                                      bool isWN) noexcept {
  Toolkit* toolkit = currentPlatform().toolkit;
  if (toolkit) mNativeView = toolkit->createCustomView(frame, this);
  if (!mNativeView) return nullptr;
  setIsWN(isWN);
  if (this->isWN()) {
    loadPictures(bundle, kPicturesWN, mOptionImgWN);
  } else {
    loadPictures(bundle, kPicturesKM, mOptionImgKM);
  }
  mWords = PictureWords(bundle);
  clearBoxes();
  return this;
}

void OptionView13_v400_::clearBoxes() noexcept {
  mCutEveryChkBx = mCutAndEndChkBx = mMirrorPrintChkBx = nullptr;
  mAutoCutChkBx = mHalfCutChkBx = mChainPrintChkBx = nullptr;
  mSpecialTapeChkBx = mRemoveBlkSpaceChkBx = mCutMarkChkBx = nullptr;
}

bool OptionView13_v400_::isFlipped() const noexcept { return false; }

// Special tape overrides the cuts, whose boxes are then not read. Either of the two cut boxes
// counts: the box that cuts every so many labels drives the automatic cutter, too.
ShownOptions OptionView13_v400_::readBoxes() const noexcept {
  ShownOptions shown{.isWN = isWN(), .specialTape = isShownAndOn(specialTapeChkBx())};
  const bool cutEvery = !shown.specialTape && isShownAndOn(cutEveryChkBx());
  shown.cutAtEnd = isShownAndOn(cutAndEndChkBx());
  shown.mirror = isShownAndOn(mirrorPrintChkBx());
  if (!shown.specialTape) {
    shown.halfCut = isShownAndOn(halfCutChkBx());
    const bool autoCut = isShownAndOn(autoCutChkBx());
    shown.cut = cutEvery || autoCut;
    shown.chainPrint = isShownAndOn(chainPrintChkBx());
  }
  shown.offersHalfCut = isShown(halfCutChkBx());
  shown.offersMirror = isShown(mirrorPrintChkBx());
  return shown;
}

std::shared_ptr<Image> OptionView13_v400_::targetDrawImage() const noexcept {
  const ShownOptions shown = readBoxes();
  const std::size_t mirror = shown.mirror;
  if (shown.isWN) {
    const std::size_t cut = shown.cut ? 2 : (shown.cutAtEnd ? 1 : 0);
    return mOptionImgWN[kFirstMirroredSlotWN * mirror + cut];
  }
  if (shown.specialTape) return mOptionImgKM[kFirstSpecialTapeSlotKM + mirror];
  return mOptionImgKM[8U * shown.cut + 4U * shown.halfCut + 2U * shown.chainPrint + mirror];
}

std::string OptionView13_v400_::accessibilityLabel() const noexcept {
  return mWords.describe(readBoxes());
}

void OptionView13_v400_::drawRect(const Rect& dirty, DrawingContext& context) noexcept {
  if (!mNativeView) return;
  mNativeView->drawSuper(dirty, context);
  const std::shared_ptr<Image> picture = targetDrawImage();
  if (!picture) return;
  context.saveGraphicsState();
  context.lockFocus(*mNativeView);
  context.drawAtPoint(*picture, Point(), Rect(), CompositingOperation::sourceOver, 1.0);
  context.unlockFocus(*mNativeView);
  context.restoreGraphicsState();
}

}  // namespace cutline
