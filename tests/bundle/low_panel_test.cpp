// Panels that are too low for their rows, and lengths that show each digit of the factor.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class LowPanel : public PanelTest {
 protected:
  // The y of the cut-every group's controls while the panel has its design height: it grows to 150
  // points at least, and the controls keep their distance to the top.
  struct Group {
    double box, field, stepper, label, next;
    friend bool operator==(const Group&, const Group&) = default;
  };
  Group groupAt(double designHeight, const PpdText& text) {
    bundle->panelSize.height = designHeight;
    makePanelWithView(text);
    const double grown = panel->kPDEView->frame().size.height - designHeight;
    const auto y = [&](const View* view) { return view->frame().origin.y - grown; };
    return {y(box(OptionId::cutEvery)), y(panel->mCutEveryTxBx), y(panel->mCutEveryStpr),
            y(panel->mCutEveryStr), y(box(OptionId::cutEnd))};
  }
};

TEST_F(LowPanel, TheSecondRowIsCutTowardsZeroBelowThePanelsEdge) {
  const PpdText text = PpdText().cutLabel(1, 3, "1").onOff("LxCutAtEnd");
  // 0.5 - 26 is cut to -25, not to -26.
  EXPECT_EQ(groupAt(38.5, text), (Group{0.5, -29, -30, -23, -51}));
  EXPECT_EQ(groupAt(38.25, text), (Group{0.25, -29, -30, -23, -51}));
  // 26.5 - 26 is cut to 0, and -0.5 to 0.
  EXPECT_EQ(groupAt(64.5, text), (Group{26.5, -4, -5, 2, -26}));
  EXPECT_EQ(groupAt(63.5, text), (Group{25.5, -4, -5, 2, -26}));
}

TEST_F(LowPanel, APanelWithoutHeightHasItsRowsBelow) {
  const PpdText text = PpdText().cutLabel(1, 3, "1").onOff("LxCutAtEnd").onOff("LxCutMark");
  EXPECT_EQ(groupAt(0, text), (Group{-64, -94, -95, -88, -116}));
  EXPECT_EQ(groupAt(0.75, text), (Group{-63.25, -93, -94, -87, -115}));
}

class TapeLength : public testing::Test {
 protected:
  double lengthOf(double height) {
    ScriptedPaper paper;
    ScriptedPageFormat format;
    paper.height = height;
    format.paper = &paper;
    TapeInfo info;
    EXPECT_EQ(GetTapeInfo(nullptr, nullptr, &format, nullptr, &info), noErr);
    return info.tapeLength;
  }
};

// A factor of 0.03937008 or 1 / 25.4 would be five millimetres off.
TEST_F(TapeLength, TenKilometresAreCountedWithTheFactor0Point0393701) {
  EXPECT_NEAR(lengthOf(10000000 * 0.0393701 * 72), 10000000, 0.01);
  EXPECT_NEAR(MiriToInch(10000000), 393701, 1e-6);
  EXPECT_NEAR(InchToMiri(393701), 10000000, 1e-6);
}

TEST_F(TapeLength, ANegativeHeightIsCountedTooAndOnlyZeroIsNone) {
  EXPECT_NEAR(lengthOf(-72 * 0.0393701), -1, 1e-9);
  EXPECT_NEAR(lengthOf(1e-6), 1e-6 / 72 / 0.0393701, 1e-12);
  EXPECT_EQ(lengthOf(0), 100.0);
}

}  // namespace
}  // namespace cutline::test
