// Opening a printer: whatever is asked for is shown, marked and sent, but for the three rules.
#include <gtest/gtest.h>

#include "host/core/CutRules.h"
#include "tests/host/Dialog.h"
#include "tests/host/PpdText.h"

namespace cutline {
namespace {

OptionList asList(const Choices& choices) { return {choices.begin(), choices.end()}; }

// The combination of the number: a bit an option; LxCutLabel takes 1 or 3.
Choices combination(const TestPrinter& printer, unsigned number) {
  Choices choices;
  for (const auto& [keyword, ignored] : printer.cutOptions) {
    const bool on = (number & 1U) != 0;
    choices[keyword] = keyword == "LxCutLabel" ? (on ? "3" : "1") : (on ? "ON" : "OFF");
    number >>= 1U;
  }
  return choices;
}

unsigned combinations(const TestPrinter& printer) {
  return 1U << static_cast<unsigned>(printer.cutOptions.size());
}

TestPrinter without(TestPrinter printer, const std::vector<std::string>& keywords) {
  for (const std::string& keyword : keywords) printer.cutOptions.erase(keyword);
  return printer;
}

TestPrinter withAutoCutShown(TestPrinter printer) {
  printer.showsAutoCut = true;
  return printer;
}

TestPrinter roll() {
  TestPrinter printer;
  printer.isRoll = true;
  printer.cutOptions = {
      {"LxCutLabel", "1"}, {"LxAutoTapeCut", "ON"}, {"LxCutAtEnd", "ON"}, {"LxMirror", "OFF"}};
  return printer;
}

TestPrinter withDefaultsOn(TestPrinter printer) {
  for (auto& [keyword, choice] : printer.cutOptions) choice = keyword == "LxCutLabel" ? "3" : "ON";
  return printer;
}

struct Kind {
  const char* name;
  TestPrinter printer;
};

std::vector<Kind> kinds() {
  const TestPrinter tapeB =
      withAutoCutShown(without(fullTapePrinter(), {"LxCutLabel", "LxCutMark"}));
  return {{"tapeA", fullTapePrinter()},
          {"tapeB", tapeB},
          {"roll", roll()},
          {"rollWithoutAutoCut", without(roll(), {"LxAutoTapeCut"})},
          {"tapeWithTwoAutoCutBoxes", withAutoCutShown(fullTapePrinter())},
          {"tapeWithoutCutMark", without(fullTapePrinter(), {"LxCutMark"})},
          {"tapeWithoutAnyAutoCutBox", without(fullTapePrinter(), {"LxCutLabel"})},
          {"tapeAOnByDefault", withDefaultsOn(fullTapePrinter())},
          {"tapeBOnByDefault", withDefaultsOn(tapeB)},
          {"rollOnByDefault", withDefaultsOn(roll())}};
}

class EachKind : public testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(Sequence, EachKind, testing::ValuesIn(kinds()),
                         [](const auto& info) { return info.param.name; });

Choices onPaper(Choices choices, const std::string& paper) {
  choices["PageSize"] = paper;
  return choices;
}

// Opening is the slower way, so each combination is opened on one paper, in turn.
TEST_P(EachKind, AskedIsShownMarkedAndSentForEveryCombination) {
  const std::shared_ptr<PpdFile> ppd = ppdFor(GetParam().printer);
  for (unsigned number = 0; number < combinations(GetParam().printer); ++number) {
    const Choices asked = combination(GetParam().printer, number);
    const std::string paper = kTestPapers[number % std::size(kTestPapers)];
    Dialog dialog({asList(onPaper(asked, paper)), {}, {}});
    dialog.open(ppd);
    dialog.expectHeldTogether(asked);
    dialog.expectSettled();
    ASSERT_FALSE(HasFailure()) << "combination " << number << " on " << paper;
  }
}

TEST_P(EachKind, PresetsAreShownMarkedAndSentForEveryCombinationAndPaper) {
  Dialog dialog;
  dialog.open(ppdFor(GetParam().printer));
  for (const char* paper : kTestPapers)
    for (unsigned number = 0; number < combinations(GetParam().printer); ++number) {
      const Choices asked = combination(GetParam().printer, number);
      ASSERT_TRUE(dialog.model().applyPreset(asList(onPaper(asked, paper))));
      dialog.expectHeldTogether(asked);
      ASSERT_FALSE(HasFailure()) << "combination " << number << " on " << paper;
    }
}

TEST_P(EachKind, WantedChoicesComeBackWhenTheRuleThatChangedThemIsGone) {
  const Kind& kind = GetParam();
  Dialog dialog;
  dialog.open(ppdFor(kind.printer));
  for (unsigned number = 0; number < combinations(kind.printer); ++number) {
    const Choices asked = combination(kind.printer, number);
    ASSERT_TRUE(dialog.model().applyPreset(asList(asked)));
    for (const char* paper : {"DC38", "HS12", "AV62", "W24"}) {
      ASSERT_TRUE(dialog.model().setPaper(paper));
      dialog.expectHeldTogether(asked);
    }
    Choices wanted = asked;
    if (dialog.marked("LxSpecialTape") == "ON") {
      dialog.click("LxSpecialTape");
      wanted["LxSpecialTape"] = "OFF";
    }
    dialog.expectHeldTogether(wanted);
    EXPECT_TRUE(dialog.model().deviations().empty());
    ASSERT_FALSE(HasFailure()) << "combination " << number;
  }
}

TEST_P(EachKind, EveryPrinterSwitchStartsFromTheNewPrintersOwnOptions) {
  Dialog dialog;
  dialog.open(ppdFor(withDefaultsOn(fullTapePrinter())));
  const OptionList saved = asList(combination(GetParam().printer, 0xAA));
  dialog.open(ppdFor(GetParam().printer), saved);
  dialog.expectHeldTogether({saved.begin(), saved.end()});
  dialog.open(ppdFor(fullTapePrinter()));
  dialog.expectHeldTogether(fullTapePrinter().cutOptions);
}

TEST_P(EachKind, ASavedPresetOpensAsItWasSaved) {
  Choices asked = combination(GetParam().printer, 0x155);
  asked.erase("LxSpecialTape");
  const std::shared_ptr<PpdFile> ppd = ppdFor(GetParam().printer);
  Dialog first({asList(asked), 3, {}});
  first.open(ppd);
  const Result<OptionList> preset = first.model().savePreset();
  ASSERT_TRUE(preset);
  const Choices before = first.sent();
  first.model().close();
  Dialog second;
  second.open(ppdFor(GetParam().printer), *preset);
  EXPECT_EQ(second.sent(), before);
  EXPECT_EQ(second.model().copies(), 3);
}

}  // namespace
}  // namespace cutline
