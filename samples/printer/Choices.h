// The PPD choices that are in force for a job, and what they ask of the knife.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "strip/CutSettings.h"

namespace cutline::printer {

// By keyword.
using Choices = std::map<std::string, std::string, std::less<>>;

// The name under which the printer's family is told among the choices, and its value for rolls.
inline constexpr const char* kFamilyKey = "LxTapeType";
inline constexpr const char* kRollFamily = "WN";

// Millimetres of tape between print head and knife. A roll is led back instead.
inline constexpr double kTapeLeader = 8;
inline constexpr double kRollLeader = 0;
// Millimetres that are fed behind the last label.
inline constexpr double kFeed = 4;

// The choices that are in force for a job: the defaults of the PPD in the file `ppdPath`, overlaid
// with the job's `options` as the scheduler hands them to a filter ("NAME=VALUE NAME=VALUE ..."),
// and the printer's family. None when the file is no PPD.
std::optional<Choices> choicesOf(const std::string& ppdPath, const std::string& options);

// What they ask for. An option that the printer doesn't have is off.
CutSettings cutSettingsOf(const Choices& choices);

}  // namespace cutline::printer
