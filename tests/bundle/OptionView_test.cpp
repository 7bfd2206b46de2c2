#include <gtest/gtest.h>

#include <functional>

#include "bundle/preview/OptionView13_v400_.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "platform/ports/Controls.h"
#include "tests/bundle/BoxStates.h"
#include "tests/bundle/TestBundle.h"
#include "tests/bundle/TestPlatform.h"

namespace cutline::test {
namespace {

const std::vector<std::string> kLabelPictures = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn"};
const std::vector<std::string> kTapePictures = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff"};

std::string fileOf(const std::string& name) { return "/bundle/" + name + ".svg"; }

class OptionView : public testing::Test {
 protected:
  void makeView(bool isWN) {
    view = std::make_unique<OptionView13_v400_>();
    ASSERT_EQ(view->initWithFrame({{280, 154}, {264, 84}}, bundle.get(), isWN), view.get());
  }
  void makeViewWithBoxes(bool isWN) {
    makeView(isWN);
    view->setCutEveryChkBx(every.get());
    view->setCutAndEndChkBx(end.get());
    view->setMirrorPrintChkBx(mirror.get());
    view->setAutoCutChkBx(autoCut.get());
    view->setHalfCutChkBx(half.get());
    view->setChainPrintChkBx(chain.get());
    view->setSpecialTapeChkBx(special.get());
    view->setRemoveBlkSpaceChkBx(blank.get());
    view->setCutMarkChkBx(mark.get());
  }
  std::string shown() const {
    const auto image = view->targetDrawImage();
    return image ? image->path() : "(none)";
  }
  std::shared_ptr<CheckBox> newBox() { return platform.toolkit.createCheckBox({}); }

