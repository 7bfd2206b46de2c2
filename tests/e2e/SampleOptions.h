// The sample printers' PPDs and their cut options.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cups/Destination.h"
#include "cups/PpdFile.h"
#include "host/core/PluginLoader.h"
#include "tests/support/PrintedJob.h"

namespace cutline::test {

// The build tree's bundles, loaded once a process.
PluginLoader& plugIns();

// The PPD that the server has for one of its printers, anew.
std::shared_ptr<PpdFile> samplePpd(const std::string& printer);
// Every cut option that the PPD has, with its default.
Choices cutDefaults(const PpdFile& ppd);
// The cut options with two choices, in an order in which they can be clicked: special tape greys
// others, so it comes last.
std::vector<std::string> cutSwitches(const PpdFile& ppd);
Choices asChoices(const OptionList& options);
OptionList asList(const Choices& choices);
// Of `options` those that are among `names`.
Choices only(const Choices& options, const Choices& names);

}  // namespace cutline::test
