// PPDs as large as they may be: each is opened and shown within the time that is a hang.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "host/core/HeadlessSession.h"
#include "host/core/JobPlan.h"
#include "tests/fuzz/BuiltPlugIns.h"
#include "tests/fuzz/Guarded.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/MemoryPpd.h"
#include "tests/support/OtherDrivers.h"
#include "tests/support/TestPrinter.h"

namespace cutline::fuzz {
namespace {

// Lines made of a pattern, in which # is each number in turn.
std::string lines(const std::string& pattern, int count) {
  std::string text;
  for (int number = 0; number < count; ++number)
    for (const char c : pattern) text += c == '#' ? std::to_string(number) : std::string(1, c);
  return text;
}

std::string ppdWith(const std::string& more, test::TestPrinter printer = test::fullTapePrinter()) {
  printer.more += more;
  return ppdText(printer);
}

// A driver with words of its own, whose choices are gone through for what can be cut.
std::string otherDriver() {
  std::string text = ppdWith(lines("*UIConstraints: *inPrintMode Cut *inTearInterval\n", 19'900),
                             test::intervalPrinter(test::kLabelFilter));
  const std::string end = "*CloseUI: *inCutInterval";
  return text.insert(text.find(end), lines("*inCutInterval 1#: \"\"\n", 900));
}

std::vector<std::string> bigPpds() {
  return {
      ppdWith(lines("*OpenUI *O#/O: PickOne\n*DefaultO#: A\n*O# A: \"\"\n*O# B: \"\"\n"
                    "*CloseUI: *O#\n",
                    9900)),
      ppdWith(lines("*UIConstraints: *LxHalfCut ON *LxChainPrint OFF\n", 19'900)),
      ppdWith(lines("*cupsUIConstraints R#: \"*LxHalfCut ON *LxChainPrint OFF\"\n", 19'900)),
      ppdWith(lines("*PageSize P#: \"\"\n*PaperDimension P#: \"20 100\"\n"
                    "*ImageableArea P#: \"0 0 20 100\"\n",
                    4900)),
      ppdWith("*OpenUI *Many: PickOne\n" + lines("*Many C#: \"\"\n", 60'000) + "*CloseUI: *Many\n"),
      ppdWith(lines("*A#: \"\"\n", 99'000)),
      otherDriver()};
}

void show(const std::string& text) {
  const auto ppd = openPpd(text);
  insist(static_cast<bool>(ppd), "it is not too large");
  std::ostringstream notes;
  const CommandLine line;
  HeadlessSession session(line, builtPlugIns(), notes);
  session.open({{}, *ppd});
  PrintModel& model = session.model();
  model.summary();
  model.conflicts();
  model.generatedOptions();
  model.cutMeanings();
  model.jobOptions();
  planFor(model, 3);
}

TEST(BigPpds, AreOpenedAndShownInTime) {
  const std::vector<std::string> ppds = bigPpds();
  const auto casualty =
      doGuarded(static_cast<unsigned>(ppds.size()), [&](unsigned number) { show(ppds[number]); });
  EXPECT_FALSE(casualty) << "number " << casualty->number << ": " << casualty->how;
}

}  // namespace
}  // namespace cutline::fuzz