  TestPlatform platform;
  std::shared_ptr<TestBundle> bundle = std::make_shared<TestBundle>();
  std::shared_ptr<CheckBox> every = newBox(), end = newBox(), mirror = newBox(), autoCut = newBox(),
                            half = newBox(), chain = newBox(), special = newBox(), blank = newBox(),
                            mark = newBox();
  std::unique_ptr<OptionView13_v400_> view;
};

TEST_F(OptionView, TheLabelFamilyLoadsItsSixPicturesOnly) {
  makeView(true);
  EXPECT_TRUE(view->isWN());
  EXPECT_EQ(bundle->askedPictures, kLabelPictures);
  for (std::size_t i = 0; i < kLabelPictures.size(); ++i) {
    ASSERT_TRUE(view->mOptionImgWN[i]);
    EXPECT_EQ(view->mOptionImgWN[i]->path(), fileOf(kLabelPictures[i]));
  }
  for (const auto& image : view->mOptionImgKM) EXPECT_FALSE(image);
}

TEST_F(OptionView, TheTapeFamilyLoadsItsTwentyTwoPicturesOnly) {
  makeView(false);
  EXPECT_FALSE(view->isWN());
  EXPECT_EQ(bundle->askedPictures, kTapePictures);
  for (std::size_t i = 0; i < kTapePictures.size(); ++i) {
    ASSERT_TRUE(view->mOptionImgKM[i]);
    EXPECT_EQ(view->mOptionImgKM[i]->path(), fileOf(kTapePictures[i]));
  }
  for (const auto& image : view->mOptionImgWN) EXPECT_FALSE(image);
}

TEST_F(OptionView, ReleasesItsPictures) {
  makeView(false);
  const std::weak_ptr<Image> picture = view->mOptionImgKM[21];
  view.reset();
  EXPECT_TRUE(picture.expired());
}

TEST_F(OptionView, StartsWithoutBoxesAndShowsAllOff) {
  makeView(false);
  EXPECT_EQ(view->cutEveryChkBx(), nullptr);
  EXPECT_EQ(view->mCutMarkChkBx, nullptr);
  EXPECT_EQ(shown(), fileOf("AHCMOffOffOffOff"));
  makeView(true);
  EXPECT_EQ(shown(), fileOf("EveryEndMirrorOffOffOff"));
}

TEST_F(OptionView, HandsBackTheBoxesThatItWasGiven) {
  makeViewWithBoxes(false);
  EXPECT_EQ(view->cutEveryChkBx(), every.get());
  EXPECT_EQ(view->cutAndEndChkBx(), end.get());
  EXPECT_EQ(view->mirrorPrintChkBx(), mirror.get());
  EXPECT_EQ(view->autoCutChkBx(), autoCut.get());
  EXPECT_EQ(view->halfCutChkBx(), half.get());
  EXPECT_EQ(view->chainPrintChkBx(), chain.get());
  EXPECT_EQ(view->specialTapeChkBx(), special.get());
  EXPECT_EQ(view->removeBlkSpaceChkBx(), blank.get());
  EXPECT_EQ(view->mCutMarkChkBx, mark.get());
  view->setIsWN(true);
  EXPECT_TRUE(view->isWN());
}

TEST_F(OptionView, AToolkitThatMakesNoViewGivesNone) {
  platform.toolkit.makesCustomViews = false;
  OptionView13_v400_ failing;
  EXPECT_EQ(failing.initWithFrame({}, bundle.get(), false), nullptr);
  EXPECT_TRUE(bundle->askedPictures.empty());
  platform.dropToolkit();
  EXPECT_EQ(failing.initWithFrame({}, bundle.get(), false), nullptr);
}

TEST_F(OptionView, AMissingPictureIsAnEmptySlotThatDrawsNothing) {
  bundle->missingPictures = {"AHCMOffOffOffOff"};
  makeView(false);
  EXPECT_EQ(view->targetDrawImage(), nullptr);
  RecordingDrawingContext context;
  view->drawRect({}, context);
  EXPECT_TRUE(context.drawnImages().empty());
  EXPECT_TRUE(context.isBalanced());
}

TEST_F(OptionView, WithoutABundleThereAreNoPictures) {
  OptionView13_v400_ bare;
  EXPECT_EQ(bare.initWithFrame({}, nullptr, false), &bare);
  EXPECT_EQ(bare.targetDrawImage(), nullptr);
}

TEST_F(OptionView, DrawsTheWholePictureAtTheOriginOpaquely) {
  makeViewWithBoxes(false);
  special->setState(CheckBox::kOn);
  RecordingDrawingContext context;
  view->drawRect({{10, 10}, {1, 1}}, context);
  ASSERT_EQ(context.drawnImages().size(), 1U);
  const DrawnImage& drawn = context.drawnImages().front();
  EXPECT_EQ(drawn.path, fileOf("SPMROnOff"));
  EXPECT_EQ(drawn.point, Point());
  EXPECT_EQ(drawn.fromRect, Rect());
  EXPECT_EQ(drawn.operation, CompositingOperation::sourceOver);
  EXPECT_EQ(drawn.fraction, 1.0);
  EXPECT_EQ(drawn.focusedView, view->nativeView().get());
  EXPECT_TRUE(context.isBalanced());
  EXPECT_FALSE(view->isFlipped());
}

// A native view that writes down when its own class draws.
class LoggingView : public CustomView, public PlainView {
 public:
  explicit LoggingView(std::vector<std::string>& log) : PlainView(Rect()), mLog(log) {}
  void setClient(CustomViewClient* /*client*/) noexcept override {}
  void drawSuper(const Rect& /*dirty*/, DrawingContext& /*context*/) noexcept override {
    mLog.emplace_back("super");
  }

