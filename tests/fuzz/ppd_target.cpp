// A PPD's bytes: opened, and asked everything that panel and dialog ask.
#include <cups/ppd.h>

#include <memory>
#include <string>

#include "cups/EasedRecords.h"
#include "cups/PpdContents.h"
#include "cups/PpdFacts.h"
#include "cups/PpdFile.h"
#include "cups/PpdRecords.h"
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

using OpenPpd = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

// Every option and choice with what is sent for it.
std::string contentOf(const ppd_file_t* ppd) {
  std::string content;
  for (const ppd_group_t& group : groupsOf(ppd)) {
    content += std::string(group.name) + '\n';
    for (const ppd_option_t& option : optionsOf(group)) {
      content += std::string(option.keyword) + '/' + option.text + ':' + option.defchoice + '\n';
      for (const ppd_choice_t& choice : choicesOf(option))
        content += std::string(choice.choice) + '/' + choice.text + ':' +
                   (choice.code ? choice.code : "none") + '\n';
    }
  }
  return content;
}

// Whatever is in it, options that are kept from libcups come out as it would have read them.
void compareWithLibcups(std::string_view contents) {
  const fuzz::LossesOfLibcups losses;
  const OpenPpd eased(openEased(contents, 0), &ppdClose);
  if (!eased) return;
  const OpenPpd asEver(ppdOpenFd(memoryFile(contents).release()), &ppdClose);
  fuzz::insist(asEver != nullptr, "what libcups refuses is refused");
  fuzz::insist(contentOf(eased.get()) == contentOf(asEver.get()),
               "options are as libcups reads them");
  fuzz::insist(eased->num_attrs == asEver->num_attrs, "attributes are as many");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string contents(reinterpret_cast<const char*>(data), size);
  const auto ppd = fuzz::openPpd(contents);
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
  compareWithLibcups(contents);
  return 0;
}
