// Automatic cutting as the cut-every group saves it, where boxes and lists are odd.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Marks = std::vector<Mark>;

class AutoCutSave : public PanelTest {
 protected:
  Marks savedWithCutEvery() {
    callback->marks.clear();
    panel->saveSetting_CutLabel();
    return callback->marks;
  }
  // Three choices of automatic cutting, none of them spelled as the two that are saved.
  static PpdText threeChoices() {
    return PpdText().cutLabel(1, 3, "1").option("LxAutoTapeCut", {"None", "Full", "Auto"}, "None");
  }
};

TEST_F(AutoCutSave, OnlyATickedBoxSavesOn) {
  makePanelWithView(PpdText().cutLabel(1, 3, "1").onOff("LxAutoTapeCut", "ON"));
  const std::vector<std::pair<int, std::string>> expected = {
      {CheckBox::kOn, "ON"}, {CheckBox::kOff, "OFF"}, {CheckBox::kMixed, "OFF"}};
  for (const auto& [state, choice] : expected) {
    box(OptionId::cutEvery)->setState(state);
    EXPECT_EQ(savedWithCutEvery(), (Marks{{"LxAutoTapeCut", choice}, {"LxCutLabel", "1"}}))
        << state;
  }
}

TEST_F(AutoCutSave, WithoutTheFieldOnlyTheSecondChoiceSavesOn) {
  bundle->missingOutlets = {"mCutEveryTxBx"};
  makePanelWithView(threeChoices());
  const std::vector<std::pair<const char*, std::string>> expected = {
      {"None", "OFF"}, {"Full", "ON"}, {"Auto", "OFF"}};
  for (const auto& [choice, saved] : expected) {
    ppdMarkOption(ppd.get(), "LxAutoTapeCut", choice);
    EXPECT_EQ(savedWithCutEvery().front(), (Mark{"LxAutoTapeCut", saved})) << choice;
  }
}

TEST_F(AutoCutSave, WithoutTheFieldAnUnmarkedOptionIsSavedByItsDefault) {
  for (const auto& [byDefault, saved] : std::vector<std::pair<std::string, std::string>>{
           {"None", "OFF"}, {"Full", "ON"}, {"Auto", "OFF"}, {"", "OFF"}}) {
    makePanel(PpdText()
                  .cutLabel(1, 3, "1")
                  .option("LxAutoTapeCut", {"None", "Full", "Auto"}, byDefault)
                  .openUnmarked());
    EXPECT_EQ(savedWithCutEvery().front(), (Mark{"LxAutoTapeCut", saved})) << byDefault;
  }
}

TEST_F(AutoCutSave, IsSavedThoughThereAreNoNumbers) {
  makePanelWithView(PpdText().option("LxCutLabel", {}, "").onOff("LxAutoTapeCut"));
  ASSERT_TRUE(panel->mCutEvery_Choices);
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  EXPECT_EQ(savedWithCutEvery(), (Marks{{"LxAutoTapeCut", "ON"}}));
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  EXPECT_EQ(savedWithCutEvery(), (Marks{{"LxAutoTapeCut", "OFF"}}));
}

TEST_F(AutoCutSave, IsSavedThoughItHasNoChoices) {
  makePanelWithView(PpdText().cutLabel(1, 3, "2").option("LxAutoTapeCut", {}, ""));
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  EXPECT_EQ(savedWithCutEvery(), (Marks{{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "2"}}));
}

TEST_F(AutoCutSave, IsNotSavedWithoutSettingsOrNumberOption) {
  makePanelWithView(PpdText().onOff("LxAutoTapeCut", "ON"));
  EXPECT_EQ(savedWithCutEvery(), Marks{});
  callback->hasSettings = false;
  makePanelWithView(PpdText().cutLabel(1, 3, "1").onOff("LxAutoTapeCut", "ON"));
  EXPECT_EQ(savedWithCutEvery(), Marks{});
}

// The keyword as bytes asks the PPD, the one as a text is what the host hears.
class DefaultChoices : public PanelTest {
 protected:
  Marks marksOf(const char* asked, const std::string& told) {
    callback->marks.clear();
    panel->setDefaultChoices(panel->mMirror_Option, panel->mMirror_Choices.get(), asked, told);
    return callback->marks;
  }
};

TEST_F(DefaultChoices, TheFirstKeywordAsksAndTheSecondIsTold) {
  makePanel(PpdText().onOff("LxMirror", "ON").onOff("LxHalfCut").openUnmarked());
  EXPECT_EQ(marksOf("LxMirror", "Told"), (Marks{{"Told", "ON"}}));
  ppdMarkOption(ppd.get(), "LxHalfCut", "OFF");
  EXPECT_EQ(marksOf("LxHalfCut", "LxMirror"), Marks{}) << "something is marked for the first";
  EXPECT_EQ(marksOf("LxMirror", "LxHalfCut"), (Marks{{"LxHalfCut", "ON"}}));
}

TEST_F(DefaultChoices, BeforePrintingEachOptionIsAskedAndToldByItsOwnKeyword) {
  const std::vector<std::string>& keywords = nineKeywords();
  for (const std::string& markedOne : keywords) {
    makePanel(allNine().openUnmarked());
    ppdMarkOption(ppd.get(), markedOne.c_str(), markedOne == "LxCutLabel" ? "9" : "ON");
    EXPECT_TRUE(panel->shouldPrint());
    Marks expected;
    for (const std::string& keyword : keywords) {
      if (keyword == markedOne) continue;
      expected.push_back({keyword, keyword == "LxCutLabel" ? "1" : "OFF"});
    }
    EXPECT_EQ(callback->marks, expected) << markedOne;
  }
}

}  // namespace
}  // namespace cutline::test
