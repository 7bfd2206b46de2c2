// The part of PrintModel that has to do with laying documents onto labels.
#include <algorithm>
#include <cmath>

#include "composition/PickedPages.h"
#include "cups/CustomSize.h"
#include "host/core/CutRules.h"
#include "host/core/OpenPrinter.h"
#include "host/core/PrintModel.h"

namespace cutline {
namespace {

// Points.
constexpr double kSameLength = 0.01;
constexpr double kSameWidth = 0.1;

// On a tape a reader holds the paper's length upright; where the driver counts its quarters the
// other way, so does the label.
void setTurns(const PpdFile& ppd, LabelPage& label) {
  const bool isCounterclockwise = ppd.attribute("LandscapeOrientation") == "Plus90";
  const bool isTape = hasCutOptions(ppd) && !isLabelRoll(ppd);
  label.landscape = isCounterclockwise ? 270 : 90;
  label.upright = isTape ? label.landscape : 0;
}

}  // namespace

bool AskedSettings::isRaw() const {
  const auto found = std::find_if(options.rbegin(), options.rend(),
                                  [](const auto& option) { return option.first == "raw"; });
  return found != options.rend() && found->second != "false";
}

JobLayout PrintModel::jobLayout() const {
  if (mLayout) return *mLayout;
  JobLayout layout;
  if (!isOpen()) return layout;
  for (const OptionList& options : mPrinter->layers()) applyLayoutOptions(options, layout);
  return layout;
}

void PrintModel::setJobLayout(const JobLayout& layout) {
  if (layout == jobLayout()) return;
  mLayout = layout;
  tell(ModelChange::composition);
}

LabelPage PrintModel::label() const {
  const PaperSize paper = currentPaper();
  LabelPage label{paper.width, paper.length, paper.left, paper.bottom, paper.right, paper.top};
  setTurns(*ppdFile(), label);
  const std::optional<CustomSizes> custom = ppdFile()->customSizes();
  if (!customLengths() || !jobLayout().followsContent) return label;
  label.isContinuous = true;
  label.left = custom->left;
  label.bottom = custom->bottom;
  label.right = label.width - custom->right;
  label.top = label.length - custom->top;
  return label;
}

std::optional<LengthBounds> PrintModel::customLengths() const {
  const std::optional<CustomSizes> custom = ppdFile()->customSizes();
  const double width = currentPaper().width;
  if (!custom || width < custom->leastWidth - kSameWidth || width > custom->mostWidth + kSameWidth)
    return std::nullopt;
  return LengthBounds{custom->leastLength, custom->mostLength};
}

Result<Done> PrintModel::setCustomLength(double length) {
  return setPaper(CustomSize{currentPaper().width, length}.choice());
}

void PrintModel::takeContentLength(double length) {
  if (std::abs(currentPaper().length - length) < kSameLength) return;
  setCustomLength(length);
}

PageSelection PrintModel::pageSelection() const {
  const JobLayout layout = jobLayout();
  const Result<PageRanges> ranges = PageRanges::parse(pageRanges());
  return {ranges ? *ranges : PageRanges(), layout.pageSet, layout.isReversed};
}

PageList PrintModel::pagesToPrint(int documentPages) const {
  PageSelection selection = pageSelection();
  if (mPicked.documentPages == documentPages && mPicked.selection == selection)
    return mPicked.pages;
  std::vector<unsigned> pages;
  for (const int page : pickedPages(selection, documentPages))
    pages.push_back(static_cast<unsigned>(page) + 1);
  mPicked = {std::move(selection), documentPages, std::move(pages)};
  return mPicked.pages;
}

CompositionRequest PrintModel::compositionRequest() const {
  const JobLayout layout = jobLayout();
  CompositionRequest request;
  request.label = label();
  if (request.label.isContinuous) request.lengthBounds = customLengths();
  request.layout = layout.placing;
  request.text = layout.text;
  request.isMirrored = layout.isMirrored;
  return request;
}

}  // namespace cutline
