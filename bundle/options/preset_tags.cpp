#include "bundle/options/preset_tags.h"

namespace cutline {
namespace {

constexpr auto K = BoxSetting::keep;
constexpr auto O = BoxSetting::off;
constexpr auto I = BoxSetting::on;

// clang-format off: rows are read by column
constexpr std::array<PresetRow, kLastPresetTag> kPresets = {{
    //                              mark auto every half chain special end
    {1, "EveryEndMirrorOffOffOff", {{K, K, O, K, K, K, O}}},
    {2, "EveryEndMirrorOffOnOff", {{K, K, O, K, K, K, I}}},
    {3, "EveryEndMirrorOnOffOff", {{K, K, I, K, K, K, O}}},
    {4, "AHCMOffOffOffOff", {{K, O, O, O, O, O, K}}},
    {5, "AHCMOffOffOnOff", {{K, O, O, O, I, O, K}}},
    {6, "AHCMOffOnOffOff", {{K, O, O, I, O, O, K}}},
    {7, "AHCMOffOnOnOff", {{K, O, O, I, I, O, K}}},
    {8, "AHCMOnOffOffOff", {{K, I, I, O, O, O, K}}},
    {9, "AHCMOnOffOnOff", {{K, I, I, O, I, O, K}}},
    {10, "AHCMOnOnOffOff", {{K, I, I, I, O, O, K}}},
    {11, "AHCMOnOnOnOff", {{K, I, I, I, I, O, K}}},
    {12, "SPMROnOff", {{K, K, K, K, K, I, K}}},
    {13, "CTMROnOffOff", {{I, K, K, K, O, K, K}}},
    {14, "CTMROnOnOff", {{I, K, K, K, I, K, K}}},
    {15, "CTMROffOnOff", {{O, K, K, K, I, K, K}}},
    {16, "CTMROffOffOff", {{O, K, K, K, O, K, K}}},
}};
// clang-format on

constexpr bool rowsStandAtTheirTags() noexcept {
  for (std::size_t i = 0; i < kPresets.size(); ++i) {
    if (kPresets[i].tag != static_cast<int>(i) + kFirstPresetTag) return false;
  }
  return true;
}
static_assert(rowsStandAtTheirTags());

}  // namespace

const PresetRow* presetOfTag(int tag) noexcept {
  if (tag < kFirstPresetTag || tag > kLastPresetTag) return nullptr;
  return &kPresets[static_cast<std::size_t>(tag - kFirstPresetTag)];
}

}  // namespace cutline
