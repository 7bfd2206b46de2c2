// The number of labels between cuts, over lists of every shape: what is shown, what is marked and
// what is sent agree after each step and each number typed.
#include "plain/PlainControls.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Names = std::vector<std::string>;

Names numbers(int first, int last) {
  Names names;
  for (int i = first; i <= last; ++i) names.push_back(std::to_string(i));
  return names;
}

PpdText counting(const Names& names, const std::string& defaultName) {
  return PpdText()
      .option("LxCutLabel", {names.begin(), names.end()}, defaultName)
      .onOff("LxAutoTapeCut", "ON");
}

class Count : public PanelTest {
 protected:
  void show(const Names& names, const std::string& defaultName) {
    showPanel(counting(names, defaultName));
    useCount();
  }
  // Ticks the box that the number belongs to.
  void useCount() {
    if (box(OptionId::cutEvery)->state() == CheckBox::kOff) click(OptionId::cutEvery);
    ASSERT_TRUE(panel->mCutEveryStpr->isEnabled());
    ASSERT_TRUE(panel->mCutEveryTxBx->isEnabled());
  }
  // False when the stepper is at its end.
  bool step(int by) {
    const int before = panel->mCutEveryStpr->intValue();
    const std::string marksBefore = marked("LxCutLabel");
    dynamic_cast<PlainStepper&>(*panel->mCutEveryStpr).performStep(by);
    return panel->mCutEveryStpr->intValue() != before || marked("LxCutLabel") != marksBefore;
  }
  std::string shown() const { return panel->mCutEveryTxBx->stringValue(); }
  std::string sent() {
    callback->marks.clear();
    panel->saveValuesAndReturnError(nullptr);
    for (const Mark& mark : callback->marks) {
      if (mark.key == "LxCutLabel") return mark.choice;
    }
    return "";
  }
  // What the three say; they must say the same.
  std::string agreed() {
    const std::string name = marked("LxCutLabel");
    EXPECT_EQ(shown(), name);
    EXPECT_EQ(sent(), name);
    EXPECT_EQ(shown(), name) << "after the save";
    return name;
  }
};

// Numbers without end, from zero, from two; gaps; words at either end; downwards; twice; one alone.
const std::vector<Names> kShapes = {
    numbers(1, 99),
    numbers(0, 20),
    numbers(1, 999),
    numbers(2, 5),
    numbers(-3, 3),
    {"1", "2", "5", "10"},
    {"2", "4", "6"},
    {"0", "5", "10"},
    {"1", "2", "3", "Ever"},
    {"1", "5", "Never"},
    {"Never", "1", "2"},
    {"Never", "5", "10"},
    {"Few", "Many"},
    {"3", "2", "1"},
    {"1", "10", "5"},
    {"1", "1x", "2"},
    {"7"},
};

TEST_F(Count, StepsFromEndToEndThroughEveryChoice) {
  for (const Names& names : kShapes) {
    show(names, names.front());
    Names up = {agreed()};
    while (step(+1) && up.size() <= names.size()) up.push_back(agreed());
    EXPECT_EQ(up, names);
    Names down = {agreed()};
    while (step(-1) && down.size() <= names.size()) down.push_back(agreed());
    EXPECT_EQ(down, Names(names.rbegin(), names.rend()));
  }
}

TEST_F(Count, StepsBothWaysFromAnyDefault) {
  for (const Names& names : kShapes) {
    if (names.size() > 99) continue;
    for (std::size_t i = 0; i < names.size(); ++i) {
      show(names, names[i]);
      ASSERT_EQ(agreed(), names[i]);
      EXPECT_EQ(step(-1), i > 0);
      EXPECT_EQ(agreed(), names[i > 0 ? i - 1 : 0]);
      show(names, names[i]);
      EXPECT_EQ(step(+1), i + 1 < names.size());
      EXPECT_EQ(agreed(), names[std::min(i + 1, names.size() - 1)]);
    }
  }
}

TEST_F(Count, TakesStrides) {
  show({"1", "2", "5", "10", "20"}, "2");
  EXPECT_TRUE(step(+2));
  EXPECT_EQ(agreed(), "10");
  EXPECT_TRUE(step(-10));
  EXPECT_EQ(agreed(), "1");
  EXPECT_TRUE(step(+10));
  EXPECT_EQ(agreed(), "20");
}

TEST_F(Count, OneDownFromFiveHundredIsOneLess) {
  show(numbers(1, 999), "500");
  step(-1);
  EXPECT_EQ(agreed(), "499");
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 499);
}

