// A PPD's bytes: opened, and asked everything that panel and dialog ask.
#include "cups/PpdContents.h"
#include "cups/PpdFacts.h"
#include "cups/PpdFile.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/MemoryPpd.h"

namespace {

using namespace cutline;

constexpr int kMostMarks = 200;

void markEverything(const PpdFile& ppd) {
  int marks = 0;
  for (const OptionGroup& group : ppd.optionGroups()) {
    for (const PpdOption& option : group.options) {
      static_cast<void>(ppd.checkChoice(option.keyword, "NONE OF THEM"));
      for (const OptionChoice& choice : option.choices) {
        if (++marks > kMostMarks) return;
        ppd.markChoice(option.keyword, choice.name);
        ppd.conflicts();
      }
    }
  }
}

void checkPapers(const PpdFile& ppd) {
  for (const PaperSize& paper : ppd.paperSizes())
    fuzz::insist(paper.width > 0 && paper.length > 0, "papers have a size");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto ppd = fuzz::openPpd({reinterpret_cast<const char*>(data), size});
  if (!ppd) {
    fuzz::insist(!ppd.error().message.empty(), "an error says something");
    return 0;
  }
  (*ppd)->mark({{{"LxHalfCut", "ON"}, {"PageSize", "Custom.20x50mm"}, {"Cutter", "False"}}});
  markEverything(**ppd);
  checkPapers(**ppd);
  (*ppd)->markedOptions();
  (*ppd)->markedPaper();
  (*ppd)->customSizes();
  filterPrograms(**ppd);
  printerMakesCopies(**ppd);
  optionsForFinishing(**ppd, 60);
  return 0;
}
