// Shows one ready-made picture of the label or tape that would come out with the boxes ticked as
// they are now. It keeps no copy of the options: each drawing reads the boxes afresh.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "bundle/format/Describable.h"
#include "bundle/preview/PictureWords.h"
#include "bundle/preview/ShownOptions.h"
#include "platform/ports/Drawing.h"
#include "platform/ports/Geometry.h"

namespace cutline {

class Bundle;
class CheckBox;

class OptionView13_v400_ : public CustomViewClient, public Describable {
 public:
  OptionView13_v400_() noexcept = default;
  OptionView13_v400_(const OptionView13_v400_&) = delete;
  OptionView13_v400_& operator=(const OptionView13_v400_&) = delete;
  // dealloc
  ~OptionView13_v400_() override;

  std::string description() const noexcept override {
    return describedAs("OptionView13_v400_", this);
  }

  // initWithFrame:withBundle:isWN:  The view itself; null, with nothing loaded, when the toolkit
  // makes no native view. A picture that the bundle lacks leaves its slot empty.
  OptionView13_v400_* initWithFrame(const Rect& frame, const Bundle* bundle, bool isWN) noexcept;

  // The toolkit's view that stands in the view tree for this one; null before initWithFrame. It
  // draws nothing more once this object is gone.
  const std::shared_ptr<CustomView>& nativeView() const noexcept { return mNativeView; }

  bool isFlipped() const noexcept override;
  void drawRect(const Rect& dirty, DrawingContext& context) noexcept override;
  // The picture for the boxes as they are now; null when the bundle lacks it.
  std::shared_ptr<Image> targetDrawImage() const noexcept;
  // That picture in words, in the user's language.
  std::string accessibilityLabel() const noexcept override;

  void setIsWN(bool isWN) noexcept { mIsWN = isWN; }
  bool isWN() const noexcept { return mIsWN; }

  // The boxes are borrowed; one that was never set reads as off.
  void setCutEveryChkBx(CheckBox* box) noexcept { mCutEveryChkBx = box; }
  CheckBox* cutEveryChkBx() const noexcept { return mCutEveryChkBx; }
  void setCutAndEndChkBx(CheckBox* box) noexcept { mCutAndEndChkBx = box; }
  CheckBox* cutAndEndChkBx() const noexcept { return mCutAndEndChkBx; }
  void setMirrorPrintChkBx(CheckBox* box) noexcept { mMirrorPrintChkBx = box; }
  CheckBox* mirrorPrintChkBx() const noexcept { return mMirrorPrintChkBx; }
  void setAutoCutChkBx(CheckBox* box) noexcept { mAutoCutChkBx = box; }
  CheckBox* autoCutChkBx() const noexcept { return mAutoCutChkBx; }
  void setHalfCutChkBx(CheckBox* box) noexcept { mHalfCutChkBx = box; }
  CheckBox* halfCutChkBx() const noexcept { return mHalfCutChkBx; }
  void setChainPrintChkBx(CheckBox* box) noexcept { mChainPrintChkBx = box; }
  CheckBox* chainPrintChkBx() const noexcept { return mChainPrintChkBx; }
  void setSpecialTapeChkBx(CheckBox* box) noexcept { mSpecialTapeChkBx = box; }
  CheckBox* specialTapeChkBx() const noexcept { return mSpecialTapeChkBx; }
  void setRemoveBlkSpaceChkBx(CheckBox* box) noexcept { mRemoveBlkSpaceChkBx = box; }
  CheckBox* removeBlkSpaceChkBx() const noexcept { return mRemoveBlkSpaceChkBx; }
  // There is no reading counterpart: no picture asks for cut marks.
  void setCutMarkChkBx(CheckBox* box) noexcept { mCutMarkChkBx = box; }

  // The fields, in the order of the platform's class; public for tests.
  std::array<std::shared_ptr<Image>, 6> mOptionImgWN;
  std::array<std::shared_ptr<Image>, 22> mOptionImgKM;
  bool mIsWN = false;
  CheckBox* mCutEveryChkBx = nullptr;
  CheckBox* mCutAndEndChkBx = nullptr;
  CheckBox* mMirrorPrintChkBx = nullptr;
  CheckBox* mAutoCutChkBx = nullptr;
  CheckBox* mHalfCutChkBx = nullptr;
  CheckBox* mChainPrintChkBx = nullptr;
  CheckBox* mSpecialTapeChkBx = nullptr;
  CheckBox* mRemoveBlkSpaceChkBx = nullptr;
  CheckBox* mCutMarkChkBx = nullptr;

 private:
  ShownOptions readBoxes() const noexcept;
  void clearBoxes() noexcept;

  std::shared_ptr<CustomView> mNativeView;
  PictureWords mWords;
};

}  // namespace cutline
