#include "host/core/JobPlan.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "composition/PickedPages.h"
#include "cups/PpdFacts.h"
#include "host/core/CutSettingsReader.h"
#include "host/core/PrintModel.h"

namespace cutline {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;

// What has the print system print the whole document once a copy.
constexpr std::array<std::pair<std::string_view, std::string_view>, 2> kCollating = {
    {{"collate", "true"}, {"multiple-document-handling", "separate-documents-collated-copies"}}};

bool isSame(const std::string& text, std::string_view other) {
  return strcasecmp(text.c_str(), other.data()) == 0;
}

bool isCollated(const OptionList& options) {
  return std::any_of(options.begin(), options.end(), [](const auto& option) {
    return std::any_of(kCollating.begin(), kCollating.end(), [&](const auto& row) {
      return isSame(option.first, row.first) && isSame(option.second, row.second);
    });
  });
}

// Counted from 1.
std::vector<unsigned> pagesOf(const PrintModel& model, int documentPages) {
  std::vector<unsigned> pages;
  for (const int page : pickedPages(model.pageSelection(), documentPages))
    pages.push_back(static_cast<unsigned>(page) + 1);
  return pages;
}

}  // namespace

CutPlan planFor(const PrintModel& model, std::optional<int> documentPages) {
  LabelRun run;
  run.pages = documentPages ? pagesOf(model, *documentPages) : std::vector<unsigned>{1};
  run.copies = static_cast<unsigned>(model.copies());
  run.isCollated = isCollated(model.jobOptions());
  run.printerRepeats = printerMakesCopies(*model.ppdFile());
  const double length = model.currentPaper().length;
  if (length > 0) run.labelLength = length * kMillimetresPerInch / kPointsPerInch;
  return {cutSettingsOf(*model.ppdFile()), run};
}

}  // namespace cutline
