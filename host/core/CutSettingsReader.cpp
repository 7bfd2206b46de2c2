#include "host/core/CutSettingsReader.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "base/CutFacts.h"
#include "base/Numbers.h"
#include "cups/PpdFacts.h"
#include "cups/PpdFile.h"
#include "host/core/CutRules.h"
#include "host/core/CutWordsFiles.h"

namespace cutline {

namespace {

struct Switch {
  const char* keyword;
  bool CutSettings::*effect;
};
constexpr std::array<Switch, 8> kSwitches = {{{"LxAutoTapeCut", &CutSettings::cutsAutomatically},
                                              {"LxCutAtEnd", &CutSettings::cutsAtEnd},
                                              {"LxHalfCut", &CutSettings::halfCuts},
                                              {"LxChainPrint", &CutSettings::chains},
                                              {"LxSpecialTape", &CutSettings::isSpecialTape},
                                              {"LxCutMark", &CutSettings::printsCutMarks},
                                              {"LxRemoveBlkSpace", &CutSettings::removesBlankSpace},
                                              {"LxMirror", &CutSettings::mirrors}}};
constexpr char kEveryKeyword[] = "LxCutLabel";
constexpr char kLeaderAttribute[] = "LxLeaderLength";
constexpr char kFeedAttribute[] = "LxFeedLength";
constexpr double kLongest = 10'000;  // no printer's way from the print head to the knife

std::optional<double> lengthIn(const PpdFile& ppd, const char* attribute) {
  const std::string value = ppd.attribute(attribute);
  std::string_view text = value;
  const std::optional<double> length = takeNumber(text);
  if (!text.empty() || !length || !(*length >= 0 && *length <= kLongest)) return std::nullopt;
  return length;
}

unsigned countIn(const PpdFile& ppd) {
  return std::max(1U, numberIn<unsigned>(ppd.markedChoice(kEveryKeyword)).value_or(1));
}

CutSettings ownSettingsOf(const PpdFile& ppd) {
  CutSettings settings;
  for (const Switch& known : kSwitches)
    settings.*known.effect = ppd.markedChoice(known.keyword) == "ON";
  settings.removesBlankSpace &= !keepsBlankSpace(ppd.markedChoice("PageSize"));
  settings.labelsPerCut = countIn(ppd);
  settings.isRoll = isLabelRoll(ppd);
  settings.leader = lengthIn(ppd, kLeaderAttribute);
  settings.feed = lengthIn(ppd, kFeedAttribute);
  return settings;
}

}  // namespace

CutSettings cutSettingsOf(const PpdFile& ppd, const CutWords& words) {
  if (hasCutOptions(ppd)) return ownSettingsOf(ppd);
  const auto choiceOf = [&](const std::string& option) { return ppd.markedChoice(option); };
  return settingsIn(words, choiceOf, filterPrograms(ppd));
}

CutSettings cutSettingsOf(const PpdFile& ppd) { return cutSettingsOf(ppd, cutWordsFor(ppd).words); }

}  // namespace cutline
