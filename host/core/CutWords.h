// What the choices of other drivers' options ask of the knife. docs/cut-words.md has the words as a
// person writes them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "strip/CutSettings.h"

namespace cutline {

// Where it is cut: the effect "cut".
enum class CutPlace { never, label, page, copy, document, job, printer };

struct EveryEffect {
  unsigned labels = 0;  // 0: the number that the choice is
};
struct FlagEffect {
  bool CutSettings::*flag;
  bool isOn;
};
struct LengthEffect {
  std::optional<double> CutSettings::*length;
  double millimetres;
};
using CutEffect = std::variant<CutPlace, EveryEffect, FlagEffect, LengthEffect>;

struct CutWord {
  std::string option;
  std::string choice;  // kAnyNumber: each whole number from 1
  std::vector<CutEffect> effects;
  std::string otherOption, otherChoice;  // both empty: whatever else is chosen
  std::string filter;                    // empty: with every filter
};
inline constexpr char kAnyNumber[] = "NUMBER";

// Later ones win.
using CutWords = std::vector<CutWord>;

// The choice that is in force for an option; empty for an option that there is not.
using ChoiceLookup = std::function<std::string(const std::string& option)>;

// What the choices come to with these filters. Where no word says where it is cut, the driver has
// said nothing of it.
CutSettings settingsIn(const CutWords& words, const ChoiceLookup& choiceOf,
                       const std::vector<std::string>& filters);

// The options that the words for these filters name, each once, in their order.
std::vector<std::string> optionsIn(const CutWords& words, const std::vector<std::string>& filters);

}  // namespace cutline