TEST_F(Count, TheStepperShowsTheNumberOfTheChoiceEvenWhereStepsSkipNumbers) {
  show({"1", "2", "5", "12"}, "12");
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 12);
  step(-1);
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 5);
}

TEST_F(Count, WhateverIsTypedAgrees) {
  for (const Names& names : kShapes) {
    show(names, names.back());
    for (int typed = -5; typed <= 25; ++typed) {
      typeCount(std::to_string(typed));
      agreed();
    }
    for (const char* typed : {"", "word", "Custom", "Never", "1000", "99999999999"}) {
      typeCount(typed);
      agreed();
    }
  }
}

TEST_F(Count, EveryNumberOfAListThatRisesByOneCanBeTyped) {
  for (const Names& names : {numbers(1, 99), numbers(0, 20), numbers(2, 5), numbers(1, 200)}) {
    show(names, names.back());
    for (const std::string& name : names) {
      typeCount(name);
      EXPECT_EQ(agreed(), name);
    }
  }
}

// What is typed counts from the first choice, whatever the choices' numbers are.
TEST_F(Count, OddlyATypedNumberChoosesByItsDistanceFromTheFirst) {
  show({"1", "2", "5", "10"}, "1");
  for (const auto& [typed, chosen] :
       std::vector<std::pair<std::string, std::string>>{{"2", "2"}, {"3", "5"}, {"4", "10"}}) {
    typeCount(typed);
    EXPECT_EQ(agreed(), chosen) << typed;
  }
}

TEST_F(Count, OddlyATypedNumberBeyondTheListsLengthChoosesNothing) {
  show({"1", "2", "5", "10"}, "2");
  for (const char* typed : {"5", "10", "50"}) {
    typeCount(typed);
    EXPECT_EQ(agreed(), "2") << typed;
  }
}

// The bounds are the first and the last choice's numbers, and a word's number is 0.
TEST_F(Count, OddlyNoNumberCanBeTypedIntoAListThatEndsInAWord) {
  show({"1", "2", "3", "Never"}, "3");
  for (const char* typed : {"1", "2", "3", "4"}) {
    typeCount(typed);
    EXPECT_EQ(agreed(), "3") << typed;
  }
  typeCount("0");
  EXPECT_EQ(agreed(), "1") << "below the smallest";
}

TEST_F(Count, AChoiceThatTheLibraryAddsIsReachedToo) {
  showPanel(counting(numbers(1, 3), "1")
                .attribute("CustomLxCutLabel True", "")
                .attribute("ParamCustomLxCutLabel Count", "1 int 1 9"));
  ASSERT_EQ(panel->mCutEvery_Choices->size(), 4U);
  useCount();
  Names up = {agreed()};
  while (step(+1) && up.size() < 9) up.push_back(agreed());
  EXPECT_EQ(up, (Names{"1", "2", "3", "Custom"}));
}

TEST_F(Count, AnActionThatMarksNothingShowsWhatIsMarked) {
  show({"1", "2", "5", "10"}, "5");
  panel->PPDOptionKeyValueDidChange("LxCutLabel", "unheard of");
  typeCount("9");
  EXPECT_EQ(agreed(), "5");
}

TEST_F(Count, NothingMarkedAndNoValidDefaultShowsTheFirst) {
  for (const char* defaultName : {"", "None", "77"}) {
    makePanel(counting({"2", "3", "9"}, defaultName).openUnmarked());
    ASSERT_TRUE(panel->panelView());
    panel->willShow();
    EXPECT_EQ(agreed(), "2") << defaultName;
    EXPECT_EQ(panel->mCutEveryStpr->intValue(), 2);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(agreed(), "2") << defaultName;
  }
}

TEST_F(Count, NothingMarkedShowsTheFirstWhereASavePassesTheDefaultOver) {
  makePanel(counting({"2", "3", "9"}, "9").openUnmarked());
  ASSERT_TRUE(panel->panelView());
  panel->willShow();
  EXPECT_EQ(agreed(), "2");
}

TEST_F(Count, AMarkWithoutAValidDefaultIsShown) {
  makePanel(counting({"2", "3", "9"}, "77").openUnmarked());
  ppdMarkOption(ppd.get(), "LxCutLabel", "3");
  ASSERT_TRUE(panel->panelView());
  panel->willShow();
  EXPECT_EQ(agreed(), "3");
}

}  // namespace
}  // namespace cutline::test
