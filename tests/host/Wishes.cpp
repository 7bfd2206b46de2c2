#include "tests/host/Wishes.h"

#include <array>

namespace cutline {

namespace {

bool begins(const std::string& text, const char* prefix) { return text.starts_with(prefix); }

bool isOffUnderSpecialTape(const std::string& keyword) {
  static const std::set<std::string> kKeywords = {"LxAutoTapeCut", "LxHalfCut", "LxChainPrint",
                                                  "LxCutMark"};
  return kKeywords.contains(keyword);
}

// The presets, tag by tag: what they say of each option; a blank says nothing. The cut-every box is
// one of automatic cutting.
struct Preset {
  char autoCutBox, cutEveryBox, halfCut, chain, special, atEnd, mark;
};
constexpr std::array<Preset, 17> kPresets = {{
    {' ', ' ', ' ', ' ', ' ', ' ', ' '},
    {' ', '0', ' ', ' ', ' ', '0', ' '},
    {' ', '0', ' ', ' ', ' ', '1', ' '},
    {' ', '1', ' ', ' ', ' ', '0', ' '},
    {'0', '0', '0', '0', '0', ' ', ' '},
    {'0', '0', '0', '1', '0', ' ', ' '},
    {'0', '0', '1', '0', '0', ' ', ' '},
    {'0', '0', '1', '1', '0', ' ', ' '},
    {'1', '1', '0', '0', '0', ' ', ' '},
    {'1', '1', '0', '1', '0', ' ', ' '},
    {'1', '1', '1', '0', '0', ' ', ' '},
    {'1', '1', '1', '1', '0', ' ', ' '},
    {' ', ' ', ' ', ' ', '1', ' ', ' '},
    {' ', ' ', ' ', '0', ' ', ' ', '1'},
    {' ', ' ', ' ', '1', ' ', ' ', '1'},
    {' ', ' ', ' ', '1', ' ', ' ', '0'},
    {' ', ' ', ' ', '0', ' ', ' ', '0'},
}};

std::string flag(bool on) { return on ? "On" : "Off"; }

}  // namespace

Wishes::Wishes(const PpdFile& ppd, Choices wanted)
    : mOptions(std::make_shared<const OptionTable>(ppd)), mWanted(std::move(wanted)) {
  choosePaper(ppd.markedChoice("PageSize"));
}

std::string Wishes::first(const std::string& keyword) const {
  return mOptions->choiceAt(keyword, 0).value_or("");
}

void Wishes::want(const std::string& keyword, const std::string& choice) {
  if (mOptions->find(keyword) == nullptr) return;
  mWanted[keyword] = choice;
  if (keyword == "LxAutoTapeCut") mAutoCutOffByPaper = false;
}

void Wishes::switchTo(const std::string& keyword, bool on) {
  if (const auto choice = mOptions->choiceAt(keyword, on ? 1 : 0)) want(keyword, *choice);
}

void Wishes::choosePreset(int tag, bool showsAutoCutBox) {
  const Preset& preset = kPresets.at(static_cast<std::size_t>(tag));
  const auto say = [&](const char* keyword, char setting) {
    if (setting != ' ') switchTo(keyword, setting == '1');
  };
  const bool hasCutEveryBox = mOptions->find("LxCutLabel") != nullptr;
  if (showsAutoCutBox) say("LxAutoTapeCut", preset.autoCutBox);
  if (hasCutEveryBox) say("LxAutoTapeCut", preset.cutEveryBox);
  say("LxHalfCut", preset.halfCut);
  say("LxChainPrint", preset.chain);
  say("LxSpecialTape", preset.special);
  say("LxCutAtEnd", preset.atEnd);
  say("LxCutMark", preset.mark);
  say("LxMirror", '0');
}

void Wishes::choosePaper(const std::string& paper) {
  mPaper = paper;
  mAutoCutOffByPaper = begins(paper, "HS");
}

bool Wishes::isOn(const std::string& keyword, const std::string& choice) const {
  return mOptions->position(keyword, choice).value_or(0) > 0;
}

bool Wishes::isSpecial() const { return isOn("LxSpecialTape", shown("LxSpecialTape")); }

std::string Wishes::shown(const std::string& keyword) const {
  if (keyword == "LxAutoTapeCut" && mAutoCutOffByPaper) return first(keyword);
  const auto wanted = mWanted.find(keyword);
  return wanted != mWanted.end() ? wanted->second : "";
}

std::string Wishes::sent(const std::string& keyword) const {
  if (isOffUnderSpecialTape(keyword) && isSpecial()) return first(keyword);
  if (keyword == "LxRemoveBlkSpace" && (begins(mPaper, "DC") || begins(mPaper, "AV")))
    return first(keyword);
  return shown(keyword);
}

std::set<std::string> Wishes::named(const std::set<std::string>& boxes) const {
  std::set<std::string> named;
  for (const auto& [keyword, wanted] : mWanted) {
    const std::string sent = this->sent(keyword);
    const bool isOn = this->isOn(keyword, sent);
    const bool jamsCutter = keyword == "LxAutoTapeCut" && isOn && begins(mPaper, "HS");
    const bool cutsNothing = keyword == "LxCutAtEnd" && isOn && isSpecial();
    const bool isThird = keyword != "LxCutLabel" && mOptions->position(keyword, sent) > 1;
    const bool isUnseen = keyword == "LxAutoTapeCut" && isOn && !boxes.contains(keyword);
    if (sent != wanted || jamsCutter || cutsNothing || isThird || isUnseen) named.insert(keyword);
  }
  return named;
}

std::string Wishes::picture(bool isRoll, const std::set<std::string>& boxes) const {
  const auto on = [&](const char* keyword) {
    return boxes.contains(keyword) && isOn(keyword, sent(keyword));
  };
  const std::string mirror = flag(on("LxMirror"));
  const bool cut = on("LxAutoTapeCut");
  if (isRoll) return "EveryEndMirror" + flag(cut) + flag(!cut && on("LxCutAtEnd")) + mirror;
  if (on("LxSpecialTape")) return "SPMROn" + mirror;
  return "AHCM" + flag(cut) + flag(on("LxHalfCut")) + flag(on("LxChainPrint")) + mirror;
}

}  // namespace cutline
