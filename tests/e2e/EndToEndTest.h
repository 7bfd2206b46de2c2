// What the tests of the whole share: one print server a program, a clean home a test, and what was
// printed since the test began.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "cups/Destination.h"
#include "cups/PpdFile.h"
#include "host/core/PluginLoader.h"
#include "tests/e2e/PrintedJob.h"

namespace cutline::test {

// The sample printers' queues.
inline constexpr const char* kPrinters[] = {"tape24", "tapeb", "roll62"};

PrivateServer& server();
// The build tree's bundles, loaded once a process.
PluginLoader& plugIns();
// The build tree's files, as in an installation.
std::string built(const std::string& path);
// Twelve labels on as many pages.
std::string labels();
constexpr int kLabels = 12;

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

class EndToEndTest : public testing::Test {
 protected:
  EndToEndTest();

  // The one job that was printed since the test began, or since the last call. Fails the test, and
  // answers an empty job, unless there is exactly one.
  PrintedJob newJob();
  // Whether nothing was printed since then; waits until the server has no job left.
  bool nothingNew() const;

 private:
  std::set<int> mBefore;
};

}  // namespace cutline::test
