// The panel's picture shows what the plan says: as many cuts of each kind, on a leader or none, for
// every combination of the boxes.
#include <algorithm>
#include <filesystem>

#include "bundle/resources/pictures/Flags.h"
#include "strip/CutPlan.h"
#include "tests/bundle/PanelTest.h"
#include "tests/pictures/Meaning.h"
#include "tests/support/Pages.h"

namespace cutline::test {
namespace {

using pictures::Meaning;

// The boxes beside that of the number of labels, and what they stand for.
struct Switch {
  OptionId id;
  bool CutSettings::*effect;
};
constexpr std::array<Switch, 8> kTapeSwitches = {
    {{OptionId::autoCut, &CutSettings::cutsAutomatically},
     {OptionId::cutEnd, &CutSettings::cutsAtEnd},
     {OptionId::halfCut, &CutSettings::halfCuts},
     {OptionId::chainPrint, &CutSettings::chains},
     {OptionId::specialTape, &CutSettings::isSpecialTape},
     {OptionId::cutMark, &CutSettings::printsCutMarks},
     {OptionId::removeBlkSpace, &CutSettings::removesBlankSpace},
     {OptionId::mirror, &CutSettings::mirrors}}};

class PlanAndPicture : public PanelTest {
 protected:
  std::string pictureName() const {
    return std::filesystem::path(panel->mOptionView->targetDrawImage()->path()).stem().string();
  }

  // Puts the boxes as the bits of `number` say, and answers what that asks for.
  template <std::size_t Count>
  CutSettings put(const std::array<Switch, Count>& switches, unsigned number) {
    CutSettings settings;
    for (std::size_t at = 0; at < Count; ++at) {
      const bool isOn = (number >> at & 1U) != 0;
      settings.*switches[at].effect = isOn;
      box(switches[at].id)->setState(isOn ? CheckBox::kOn : CheckBox::kOff);
    }
    return settings;
  }
};

template <std::size_t Count>
const Meaning* meaningOf(const std::string& name, const Meaning (&rows)[Count]) {
  const auto* row = std::find_if(std::begin(rows), std::end(rows), [&](const Meaning& meaning) {
    const std::string stem(meaning.stem);
    return name == stem + "Off" || name == stem + "On";  // and whether it is mirrored
  });
  return row == std::end(rows) ? nullptr : row;
}

CutPlan planOf(const CutSettings& settings, unsigned labels) {
  LabelRun run;
  run.pages = test::pagesUpTo(labels);
  return {settings, run};
}

// The picture of a tape has no sign of cutting at the end; a chain with both kinds of cuts is drawn
// in strips of two labels.
CutSettings asPictured(CutSettings settings) {
  settings.cutsAtEnd = false;
  if (settings.chains && settings.halfCuts) settings.labelsPerCut = 2;
  return settings;
}

TEST_F(PlanAndPicture, AgreeOnATape) {
  PpdText text = allNine();
  text.attribute("LxAutoCutObjHidden", "False");
  showPanel(text);
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  for (unsigned number = 0; number < 1U << kTapeSwitches.size(); ++number) {
    const CutSettings settings = put(kTapeSwitches, number);
    const std::string name = pictureName();
    const Meaning* meaning = meaningOf(name, pictures::kTapeRows);
    ASSERT_NE(meaning, nullptr) << name;
    const pictures::Flags flags = pictures::flagsOf(name);
    const CutPlan plan = planOf(asPictured(settings), flags.chain ? 4 : 3);
    EXPECT_EQ(plan.fullCuts(), static_cast<unsigned>(meaning->fullCuts)) << name;
    EXPECT_EQ(plan.halfCuts(), static_cast<unsigned>(meaning->halfCuts)) << name;
    EXPECT_EQ(plan.rules().hasLeader(), !flags.chain) << name;
    EXPECT_EQ(plan.rules().settings().chains, flags.chain) << name;
    EXPECT_EQ(plan.rules().settings().isSpecialTape, flags.special) << name;
    EXPECT_EQ(plan.rules().settings().mirrors, flags.mirror) << name;
  }
}

// The box that cuts every so many labels is one of automatic cutting.
TEST_F(PlanAndPicture, AgreeOnATapeThatIsCutEveryFewLabels) {
  showPanel(allNine());
  for (const bool isOn : {false, true}) {
    put(kTapeSwitches, 0);
    box(OptionId::cutEvery)->setState(isOn ? CheckBox::kOn : CheckBox::kOff);
    EXPECT_EQ(pictures::flagsOf(pictureName()).autoCut, isOn);
    CutSettings settings{.cutsAutomatically = isOn, .labelsPerCut = 2};
    EXPECT_EQ(planOf(settings, 4).fullCuts() > 0, isOn);
  }
}

constexpr std::array<Switch, 3> kRollSwitches = {
    {{OptionId::cutEvery, &CutSettings::cutsAutomatically},
     {OptionId::cutEnd, &CutSettings::cutsAtEnd},
     {OptionId::mirror, &CutSettings::mirrors}}};

TEST_F(PlanAndPicture, AgreeOnARoll) {
  PpdText text = allNine();
  text.attribute("LxTapeType", "WN");
  showPanel(text);
  put(kTapeSwitches, 0);
  for (unsigned number = 0; number < 1U << kRollSwitches.size(); ++number) {
    CutSettings settings = put(kRollSwitches, number);
    settings.isRoll = true;
    const std::string name = pictureName();
    const Meaning* meaning = meaningOf(name, pictures::kRollRows);
    ASSERT_NE(meaning, nullptr) << name;
    const CutPlan plan = planOf(settings, 3);
    EXPECT_EQ(plan.fullCuts(), static_cast<unsigned>(meaning->fullCuts)) << name;
    EXPECT_EQ(plan.halfCuts(), 0U) << name;
    EXPECT_FALSE(plan.rules().hasLeader()) << name;
    EXPECT_EQ(settings.mirrors, pictures::flagsOf(name).mirror) << name;
  }
}

}  // namespace
}  // namespace cutline::test
