// Opening a printer: whatever is asked for is shown, marked and sent, but for the three rules.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "host/core/CutRules.h"
#include "tests/host/Dialog.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

OptionList asList(const Choices& choices) { return {choices.begin(), choices.end()}; }

test::TestPrinter without(test::TestPrinter printer, const std::vector<std::string>& keywords) {
  for (const std::string& keyword : keywords) printer.cutOptions.erase(keyword);
  return printer;
}

test::TestPrinter withAutoCutShown(test::TestPrinter printer) {
  printer.autoCutHidden = "False";
  return printer;
}

test::TestPrinter roll() {
  test::TestPrinter printer;
  printer.isRoll = true;
  printer.cutOptions = {
      {"LxCutLabel", "1"}, {"LxAutoTapeCut", "ON"}, {"LxCutAtEnd", "ON"}, {"LxMirror", "OFF"}};
  return printer;
}

test::TestPrinter withDefaultsOn(test::TestPrinter printer) {
  for (auto& [keyword, choice] : printer.cutOptions) choice = keyword == "LxCutLabel" ? "3" : "ON";
  return printer;
}

struct Kind {
  const char* name;
  std::string text;
};

std::string sample(const std::string& name) {
  std::ostringstream text;
  text << std::ifstream(CUTLINE_SOURCE_DIR "/samples/ppd/" + name + ".ppd").rdbuf();
  return text.str();
}

std::vector<Kind> kinds() {
  const test::TestPrinter tapeWithoutMarks =
      withAutoCutShown(without(test::fullTapePrinter(), {"LxCutLabel", "LxCutMark"}));
  return {
      {"sampleTapeA", sample("tape-a")},
      {"sampleTapeB", sample("tape-b")},
      {"sampleRoll", sample("roll")},
      {"rollWithoutAutoCut", test::ppdText(without(roll(), {"LxAutoTapeCut"}))},
      {"rollOnByDefault", test::ppdText(withDefaultsOn(roll()))},
      {"tapeWithTwoAutoCutBoxes", test::ppdText(withAutoCutShown(test::fullTapePrinter()))},
      {"tapeWithoutAnyAutoCutBox", test::ppdText(without(test::fullTapePrinter(), {"LxCutLabel"}))},
      {"tapeOnByDefault", test::ppdText(withDefaultsOn(test::fullTapePrinter()))},
      {"tapeWithoutMarksOnByDefault", test::ppdText(withDefaultsOn(tapeWithoutMarks))}};
}

// A printer with every combination of its cut options: a bit an option, the first choice or the
// second; the number of labels is the first one or the third.
class Printer {
 public:
  explicit Printer(const Kind& kind) : mPpd(test::ppdFromText(kind.text)) {
    for (const OptionGroup& group : mPpd->optionGroups())
      for (const PpdOption& option : group.options)
        if (isCutKeyword(option.keyword)) mOptions.push_back(option);
  }

  const std::shared_ptr<PpdFile>& ppd() const { return mPpd; }
  std::vector<PaperSize> papers() const { return mPpd->paperSizes(); }
  unsigned combinations() const { return 1U << static_cast<unsigned>(mOptions.size()); }

  Choices combination(unsigned number) const {
    Choices choices;
    for (const PpdOption& option : mOptions) {
      const std::size_t second = option.keyword == "LxCutLabel" ? 2 : 1;
      choices[option.keyword] = option.choices.at((number & 1U) != 0 ? second : 0).name;
      number >>= 1U;
    }
    return choices;
  }

  Choices defaults() const {
    Choices choices;
    for (const PpdOption& option : mOptions) choices[option.keyword] = option.defaultChoice;
    return choices;
  }

 private:
  std::shared_ptr<PpdFile> mPpd;
  std::vector<PpdOption> mOptions;
};

class EachKind : public testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(Sequence, EachKind, testing::ValuesIn(kinds()),
                         [](const auto& info) { return info.param.name; });

