// PPD files of printers with any of the nine cut options.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "cups/PpdFile.h"

namespace cutline::test {

// What the tests vary of a printer.
struct TestPrinter {
  // Option keyword and default choice. LxCutLabel offers 1 to 9, the others OFF and ON.
  std::map<std::string, std::string> cutOptions;
  std::set<std::string> offersAuto;  // cut options with a third choice, AUTO
  std::string autoCutHidden;  // LxAutoCutObjHidden; "False" shows its box, and none when empty
  bool isRoll = false;        // LxTapeType "WN"
  std::string paper = "W12";  // the default one of kTestPapers
  std::string extension;      // *APDialogExtension; none when empty
  std::string more;           // further lines
};

inline constexpr const char* kTestPapers[] = {"W12", "W24", "DC38", "AV62", "HS12", "HS24"};

std::string ppdText(const TestPrinter& printer);

// Parses the text; fails the running test and answers null when it is no PPD.
std::shared_ptr<PpdFile> ppdFromText(const std::string& text);
inline std::shared_ptr<PpdFile> ppdFor(const TestPrinter& printer) {
  return ppdFromText(ppdText(printer));
}

// All nine options, off, cutting each label.
TestPrinter fullTapePrinter();

}  // namespace cutline::test
