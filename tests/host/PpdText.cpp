#include "tests/host/PpdText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "host/core/CutRules.h"
#include "tests/host/TemporaryDirectory.h"

namespace cutline {

namespace {

constexpr char kHeader[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Product: "(Test)"
*Manufacturer: "Test"
*ModelName: "Test printer"
*ShortNickName: "Test printer"
*NickName: "Test printer"
*PSVersion: "(3010.000) 0"
*ColorDevice: False
)ppd";

void addPapers(std::ostream& out, const std::string& keyword, const std::string& defaultPaper) {
  out << "*OpenUI *" << keyword << "/Paper: PickOne\n*Default" << keyword << ": " << defaultPaper
      << "\n";
  for (const char* paper : kTestPapers)
    out << "*" << keyword << " " << paper << "/Paper " << paper << ": \"\"\n";
  out << "*CloseUI: *" << keyword << "\n";
}

void addPaperFacts(std::ostream& out, const std::string& defaultPaper) {
  out << "*DefaultImageableArea: " << defaultPaper << "\n*DefaultPaperDimension: " << defaultPaper
      << "\n";
  for (const char* paper : kTestPapers)
    out << "*ImageableArea " << paper << ": \"0 0 34 200\"\n*PaperDimension " << paper
        << ": \"34 200\"\n";
}

void addOption(std::ostream& out, const std::string& keyword, const std::string& defaultChoice) {
  out << "*OpenUI *" << keyword << "/" << keyword.substr(2) << ": PickOne\n*Default" << keyword
      << ": " << defaultChoice << "\n";
  if (keyword == "LxCutLabel")
    for (int i = 1; i < 10; ++i) out << "*" << keyword << " " << i << ": \"\"\n";
  else
    out << "*" << keyword << " OFF/Off: \"\"\n*" << keyword << " ON/On: \"\"\n";
  out << "*CloseUI: *" << keyword << "\n";
}

}  // namespace

std::string ppdText(const TestPrinter& printer) {
  std::ostringstream out;
  out << kHeader;
  if (printer.isRoll) out << "*LxTapeType: \"WN\"\n";
  if (printer.showsAutoCut) out << "*LxAutoCutObjHidden: \"False\"\n";
  if (!printer.extension.empty()) out << "*APDialogExtension: \"" << printer.extension << "\"\n";
  addPapers(out, "PageSize", printer.paper);
  addPapers(out, "PageRegion", printer.paper);
  addPaperFacts(out, printer.paper);
  for (const std::string_view keyword : kCutKeywords) {
    const auto option = printer.cutOptions.find(std::string(keyword));
    if (option != printer.cutOptions.end()) addOption(out, option->first, option->second);
  }
  out << printer.more;
  return out.str();
}

std::shared_ptr<PpdFile> ppdFromText(const std::string& text) {
  const TemporaryDirectory directory;
  const std::string path = directory.path() + "/test.ppd";
  std::ofstream(path) << text;
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(path);
  if (ppd) return *ppd;
  ADD_FAILURE() << ppd.error().message;
  return nullptr;
}

TestPrinter fullTapePrinter() {
  TestPrinter printer;
  for (const std::string_view keyword : kCutKeywords)
    printer.cutOptions[std::string(keyword)] = keyword == "LxCutLabel" ? "1" : "OFF";
  return printer;
}

}  // namespace cutline
