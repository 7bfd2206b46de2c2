// Printers whose drivers have other words for cutting than ours.
#pragma once

#include <string>

#include "tests/support/TestPrinter.h"

namespace cutline::test {

// *cupsFilter of that program; none when it is empty.
inline constexpr const char* kLabelFilter = "rastertolabel";

// CutMedia, as print systems make it of an IPP printer's finishings; None is the default.
TestPrinter cutMediaPrinter(const std::string& filter = {}, bool printSystemMakesCopies = false);
// A mode (Standard, Tear, Cut), and an interval for each of the last two, which conflicts with the
// other modes.
TestPrinter intervalPrinter(const std::string& filter = {});
// A mode of several, Saved first.
TestPrinter modePrinter();

}  // namespace cutline::test
