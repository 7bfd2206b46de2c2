// What a picture has to show, read from its name.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace cutline::pictures {

enum class Family { Roll, Tape, SpecialTape, MarkedTape };

struct Flags {
  Family family = Family::Tape;
  bool every = false;    // roll: each label is cut off
  bool end = false;      // roll: the strip is cut once, after the last label
  bool autoCut = false;  // tape: each label, or with half cut each strip, is cut off
  bool halfCut = false;  // tape: the printed layer is cut, the backing is not
  bool chain = false;    // tape: the last label waits in the printer for the next one
  bool cutMark = false;  // tape: marks are printed where one cuts by hand
  bool special = false;  // fabric and the like, which the cutter must not touch
  bool mirror = false;
};

namespace detail {

struct FamilyNaming {
  std::string_view prefix;
  Family family;
  std::array<bool Flags::*, 4> fields;  // in the order of the name; null: none
};

inline constexpr std::array<FamilyNaming, 4> kFamilyNamings = {{
    {"EveryEndMirror", Family::Roll, {&Flags::every, &Flags::end, &Flags::mirror, nullptr}},
    {"AHCM", Family::Tape, {&Flags::autoCut, &Flags::halfCut, &Flags::chain, &Flags::mirror}},
    {"SPMR", Family::SpecialTape, {&Flags::special, &Flags::mirror, nullptr, nullptr}},
    {"CTMR", Family::MarkedTape, {&Flags::cutMark, &Flags::chain, &Flags::mirror, nullptr}},
}};

// Takes "On" or "Off" off the front of `rest` and gives whether it was "On".
constexpr bool switchTaken(std::string_view& rest) {
  const bool on = rest.starts_with("On");
  rest.remove_prefix(on ? 2 : 3);
  return on;
}

}  // namespace detail

// The flags of a name of the table in Names.h; all off for a name of no known family.
constexpr Flags flagsOf(std::string_view name) {
  Flags flags;
  for (const detail::FamilyNaming& naming : detail::kFamilyNamings) {
    if (!name.starts_with(naming.prefix)) continue;
    name.remove_prefix(naming.prefix.size());
    flags.family = naming.family;
    for (bool Flags::*field : naming.fields) {
      if (field != nullptr) flags.*field = detail::switchTaken(name);
    }
    break;
  }
  return flags;
}

static_assert(flagsOf("AHCMOnOffOnOff").autoCut && flagsOf("AHCMOnOffOnOff").chain);
static_assert(!flagsOf("AHCMOnOffOnOff").halfCut && !flagsOf("AHCMOnOffOnOff").mirror);
static_assert(flagsOf("EveryEndMirrorOffOnOff").end && flagsOf("CTMROnOffOff").cutMark);

}  // namespace cutline::pictures
