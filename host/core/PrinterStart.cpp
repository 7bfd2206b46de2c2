#include "host/core/PrinterStart.h"

#include <algorithm>
#include <cmath>

#include "cups/PpdFacts.h"

namespace cutline {

namespace {

constexpr double kPointsPerHundredth = 72 / 2540.0;
constexpr double kSame = 1;  // point
constexpr char kNoCut[] = "None";

bool isSize(const PaperSize& paper, const MediaMeasures& measures) {
  return std::abs(paper.width - measures.width * kPointsPerHundredth) < kSame &&
         std::abs(paper.length - measures.length * kPointsPerHundredth) < kSame;
}

void addCut(const OptionTable& options, const PpdFile& ppd, const DeviceFacts& device,
            OptionList& start) {
  const PpdOption* cut = options.find(kCutMediaKeyword);
  if (cut == nullptr || cut->defaultChoice != kNoCut) return;
  for (const int finishing : device.finishings)
    for (const auto& option : optionsForFinishing(ppd, finishing))
      if (option.first == kCutMediaKeyword) start.push_back(option);
}

const PaperSize* named(const std::vector<PaperSize>& papers, const std::string& name) {
  const auto found = std::ranges::find(papers, name, &PaperSize::name);
  return found == papers.end() ? nullptr : &*found;
}

// Works around CUPS 2.4.2: the default size of the PPD that it makes for a printer without margins
// lacks the end of its name, and so is none of its sizes.
const PaperSize* defaultPaper(const std::vector<PaperSize>& papers, const std::string& name) {
  if (const PaperSize* paper = named(papers, name)) return paper;
  if (const PaperSize* paper = named(papers, name + ".Borderless")) return paper;
  return papers.empty() ? nullptr : &papers.front();
}

void addPaper(const OptionTable& options, const std::vector<PaperSize>& papers, OptionList& start) {
  const PpdOption* sizes = options.find("PageSize");
  if (sizes == nullptr) return;
  const PaperSize* paper = defaultPaper(papers, sizes->defaultChoice);
  const auto loaded = std::ranges::find_if(papers, &PaperSize::isLoaded);
  if (loaded != papers.end() && !paper->isLoaded) paper = &*loaded;
  if (paper != nullptr && paper->name != sizes->defaultChoice)
    start.emplace_back(sizes->keyword, paper->name);
}

}  // namespace

void markLoaded(std::vector<PaperSize>& papers, const DeviceFacts& device) {
  for (PaperSize& paper : papers)
    paper.isLoaded = std::ranges::any_of(
        device.ready, [&](const MediaMeasures& measures) { return isSize(paper, measures); });
}

OptionList printerStart(const PpdFile& ppd, const OptionTable& options,
                        const std::vector<PaperSize>& papers, const DeviceFacts& device) {
  OptionList start;
  addCut(options, ppd, device, start);
  addPaper(options, papers, start);
  return start;
}

}  // namespace cutline
