#include "tests/support/OtherDrivers.h"

namespace cutline::test {

namespace {

std::string option(const std::string& keyword, const std::vector<std::string>& choices) {
  std::string text = "*OpenUI *" + keyword + "/" + keyword + ": PickOne\n*Default" + keyword +
                     ": " + choices.front() + "\n";
  for (const std::string& choice : choices)
    text.append("*").append(keyword).append(" ").append(choice).append(": \"\"\n");
  return text + "*CloseUI: *" + keyword + "\n";
}

std::string filterLine(const std::string& filter) {
  if (filter.empty()) return {};
  return "*cupsFilter: \"application/vnd.cups-raster 50 " + filter + "\"\n";
}

std::vector<std::string> intervals() {
  std::vector<std::string> choices = {"None"};
  for (int labels = 1; labels <= 10; ++labels) choices.push_back(std::to_string(labels));
  return choices;
}

std::string forbidden(const std::string& mode, const std::string& interval) {
  return "*UIConstraints: *inPrintMode " + mode + " *" + interval + "\n*UIConstraints: *" +
         interval + " *inPrintMode " + mode + "\n";
}

}  // namespace

TestPrinter cutMediaPrinter(const std::string& filter, bool printSystemMakesCopies) {
  TestPrinter printer;
  printer.more =
      filterLine(filter) +
      option("CutMedia", {"None", "Auto", "EndOfPage", "EndOfDoc", "EndOfSet", "EndOfJob"}) +
      "*cupsManualCopies: " + (printSystemMakesCopies ? "True" : "False") + "\n";
  return printer;
}

TestPrinter intervalPrinter(const std::string& filter) {
  TestPrinter printer;
  printer.more = filterLine(filter) + forbidden("Standard", "inCutInterval") +
                 forbidden("Tear", "inCutInterval") + forbidden("Standard", "inTearInterval") +
                 forbidden("Cut", "inTearInterval") +
                 option("inPrintMode", {"Standard", "Tear", "Cut"}) +
                 option("inTearInterval", intervals()) + option("inCutInterval", intervals());
  return printer;
}

TestPrinter modePrinter() {
  TestPrinter printer;
  printer.more = option("zePrintMode", {"Saved", "Tear", "Peel", "Rewind", "Applicator", "Cutter"});
  return printer;
}

}  // namespace cutline::test
