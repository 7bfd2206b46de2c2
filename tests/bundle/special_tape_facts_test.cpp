// The panel and its preview do under special tape what the one table of these facts says.
#include "base/CutFacts.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class SpecialTapeFactsOf : public PanelTest, public testing::WithParamInterface<OptionRow> {
 protected:
  // What the option's box switches: the box of the number of labels is one of automatic cutting.
  static const char* keyword() { return rowOf(GetParam().switchedByBox).keyword; }
  static SpecialTapeFacts facts() { return underSpecialTape(keyword()); }

  // Without its own box automatic cutting is saved from the box of the number of labels.
  void showPrinter(bool isRoll) {
    PpdText text(allNine());
    if (GetParam().id != OptionId::cutEvery) text.attribute("LxAutoCutObjHidden", "False");
    if (isRoll) text.attribute("LxTapeType", "WN");
    showPanel(text);
    for (const OptionRow& row : kOptions) box(row.id)->setState(CheckBox::kOff);
  }
  void putSpecialTape(int state) {
    box(OptionId::specialTape)->setState(state);
    panel->enabledCheck_OP();
  }
  bool pictureFollowsBox() {
    CheckBox* own = box(GetParam().id);
    own->setState(CheckBox::kOff);
    const auto off = panel->mOptionView->targetDrawImage()->path();
    own->setState(CheckBox::kOn);
    return panel->mOptionView->targetDrawImage()->path() != off;
  }
};

TEST_P(SpecialTapeFactsOf, TheChoiceSaved) {
  showPrinter(false);
  box(GetParam().id)->setState(CheckBox::kOn);
  putSpecialTape(CheckBox::kOn);
  panel->setValuesToKey();
  EXPECT_EQ(marked(keyword()) == "OFF", facts().savedOff);
}

TEST_P(SpecialTapeFactsOf, TheBoxGreyed) {
  showPrinter(false);
  putSpecialTape(CheckBox::kOn);
  EXPECT_EQ(!box(GetParam().id)->isEnabled(), facts().greyed);
}

TEST_P(SpecialTapeFactsOf, ThePicture) {
  // Its own box is what the picture follows.
  if (GetParam().id == OptionId::specialTape) {
    showPrinter(false);
    EXPECT_EQ(!pictureFollowsBox(), facts().outOfPicture);
    return;
  }
  bool follows = false;
  bool followsUnderSpecialTape = false;
  for (const bool isRoll : {false, true}) {
    showPrinter(isRoll);
    follows |= pictureFollowsBox();
    putSpecialTape(CheckBox::kOn);
    followsUnderSpecialTape |= pictureFollowsBox();
  }
  EXPECT_EQ(follows && !followsUnderSpecialTape, facts().outOfPicture);
}

INSTANTIATE_TEST_SUITE_P(Each, SpecialTapeFactsOf, testing::ValuesIn(kOptions),
                         [](const auto& info) { return std::string(info.param.keyword); });

TEST(SpecialTapeFacts, HaveARowForEachOptionOfThePanelInItsOrder) {
  for (std::size_t i = 0; i < kOptionCount; ++i)
    EXPECT_EQ(kUnderSpecialTape.at(i).keyword, kOptions.at(i).keyword);
  EXPECT_EQ(kUnderSpecialTape.size(), kOptionCount);
}

}  // namespace
}  // namespace cutline::test