 private:
  std::vector<std::string>& mLog;
};

class LoggingContext : public DrawingContext {
 public:
  explicit LoggingContext(std::vector<std::string>& log) : mLog(log) {}
  void saveGraphicsState() noexcept override { mLog.emplace_back("save"); }
  void restoreGraphicsState() noexcept override { mLog.emplace_back("restore"); }
  void lockFocus(const View& /*view*/) noexcept override { mLog.emplace_back("lock"); }
  void unlockFocus(const View& /*view*/) noexcept override { mLog.emplace_back("unlock"); }
  void drawAtPoint(const Image& /*image*/, const Point& /*point*/, const Rect& /*fromRect*/,
                   CompositingOperation /*operation*/, double /*fraction*/) noexcept override {
    mLog.emplace_back("draw");
  }

 private:
  std::vector<std::string>& mLog;
};

class LoggingToolkit : public TestToolkit {
 public:
  std::shared_ptr<CustomView> createCustomView(const Rect& /*frame*/,
                                               CustomViewClient* /*client*/) noexcept override {
    return std::make_shared<LoggingView>(log);
  }
  std::vector<std::string> log;
};

TEST_F(OptionView, DrawsInTheFixedOrder) {
  LoggingToolkit toolkit;
  const Platform before = setCurrentPlatform({.toolkit = &toolkit});
  makeView(false);
  LoggingContext context(toolkit.log);
  view->drawRect({}, context);
  EXPECT_EQ(toolkit.log,
            (std::vector<std::string>{"super", "save", "lock", "draw", "unlock", "restore"}));
  view.reset();
  setCurrentPlatform(before);
}

TEST_F(OptionView, TheNativeViewMayOutliveIt) {
  makeViewWithBoxes(false);
  const auto native = std::dynamic_pointer_cast<PlainCustomView>(view->nativeView());
  ASSERT_TRUE(native);
  RecordingDrawingContext context;
  native->draw(context);
  EXPECT_EQ(context.drawnImages().size(), 1U);
  view.reset();
  native->draw(context);
  EXPECT_EQ(context.drawnImages().size(), 1U) << "nothing more is drawn";
}

TEST_F(OptionView, NamedCases) {
  makeViewWithBoxes(false);
  every->setState(1);
  EXPECT_EQ(shown(), fileOf("AHCMOnOffOffOff")) << "cut every stands for auto cut";
  every->setHidden(true);
  EXPECT_EQ(shown(), fileOf("AHCMOffOffOffOff")) << "a hidden box counts as off";
  every->setHidden(false);
  half->setState(1);
  chain->setState(1);
  special->setState(1);
  EXPECT_EQ(shown(), fileOf("SPMROnOff")) << "special tape overrides the cuts";
  mirror->setState(1);
  EXPECT_EQ(shown(), fileOf("SPMROnOn"));
  makeViewWithBoxes(true);
  EXPECT_EQ(shown(), fileOf("EveryEndMirrorOffOffOn")) << "special tape also stops the roll's cuts";
  special->setState(0);
  mirror->setState(0);
  end->setState(1);
  EXPECT_EQ(shown(), fileOf("EveryEndMirrorOnOffOff")) << "cut every goes before cut at end";
}

// What the table says, as a picture name put together from the flags.
struct ExpectedPicture {
  bool isWN, special, every, end, mirror, half, autoCut, chain;

