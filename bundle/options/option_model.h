// The nine options, once: what belongs together under different names, and the few rules that
// differ from option to option. Every sequence over the options walks this table or an array of its
// ids.
#pragma once

#include <array>
#include <cstdint>

#include "bundle/options/OptionPDE13_v400_.h"

namespace cutline {

// Groups of controls, as bits of the item sets of updateMarkedSelections: and updateUIItem:.
inline constexpr std::uint32_t kItemCutEvery = 0x100;
inline constexpr std::uint32_t kItemCutEnd = 0x200;
inline constexpr std::uint32_t kItemMirror = 0x400;
inline constexpr std::uint32_t kItemAutoCut = 0x800;
inline constexpr std::uint32_t kItemHalfCut = 0x1000;
inline constexpr std::uint32_t kItemChainPrint = 0x2000;
inline constexpr std::uint32_t kItemSpecialTape = 0x4000;
inline constexpr std::uint32_t kItemRemoveBlkSpace = 0x10000;
inline constexpr std::uint32_t kItemOptionPopUp = 0x40000;
inline constexpr std::uint32_t kItemCutMark = 0x80000;

inline constexpr char kOn[] = "ON";
inline constexpr char kOff[] = "OFF";

// In the canonical order.
enum class OptionId : std::uint8_t {
  cutEvery,
  cutEnd,
  mirror,
  autoCut,
  halfCut,
  chainPrint,
  specialTape,
  removeBlkSpace,
  cutMark,
};
inline constexpr std::size_t kOptionCount = 9;

struct OptionRow {
  OptionId id;
  const char* keyword;
  const char* titleKey;    // of the box, when the PPD's option has no readable text
  const char* summaryKey;  // of the summary line, likewise
  std::uint32_t item;
  ppd_option_t* OptionPDE13_v400_::*option;
  std::unique_ptr<ChoiceList> OptionPDE13_v400_::*choices;
  PDEChoice* OptionPDE13_v400_::*selection;
  CheckBox* OptionPDE13_v400_::*checkBox;
  void (OptionView13_v400_::*showBoxInPreview)(CheckBox*) noexcept;
  void (OptionPDE13_v400_::*initializeUI)() noexcept;
  void (OptionPDE13_v400_::*saveSetting)() noexcept;
  OptionId switchedByBox;  // whose choice the box marks: its own but for the cut-every box
  const char* tickedOn;    // the PPD default with which the box starts ticked
  bool savedOffUnderSpecialTape;
  bool refreshedOnlyWhileEnabled;
};

// clang-format off: rows are read by column
#define CUTLINE_OPTION_FIELDS(Stem)                                            \
  &OptionPDE13_v400_::m##Stem##_Option, &OptionPDE13_v400_::m##Stem##_Choices, \
      &OptionPDE13_v400_::m##Stem##_Selection
#define CUTLINE_OPTION_BOX(Box) &OptionPDE13_v400_::m##Box, &OptionView13_v400_::set##Box
#define CUTLINE_OPTION_METHODS(Stem) \
  &OptionPDE13_v400_::initializeUI_##Stem, &OptionPDE13_v400_::saveSetting_##Stem

inline constexpr std::array<OptionRow, kOptionCount> kOptions = {{
    {OptionId::cutEvery, "LxCutLabel", "RS_CutAtEvery", "RS_STitle_CutLabels", kItemCutEvery,
     CUTLINE_OPTION_FIELDS(CutEvery), CUTLINE_OPTION_BOX(CutEveryChkBx),
     CUTLINE_OPTION_METHODS(CutLabel), OptionId::autoCut, "1", false, false},
    {OptionId::cutEnd, "LxCutAtEnd", "RS_CutAtEnd", "RS_STitle_CutAtEnd", kItemCutEnd,
     CUTLINE_OPTION_FIELDS(CutEnd), CUTLINE_OPTION_BOX(CutAndEndChkBx),
     CUTLINE_OPTION_METHODS(CutAtEnd), OptionId::cutEnd, kOn, false, false},
    {OptionId::mirror, "LxMirror", "RS_MirrorPrinting", "RS_STitle_MirrorPrinting", kItemMirror,
     CUTLINE_OPTION_FIELDS(Mirror), CUTLINE_OPTION_BOX(MirrorPrintChkBx),
     CUTLINE_OPTION_METHODS(Mirror), OptionId::mirror, kOn, false, false},
    {OptionId::autoCut, "LxAutoTapeCut", "RS_AutoTapeCut", "RS_STitle_AutoTapeCut", kItemAutoCut,
     CUTLINE_OPTION_FIELDS(AutoCut), CUTLINE_OPTION_BOX(AutoCutChkBx),
     CUTLINE_OPTION_METHODS(AutoCut), OptionId::autoCut, kOn, true, false},
    {OptionId::halfCut, "LxHalfCut", "RS_HalfCut", "RS_STitle_HalfCut", kItemHalfCut,
     CUTLINE_OPTION_FIELDS(HalfCut), CUTLINE_OPTION_BOX(HalfCutChkBx),
     CUTLINE_OPTION_METHODS(HalfCut), OptionId::halfCut, kOn, true, false},
    {OptionId::chainPrint, "LxChainPrint", "RS_ChainPrinting", "RS_STitle_ChainPrint",
     kItemChainPrint, CUTLINE_OPTION_FIELDS(ChainPrint), CUTLINE_OPTION_BOX(ChainPrintChkBx),
     CUTLINE_OPTION_METHODS(ChainPrint), OptionId::chainPrint, kOn, true, false},
    {OptionId::specialTape, "LxSpecialTape", "RS_SpecialTape", "RS_STitle_SpecialTape",
     kItemSpecialTape, CUTLINE_OPTION_FIELDS(SpecialTape), CUTLINE_OPTION_BOX(SpecialTapeChkBx),
     CUTLINE_OPTION_METHODS(SpecialTape), OptionId::specialTape, kOn, false, false},
    {OptionId::removeBlkSpace, "LxRemoveBlkSpace", "RS_RemoveBlkSpace", "RS_STitle_RemoveBlkSpace",
     kItemRemoveBlkSpace, CUTLINE_OPTION_FIELDS(RemoveBlkSpace),
     CUTLINE_OPTION_BOX(RemoveBlkSpaceChkBx), CUTLINE_OPTION_METHODS(RemoveBlkSpace),
     OptionId::removeBlkSpace, kOn, false, true},
    {OptionId::cutMark, "LxCutMark", "RS_CutMark", "RS_STitle_CutMark", kItemCutMark,
     CUTLINE_OPTION_FIELDS(CutMark), CUTLINE_OPTION_BOX(CutMarkChkBx),
     CUTLINE_OPTION_METHODS(CutMark), OptionId::cutMark, kOn, true, true},
}};

#undef CUTLINE_OPTION_FIELDS
#undef CUTLINE_OPTION_BOX
#undef CUTLINE_OPTION_METHODS
// clang-format on

constexpr const OptionRow& rowOf(OptionId id) noexcept {
  return kOptions[static_cast<std::size_t>(id)];
}

constexpr bool rowsStandAtTheirIds() noexcept {
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (kOptions[i].id != static_cast<OptionId>(i)) return false;
  }
  return true;
}
static_assert(rowsStandAtTheirIds());

}  // namespace cutline
