#include "cups/PpdFacts.h"

#include <cups/ppd.h>

#include <algorithm>
#include <span>
#include <sstream>
#include <string_view>

#include "cups/PpdFile.h"

namespace cutline {

namespace {

constexpr std::string_view kNoProgram = "-";

// The last word: "application/vnd.cups-raster 50 /usr/lib/cups/filter/rastertolabel".
std::string programIn(std::string_view line) {
  const std::size_t end = line.find_last_not_of(" \t");
  line = line.substr(0, end == std::string_view::npos ? 0 : end + 1);
  return std::string(line.substr(line.find_last_of(" \t/") + 1));
}

void add(std::vector<std::string>& programs, std::string_view line) {
  std::string program = programIn(line);
  const bool isKnown = std::ranges::find(programs, program) != programs.end();
  if (!isKnown && !program.empty() && program != kNoProgram) programs.push_back(std::move(program));
}

}  // namespace

std::vector<std::string> filterPrograms(const PpdFile& ppd) {
  ppd_file_t* file = ppd.get();
  std::vector<std::string> programs;
  for (const char* line : std::span(file->filters, static_cast<std::size_t>(file->num_filters)))
    add(programs, line);
  constexpr const char* kWithBothTypes = "cupsFilter2";
  for (const ppd_attr_t* found = ppdFindAttr(file, kWithBothTypes, nullptr); found != nullptr;
       found = ppdFindNextAttr(file, kWithBothTypes, nullptr))
    if (found->value != nullptr) add(programs, found->value);
  return programs;
}

// *cupsIPPFinishings 60/trim-after-pages: "*CutMedia EndOfPage"
OptionList optionsForFinishing(const PpdFile& ppd, int finishing) {
  const std::string number = std::to_string(finishing);
  const ppd_attr_t* found = ppdFindAttr(ppd.get(), "cupsIPPFinishings", number.c_str());
  OptionList options;
  if (found == nullptr || found->value == nullptr) return options;
  std::istringstream words(found->value);
  std::string keyword;
  std::string choice;
  while (words >> keyword >> choice)
    if (keyword.size() > 1 && keyword.front() == '*')
      options.emplace_back(keyword.substr(1), choice);
  return options;
}

bool printerMakesCopies(const PpdFile& ppd) { return ppd.get()->manual_copies == 0; }

}  // namespace cutline