  std::string name() const {
    const auto flag = [](bool on) { return std::string(on ? "On" : "Off"); };
    if (isWN) {
      const bool cut = !special && (every || autoCut);
      return "EveryEndMirror" + flag(cut) + flag(!cut && end) + flag(mirror);
    }
    if (special) return "SPMR" + flag(true) + flag(mirror);
    return "AHCM" + flag(autoCut || every) + flag(half) + flag(chain) + flag(mirror);
  }
};

// Every state of every box, shown and hidden, in both families.
TEST_F(OptionView, ThePictureForEveryCombinationOfBoxes) {
  const std::vector<CheckBox*> boxes = {special.get(), every.get(),   end.get(),  mirror.get(),
                                        half.get(),    autoCut.get(), chain.get()};
  for (const bool isWN : {false, true}) {
    makeViewWithBoxes(isWN);
    // Boxes that no picture asks for.
    blank->setState(isWN ? 1 : 0);
    mark->setState(isWN ? 0 : 1);
    for (std::size_t code = 0; code < combinationsOf(boxes.size()); ++code) {
      const auto on = applyBoxStates(code, boxes);
      const ExpectedPicture expected{isWN, on[0], on[1], on[2], on[3], on[4], on[5], on[6]};
      ASSERT_EQ(shown(), fileOf(expected.name())) << "family " << isWN << ", code " << code;
    }
  }
}

// What the words must say of a picture, from the picture's own name and what the printer offers.
std::string wordsOf(const ExpectedPicture& picture, bool offersHalfCut, bool offersMirror) {
  const auto mirror = [&] {
    if (picture.mirror) return std::string(" mirrored");
    return std::string(offersMirror ? " straight" : "");
  };
  const std::string name = picture.name();
  if (name.starts_with("EveryEndMirrorOn")) return "every" + mirror();
  if (name.starts_with("EveryEndMirrorOffOn")) return "end" + mirror();
  if (picture.isWN) return "uncut" + mirror();
  if (picture.special) return "special" + mirror();
  const std::string cut = name.starts_with("AHCMOn") ? "auto" : "manual";
  const std::string half = picture.half ? " half" : (offersHalfCut ? " whole" : "");
  return cut + half + (picture.chain ? " chain" : "") + mirror();
}

// Every state of every box, shown, hidden and missing, in both families: the words and the picture
// are about the same.
TEST_F(OptionView, TheWordsAgreeWithThePictureForEveryCombinationOfBoxes) {
  bundle->strings = {{"RS_Picture_AutoCutOn", "auto"},       {"RS_Picture_AutoCutOff", "manual"},
                     {"RS_Picture_HalfCutOn", "half"},       {"RS_Picture_HalfCutOff", "whole"},
                     {"RS_Picture_ChainPrint", "chain"},     {"RS_Picture_SpecialTape", "special"},
                     {"RS_Picture_CutEvery", "every"},       {"RS_Picture_CutAtEnd", "end"},
                     {"RS_Picture_NoCut", "uncut"},          {"RS_Picture_Mirrored", "mirrored"},
                     {"RS_Picture_NotMirrored", "straight"}, {"RS_Picture_Separator", " "}};
  const std::vector<CheckBox*> boxes = {special.get(), every.get(),   end.get(),  mirror.get(),
                                        half.get(),    autoCut.get(), chain.get()};
  for (const bool isWN : {false, true}) {
    makeViewWithBoxes(isWN);
    for (std::size_t code = 0; code < combinationsOf(boxes.size()); ++code) {
      const auto on = applyBoxStates(code, boxes);
      const ExpectedPicture expected{isWN, on[0], on[1], on[2], on[3], on[4], on[5], on[6]};
      ASSERT_EQ(shown(), fileOf(expected.name()));
      ASSERT_EQ(view->accessibilityLabel(),
                wordsOf(expected, !half->isHidden(), !mirror->isHidden()))
          << "family " << isWN << ", code " << code;
    }
  }
}

TEST_F(OptionView, TheWordsFollowTheBoxesWithoutADrawing) {
  bundle->strings = {{"RS_Picture_AutoCutOn", "auto"}, {"RS_Picture_AutoCutOff", "manual"}};
  makeViewWithBoxes(false);
  half->setHidden(true);
  mirror->setHidden(true);
  EXPECT_EQ(view->nativeView()->accessibilityLabel(), "manual");
  every->setState(CheckBox::kOn);
  EXPECT_EQ(view->nativeView()->accessibilityLabel(), "auto");
}

TEST_F(OptionView, WithoutBoxesTheWordsSayWhatIsDrawn) {
  bundle->strings = {{"RS_Picture_AutoCutOff", "manual"}};
  makeView(false);
  EXPECT_EQ(view->accessibilityLabel(), "manual");
}

}  // namespace
}  // namespace cutline::test
