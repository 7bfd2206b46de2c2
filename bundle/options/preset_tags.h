// The sixteen presets of the pop-up: the title that identifies an entry in the interface file, the
// tag that does so for good, and the boxes that choosing it sets. Titles are combination names and
// name pictures, too; they are never PPD choices.
#pragma once

#include <array>
#include <cstdint>

#include "bundle/options/option_model.h"

namespace cutline {

inline constexpr int kFirstPresetTag = 1;
inline constexpr int kLastPresetTag = 16;

// What a preset does to a box.
enum class BoxSetting : std::int8_t { keep = -1, off = 0, on = 1 };

// The boxes that presets set, in the order in which they are set. Mirror printing is set off by
// each.
inline constexpr std::array<OptionId, 7> kPresetBoxes = {
    OptionId::cutMark,    OptionId::autoCut,     OptionId::cutEvery, OptionId::halfCut,
    OptionId::chainPrint, OptionId::specialTape, OptionId::cutEnd,
};

struct PresetRow {
  int tag;
  const char* title;
  std::array<BoxSetting, kPresetBoxes.size()> boxes;
};

// The row of a tag; null for a tag outside 1 to 16.
const PresetRow* presetOfTag(int tag) noexcept;

}  // namespace cutline