Choices onPaper(Choices choices, const std::string& paper) {
  choices["PageSize"] = paper;
  return choices;
}

// Opening is the slower way, so each combination is opened on one paper, in turn.
TEST_P(EachKind, AskedIsShownMarkedAndSentForEveryCombination) {
  const Printer printer(GetParam());
  const std::vector<PaperSize> papers = printer.papers();
  for (unsigned number = 0; number < printer.combinations(); ++number) {
    const Choices asked = printer.combination(number);
    const std::string paper = papers[number % papers.size()].name;
    Dialog dialog({asList(onPaper(asked, paper)), {}, {}});
    dialog.open(printer.ppd());
    dialog.expectHeldTogether(asked);
    dialog.expectSettled();
    ASSERT_FALSE(HasFailure()) << "combination " << number << " on " << paper;
  }
}

TEST_P(EachKind, PresetsAreShownMarkedAndSentForEveryCombinationAndPaper) {
  const Printer printer(GetParam());
  Dialog dialog;
  dialog.open(printer.ppd());
  for (const PaperSize& paper : printer.papers())
    for (unsigned number = 0; number < printer.combinations(); ++number) {
      const Choices asked = printer.combination(number);
      ASSERT_TRUE(dialog.model().applyPreset(asList(onPaper(asked, paper.name))));
      dialog.expectHeldTogether(asked);
      ASSERT_FALSE(HasFailure()) << "combination " << number << " on " << paper.name;
    }
}

TEST_P(EachKind, WantedChoicesComeBackWhenTheRuleThatChangedThemIsGone) {
  const Printer printer(GetParam());
  Dialog dialog;
  dialog.open(printer.ppd());
  std::vector<PaperSize> papers = printer.papers();
  papers.push_back(dialog.model().currentPaper());
  // Every combination would take long for a printer with all nine options; a step that is no power
  // of two meets each pair of choices.
  const unsigned step = printer.combinations() > 100 ? 7 : 1;
  for (unsigned number = 0; number < printer.combinations(); number += step) {
    const Choices asked = printer.combination(number);
    ASSERT_TRUE(dialog.model().applyPreset(asList(asked)));
    for (const PaperSize& paper : papers) {
      ASSERT_TRUE(dialog.model().setPaper(paper.name));
      dialog.expectHeldTogether(asked);
    }
    Choices wanted = asked;
    if (dialog.marked("LxSpecialTape") == "ON") {
      dialog.click("LxSpecialTape");
      wanted["LxSpecialTape"] = "OFF";
    }
    dialog.expectHeldTogether(wanted);
    ASSERT_FALSE(HasFailure()) << "combination " << number;
  }
}

TEST_P(EachKind, EveryPrinterSwitchStartsFromTheNewPrintersOwnOptions) {
  const Printer printer(GetParam());
  const Choices saved = printer.combination(0xAA);
  Dialog dialog;
  dialog.open(test::ppdFor(withDefaultsOn(test::fullTapePrinter())));
  dialog.open(printer.ppd(), asList(saved));
  dialog.expectHeldTogether(saved);
  dialog.open(test::ppdFor(test::fullTapePrinter()));
  dialog.expectHeldTogether(test::fullTapePrinter().cutOptions);
  dialog.open(printer.ppd());
  dialog.expectHeldTogether(printer.defaults());
}

TEST_P(EachKind, ASavedPresetOpensAsItWasSaved) {
  const Printer printer(GetParam());
  Dialog first({asList(printer.combination(0x155)), 3, {}});
  first.open(printer.ppd());
  const Result<OptionList> preset = first.model().savePreset();
  ASSERT_TRUE(preset);
  const Choices before = first.sent();
  first.model().close();
  Dialog second;
  second.open(printer.ppd(), *preset);
  EXPECT_EQ(second.sent(), before);
  EXPECT_EQ(second.model().copies(), 3);
}

}  // namespace
}  // namespace cutline
