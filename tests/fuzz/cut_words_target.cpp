// A file of cut words: what it says wrong is named in one line each, and what is left comes to
// settings that a plan can be made of.
#include "base/Visible.h"
#include "host/core/CutWordsText.h"
#include "strip/CutPlan.h"
#include "strip/PlanWords.h"
#include "tests/fuzz/Insist.h"

namespace {

using namespace cutline;

void planWith(const CutWords& words, const std::string& choice) {
  const CutSettings settings =
      settingsIn(words, [&](const std::string&) { return choice; }, {"rastertolabel"});
  LabelRun run;
  run.pages = {1, 2, 3};
  run.copies = 2;
  run.labelLength = 50;
  const CutPlan plan(settings, run);
  fuzz::insist(plan.pieces() <= 6, "no more pieces than labels");
  static_cast<void>(planLines(plan));
  fuzz::insist(!planSentence(plan).english().empty(), "a plan says something");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const CutWordsText read = cutWordsIn(text, "words");
  for (const Sentence& problem : read.problems)
    fuzz::insist(!problem.english().empty(), "a problem says something");
  static_cast<void>(optionsIn(read.words, {}));
  for (const CutWord& word : read.words) planWith(read.words, word.choice);
  for (const char* number : {"3", "1000000", "99999999999"}) planWith(read.words, number);
  return 0;
}
