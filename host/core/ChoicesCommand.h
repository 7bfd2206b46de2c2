// --choices: what can be asked for with -o, and what is in force.
#pragma once

#include "host/core/HeadlessSession.h"

namespace cutline {

// A line for each option, as lpoptions has them, with texts and commas:
// "LxHalfCut/Half cut between labels: *OFF/Off, ON/On". A star is before the choice in force; a
// text that says no more than the word it belongs to is left out.
Result<Done> showChoices(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
