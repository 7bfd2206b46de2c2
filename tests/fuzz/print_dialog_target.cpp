// A PPD's bytes, in the dialog without a window: every paper, control, choice and offer in turn,
// and after each the summary, what would be sent, and the plan.
#include <sstream>

#include "host/core/HeadlessSession.h"
#include "host/core/JobPlan.h"
#include "plain/PlainTextField.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"
#include "strip/PlanJson.h"
#include "strip/PlanWords.h"
#include "tests/fuzz/BuiltPlugIns.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/MemoryPpd.h"
#include "tests/host/Controls.h"

namespace {

using namespace cutline;

// Of papers and of choices each.
constexpr std::size_t kMostTried = 40;
constexpr int kLabels = 5;

void look(PrintModel& model) {
  model.summary();
  model.deviations();
  model.conflicts();
  model.settings();
  model.jobOptions();
  const CutPlan plan = planFor(model, kLabels);
  std::ostringstream text;
  text << planSentence(plan).english();
  for (const Sentence& line : planLines(plan)) text << line.english();
  writePlanJson(plan, true, text);
  RecordingDrawingContext context;
  for (PlainCustomView* view : test::shownControls<PlainCustomView>(model)) view->draw(context);
  fuzz::insist(context.isBalanced(), "what is drawn is balanced");
}

void tryPapers(PrintModel& model) {
  const std::vector<PaperSize> papers = model.papers();
  for (std::size_t at = 0; at < std::min(kMostTried, papers.size()); ++at) {
    fuzz::insist(static_cast<bool>(model.setPaper(papers[at].name)), "a paper can be chosen");
    look(model);
  }
  if (const auto lengths = model.customLengths()) {
    static_cast<void>(model.setCustomLength(lengths->shortest));
    model.takeContentLength(lengths->longest);
    look(model);
  }
}

void tryControls(PrintModel& model) {
  for (CheckBox* box : test::shownControls<CheckBox>(model)) {
    box->performClick();
    look(model);
    box->performClick();
  }
  for (PopUpButton* presets : test::shownControls<PopUpButton>(model))
    for (const PopUpItem& item : presets->items()) {
      presets->performSelection(item.tag);
      look(model);
    }
  for (PlainTextField* field : test::shownControls<PlainTextField>(model))
    for (const char* text : {"3", "99999999999", "", "x"}) {
      field->typeText(text);
      field->pressReturn();
      look(model);
    }
}

void tryChoices(PrintModel& model) {
  std::size_t tried = 0;
  for (const OptionGroup& group : model.generatedOptions())
    for (const PpdOption& option : group.options)
      for (const OptionChoice& choice : option.choices) {
        if (++tried > kMostTried) return;
        static_cast<void>(model.setOption(option.keyword, choice.name));
        look(model);
      }
}

void tryOffers(PrintModel& model) {
  for (const CutOffer& offer : model.cutMeanings().offers) {
    model.chooseCut(offer);
    look(model);
  }
  static_cast<void>(model.resolveConflicts());
}

void keepAndPrint(PrintModel& model) {
  if (const auto preset = model.savePreset()) static_cast<void>(model.applyPreset(*preset));
  model.reset();
  look(model);
  static_cast<void>(model.prepareToPrint());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto ppd = fuzz::openPpd({reinterpret_cast<const char*>(data), size});
  if (!ppd) return 0;
  const CommandLine line;
  std::ostringstream notes;
  HeadlessSession session(line, fuzz::builtPlugIns(), notes);
  session.open({{}, *ppd});
  PrintModel& model = session.model();
  look(model);
  tryPapers(model);
  tryControls(model);
  tryChoices(model);
  tryOffers(model);
  keepAndPrint(model);
  return 0;
}
