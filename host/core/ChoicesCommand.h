// --choices: what can be asked for with -o, and what is in force.
#pragma once

#include "host/core/HeadlessSession.h"

namespace cutline {

// As lpoptions has them, with texts: a line for each option, "LxHalfCut/Half cut between labels:",
// and below it one for each choice, "  ON/On", which begins with a star where it is in force. A
// text that says no more than the word it belongs to is left out.
Result<Done> showChoices(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
