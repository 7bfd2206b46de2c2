// What tape and media do to the cut options, in one place: the panel, its preview, the host and a
// printer each act on their own part of it.
#pragma once

#include <array>
#include <string_view>

namespace cutline {

// What special tape, which must not meet the knife, does to an option.
struct SpecialTapeFacts {
  std::string_view keyword;
  bool savedOff;       // the panel saves its first choice, whatever its box shows
  bool greyed;         // the panel's box cannot be used
  bool outOfPicture;   // the preview draws it as off
  bool withoutEffect;  // the printer does the same with each choice
};

// In the panel's own order. The box of the number of labels is one of automatic cutting.
inline constexpr std::array<SpecialTapeFacts, 9> kUnderSpecialTape = {{
    // keyword          saved  grey   out    without effect
    {"LxCutLabel", false, false, false, true},
    {"LxCutAtEnd", false, false, false, true},
    {"LxMirror", false, false, false, false},
    {"LxAutoTapeCut", true, true, true, true},
    {"LxHalfCut", true, true, true, true},
    {"LxChainPrint", true, true, true, true},
    {"LxSpecialTape", false, false, false, false},
    {"LxRemoveBlkSpace", false, false, false, false},
    {"LxCutMark", true, false, false, true},
}};

// All false for an option that is none of the cut options.
constexpr SpecialTapeFacts underSpecialTape(std::string_view keyword) noexcept {
  for (const SpecialTapeFacts& facts : kUnderSpecialTape)
    if (facts.keyword == keyword) return facts;
  return {keyword, false, false, false, false};
}

// Sizes of labels that are stuck on the tape at fixed places and can't move closer together.
constexpr bool keepsBlankSpace(std::string_view size) noexcept {
  return size.starts_with("DC") || size.starts_with("AV");
}

// Media that an automatic cutter must leave alone, such as heat-shrink tube.
constexpr bool mustNotBeCutAutomatically(std::string_view size) noexcept {
  return size.starts_with("HS");
}

}  // namespace cutline
