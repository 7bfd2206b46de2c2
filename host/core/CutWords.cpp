#include "host/core/CutWords.h"

#include <strings.h>

#include <algorithm>
#include <array>

#include "base/Numbers.h"

namespace cutline {

namespace {

struct PlaceFacts {
  CutPlace place;
  CutAuthority authority;
  bool cutsAutomatically;
  bool cutsAtEnd;
  CutUnit unit;
};
// In the order of CutPlace.
constexpr std::array<PlaceFacts, 7> kPlaces = {
    {{CutPlace::never, CutAuthority::Settings, false, false, CutUnit::Label},
     {CutPlace::label, CutAuthority::Settings, true, false, CutUnit::Label},
     {CutPlace::page, CutAuthority::Settings, true, false, CutUnit::Page},
     {CutPlace::copy, CutAuthority::Settings, true, false, CutUnit::Copy},
     {CutPlace::document, CutAuthority::Settings, true, false, CutUnit::Document},
     {CutPlace::job, CutAuthority::Settings, false, true, CutUnit::Label},
     {CutPlace::printer, CutAuthority::Printer, false, false, CutUnit::Label}}};

// A number for a choice that is one; 0 for any other.
unsigned numberOf(const std::string& choice) { return numberIn<unsigned>(choice).value_or(0); }

class Effects {
 public:
  Effects(CutSettings& settings, unsigned number) : mSettings(settings), mNumber(number) {}

  void operator()(CutPlace place) const {
    const PlaceFacts& facts = kPlaces.at(static_cast<std::size_t>(place));
    mSettings.authority = facts.authority;
    mSettings.cutsAutomatically = facts.cutsAutomatically;
    mSettings.cutsAtEnd = facts.cutsAtEnd;
    mSettings.unit = facts.unit;
    mSettings.labelsPerCut = 1;
    mSettings.cutsRest = true;
  }
  // Whether a rest is cut off, too, is for other words to say.
  void operator()(const EveryEffect& every) const {
    mSettings.labelsPerCut = every.labels == 0 ? mNumber : every.labels;
    mSettings.cutsRest = false;
  }
  void operator()(const FlagEffect& effect) const { mSettings.*effect.flag = effect.isOn; }
  void operator()(const LengthEffect& effect) const {
    mSettings.*effect.length = effect.millimetres;
  }

 private:
  CutSettings& mSettings;
  unsigned mNumber;
};

// Capitals do not count in a PPD's words, as libcups reads them.
bool isSame(const std::string& one, const std::string& other) {
  return strcasecmp(one.c_str(), other.c_str()) == 0;
}

bool isMeant(const std::string& word, const std::string& choice) {
  return word == kAnyNumber ? numberOf(choice) > 0 : isSame(word, choice);
}

bool isFor(const CutWord& word, const std::vector<std::string>& filters) {
  return word.filter.empty() || std::ranges::find(filters, word.filter) != filters.end();
}

}  // namespace

CutSettings settingsIn(const CutWords& words, const ChoiceLookup& choiceOf,
                       const std::vector<std::string>& filters) {
  CutSettings settings;
  settings.authority = CutAuthority::Nobody;
  // Nobody says that blank tape leaves the printer first.
  settings.isRoll = true;
  for (const CutWord& word : words) {
    const std::string choice = choiceOf(word.option);
    if (choice.empty() || !isFor(word, filters) || !isMeant(word.choice, choice)) continue;
    if (!word.otherOption.empty() && !isMeant(word.otherChoice, choiceOf(word.otherOption)))
      continue;
    const Effects effects(settings, numberOf(choice));
    for (const CutEffect& effect : word.effects) std::visit(effects, effect);
  }
  return settings;
}

std::vector<std::string> optionsIn(const CutWords& words, const std::vector<std::string>& filters) {
  std::vector<std::string> options;
  const auto add = [&](const std::string& option) {
    const bool isKnown = std::ranges::any_of(
        options, [&](const std::string& known) { return isSame(known, option); });
    if (!option.empty() && !isKnown) options.push_back(option);
  };
  for (const CutWord& word : words) {
    if (!isFor(word, filters)) continue;
    add(word.option);
    add(word.otherOption);
  }
  return options;
}

}  // namespace cutline
