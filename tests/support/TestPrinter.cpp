#include "tests/support/TestPrinter.h"

#include <gtest/gtest.h>

#include "tests/support/PpdText.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

constexpr char kName[] = "Test printer";

void addPapers(PpdText& ppd, const std::string& keyword, const std::string& defaultPaper) {
  std::vector<PpdChoice> papers;
  for (const std::string paper : kTestPapers) papers.emplace_back(paper, "Paper " + paper);
  ppd.option(keyword, papers, defaultPaper, "Paper");
}

void addPaperFacts(PpdText& ppd, const std::string& defaultPaper) {
  ppd.line("*DefaultImageableArea: " + defaultPaper);
  ppd.line("*DefaultPaperDimension: " + defaultPaper);
  for (const std::string paper : kTestPapers) {
    ppd.line("*ImageableArea " + paper + ": \"0 0 34 200\"");
    ppd.line("*PaperDimension " + paper + ": \"34 200\"");
  }
}

void addCutOption(PpdText& ppd, const std::string& keyword, const std::string& defaultChoice,
                  bool offersAuto) {
  if (keyword == "LxCutLabel") {
    ppd.cutLabel(1, 9, defaultChoice);
    return;
  }
  std::vector<PpdChoice> choices = {{"OFF", "Off"}, {"ON", "On"}};
  if (offersAuto) choices.emplace_back("AUTO", "Auto");
  ppd.option(keyword, choices, defaultChoice, keyword.substr(2));
}

}  // namespace

std::string ppdText(const TestPrinter& printer) {
  PpdText ppd;
  ppd.line("*LanguageVersion: English").attribute("Manufacturer", "Test");
  for (const char* name : {"ModelName", "ShortNickName", "NickName"}) ppd.attribute(name, kName);
  ppd.line("*ColorDevice: False");
  if (printer.isRoll) ppd.attribute("LxTapeType", "WN");
  if (!printer.autoCutHidden.empty()) ppd.attribute("LxAutoCutObjHidden", printer.autoCutHidden);
  if (!printer.extension.empty()) ppd.attribute("APDialogExtension", printer.extension);
  addPapers(ppd, "PageSize", printer.paper);
  addPapers(ppd, "PageRegion", printer.paper);
  addPaperFacts(ppd, printer.paper);
  for (const std::string& keyword : nineKeywords()) {
    const auto option = printer.cutOptions.find(keyword);
    if (option != printer.cutOptions.end())
      addCutOption(ppd, keyword, option->second, printer.offersAuto.contains(keyword));
  }
  return ppd.text() + printer.more;
}

std::shared_ptr<PpdFile> ppdFromText(const std::string& text) {
  const TemporaryFolder folder;
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(folder.write("test.ppd", text));
  if (ppd) return *ppd;
  ADD_FAILURE() << ppd.error().message;
  return nullptr;
}

TestPrinter fullTapePrinter() {
  TestPrinter printer;
  for (const std::string& keyword : nineKeywords())
    printer.cutOptions[keyword] = keyword == "LxCutLabel" ? "1" : "OFF";
  return printer;
}

}  // namespace cutline::test
