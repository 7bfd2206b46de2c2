// Adapts the loaded interface file to the printer: hides what the PPD doesn't offer, closes the
// rows up, trims the presets and puts the preview in place.
#include <algorithm>
#include <array>
#include <cmath>

#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/options/preset_tags.h"
#include "platform/ports/Bundle.h"

namespace cutline {
namespace {

// In points.
constexpr double kTopMargin = 38;
constexpr int kRowPitch = 26;
constexpr int kCutEveryGroupHeight = 2 * kRowPitch;
constexpr double kFieldOffset = -4;
constexpr double kStepperOffset = -5;
constexpr double kLabelOffset = 2;
constexpr double kMinimumHeight = 150;
constexpr double kPreviewTopOffset = 130;

// Tags of presets; zeroes fill up.
using PresetTags = std::array<int, 6>;

struct LayoutRow {
  OptionId id;
  PresetTags unreachableWithout;  // the presets that need the row
};

// On screen from top to bottom.
constexpr std::array<LayoutRow, kOptionCount> kLayout = {{
    {OptionId::cutMark, {13, 15, 14, 16}},
    {OptionId::cutEvery, {3}},
    {OptionId::autoCut, {8, 9, 10, 11}},
    {OptionId::cutEnd, {2}},
    {OptionId::halfCut, {6, 7, 10, 11}},
    {OptionId::specialTape, {12}},
    {OptionId::chainPrint, {5, 7, 9, 11, 15, 14}},
    {OptionId::mirror, {}},
    {OptionId::removeBlkSpace, {}},
}};

constexpr PresetTags kNotOnRolls = {4};
constexpr PresetTags kNotOnTapes = {1, 2, 3};
constexpr PresetTags kNotBesideCutMark = {4, 5, 7, 9, 11};

constexpr int kRollNoCutTag = 1;
constexpr int kRollCutTag = 3;
constexpr int kLastRollTag = 3;  // the entries with higher tags have a tape's picture
constexpr int kAutoCutTag = 8;
constexpr char kRollAutoCut[] = "RS_RollPreset_AHCMOnOffOffOff";
constexpr char kOtherPreset[] = "RS_OtherPreset";

BoxSetting settingOf(const PresetRow& preset, OptionId option) noexcept {
  const auto box = std::find(kPresetBoxes.begin(), kPresetBoxes.end(), option);
  return preset.boxes[static_cast<std::size_t>(box - kPresetBoxes.begin())];
}

bool turnsCuttingOn(const PresetRow& preset) noexcept {
  return settingOf(preset, OptionId::cutEvery) == BoxSetting::on;
}

// Whether the preset's picture is of a strip that is cut by hand along its marks.
bool showsCuttingByHand(const PopUpItem& item) noexcept {
  const PresetRow* preset = presetOfTag(item.tag);
  return preset && settingOf(*preset, OptionId::cutMark) != BoxSetting::keep;
}

void removePresets(PopUpButton* popUp, const PresetTags& tags) noexcept {
  if (!popUp) return;
  for (const int tag : tags) {
    if (const PresetRow* preset = presetOfTag(tag)) popUp->removeItemWithTitle(preset->title);
  }
}

// Tags tell the entries apart from now on.
void clearTitles(PopUpButton* popUp) noexcept {
  if (!popUp) return;
  const std::size_t count = popUp->items().size();
  for (std::size_t i = 0; i < count; ++i) popUp->setTitleOfItem(i, "");
}

void showAt(View* view, double y) noexcept {
  if (!view) return;
  view->setHidden(false);
  view->setFrameOrigin({view->frame().origin.x, y});
}

void hideAll(const OptionPDE13_v400_& panel) noexcept {
  for (const OptionRow& row : kOptions) setHidden(panel.*row.checkBox, true);
  setHidden(panel.mCutEveryTxBx, true);
  setHidden(panel.mCutEveryStpr, true);
  setHidden(panel.mCutEveryStr, true);
}

bool isShown(const OptionPDE13_v400_& panel, const OptionRow& row) noexcept {
  if (row.id == OptionId::autoCut && panel.mAutoCutHideKey_dec != 1) return false;
  return panel.*row.choices != nullptr;
}

// Where the next row goes, and how much the missing ones have saved.
struct Stack {
  double y;
  std::int32_t removedHeight = 0;
};

// The box in one row; field, stepper and label in a second one on whole points.
void stackCutEveryGroup(const OptionPDE13_v400_& panel, Stack& stack) noexcept {
  const double secondRow = std::trunc(stack.y - kRowPitch);
  showAt(panel.mCutEveryChkBx, stack.y);
  showAt(panel.mCutEveryTxBx, secondRow + kFieldOffset);
  showAt(panel.mCutEveryStpr, secondRow + kStepperOffset);
  showAt(panel.mCutEveryStr, secondRow + kLabelOffset);
  stack.y = secondRow - kRowPitch;
}

void stackRow(const OptionPDE13_v400_& panel, const OptionRow& row, Stack& stack) noexcept {
  if (!isShown(panel, row)) {
    stack.removedHeight += row.id == OptionId::cutEvery ? kCutEveryGroupHeight : kRowPitch;
  } else if (row.id == OptionId::cutEvery) {
    stackCutEveryGroup(panel, stack);
  } else {
    showAt(panel.*row.checkBox, stack.y);
    stack.y -= kRowPitch;
  }
}

void trimPresets(OptionPDE13_v400_& panel) noexcept {
  PopUpButton* popUp = panel.mOptionPopUpButton;
  removePresets(popUp, panel.isWNPrinter() ? kNotOnRolls : kNotOnTapes);
  if (panel.mCutMark_Choices) removePresets(popUp, kNotBesideCutMark);
  for (const LayoutRow& row : kLayout) {
    // The cut-every group carries the auto-cut state of a hidden auto-cut box.
    const bool stillReachable = row.id == OptionId::autoCut && panel.mCutEvery_Choices;
    if (isShown(panel, rowOf(row.id)) || stillReachable) continue;
    removePresets(popUp, row.unreachableWithout);
  }
}

// Puts the preview where the placeholder is, which then leaves the view tree.
void placePreview(OptionPDE13_v400_& panel) noexcept {
  const Rect frame = panel.mOptionDummyView ? panel.mOptionDummyView->frame() : Rect();
  auto preview = std::make_unique<OptionView13_v400_>();
  if (!preview->initWithFrame(frame, panel.nsPDEBundle.get(), panel.isWNPrinter())) return;
  panel.mOptionView = std::move(preview);
  if (View* superview = panel.mOptionDummyView ? panel.mOptionDummyView->superview() : nullptr) {
    superview->replaceSubview(panel.mOptionDummyView, panel.mOptionView->nativeView());
    panel.mOptionDummyView = nullptr;
  }
  for (const OptionRow& row : kOptions) {
    (panel.mOptionView.get()->*row.showBoxInPreview)(panel.*row.checkBox);
  }
}

}  // namespace

// The entries' words and pictures are a tape's where the interface file cannot know better.
void OptionPDE13_v400_::dressPresets() noexcept {
  if (!mOptionPopUpButton) return;
  mOptionPopUpButton->setPlaceholder(localizedString(kOtherPreset));
  const std::vector<PopUpItem> items = mOptionPopUpButton->items();
  for (std::size_t i = 0; i < items.size(); ++i) {
    mOptionPopUpButton->setItem(
        i, isWNPrinter() ? dressedForRoll(items[i]) : dressedForTape(items[i]));
  }
}

// Choosing whether marks are printed leaves the cutter as it is: where there is one, the picture of
// a strip that is cut by hand would deny it, and the entry's words stand alone.
PopUpItem OptionPDE13_v400_::dressedForTape(PopUpItem item) noexcept {
  const bool hasCutter = mAutoCut_Option || mHalfCut_Option || mCutEvery_Option || mCutEnd_Option;
  if (hasCutter && showsCuttingByHand(item)) item.imagePath.reset();
  return item;
}

// With a roll's picture; and with other words where a roll's own entry has these: choosing this one
// leaves the cut at the end as it is.
PopUpItem OptionPDE13_v400_::dressedForRoll(PopUpItem item) noexcept {
  const PresetRow* preset = presetOfTag(item.tag);
  if (!preset || item.tag <= kLastRollTag) return item;
  const PresetRow* picture = presetOfTag(turnsCuttingOn(*preset) ? kRollCutTag : kRollNoCutTag);
  item.imagePath = nsPDEBundle ? nsPDEBundle->pathForImageResource(picture->title) : std::nullopt;
  if (item.tag == kAutoCutTag) item.accessibilityLabel = localizedString(kRollAutoCut);
  return item;
}

void OptionPDE13_v400_::awakeFromNib() noexcept {
  const Size size = kPDEView ? kPDEView->frame().size : Size();
  hideAll(*this);
  trimPresets(*this);
  Stack stack{.y = size.height - kTopMargin};
  for (const LayoutRow& row : kLayout) stackRow(*this, rowOf(row.id), stack);
  dressPresets();
  clearTitles(mOptionPopUpButton);

  const double height = std::max(kMinimumHeight, size.height - stack.removedHeight);
  placePreview(*this);
  setViewFrameSize({size.width, height});
  if (!mOptionView) return;
  View& preview = *mOptionView->nativeView();
  preview.setFrameOrigin({preview.frame().origin.x, height - kPreviewTopOffset});
}

}  // namespace cutline
