// The strip follows what is clicked in the dialog.
#include <QLineEdit>

#include "host/core/JobPlan.h"
#include "host/dialog/StripView.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/StripReading.h"
#include "tests/strip/Outline.h"

namespace cutline {
namespace {

using test::outlineOf;
using test::StripReading;

class StripInDialogTest : public DialogTest {
 protected:
  StripView& strip() { return *dialog().findChild<StripView*>(); }
  std::string shown() { return StripReading(strip()).outline(); }
  void openTape() {
    openQueue(samplePpd("tape-a"));
    ASSERT_TRUE(waitUntil([this] { return strip().labelCount() == 3; }));
  }
};

TEST_F(StripInDialogTest, EachClickInThePanelShows) {
  openTape();
  EXPECT_EQ(shown(), "~|L|L|L~|");
  for (const char* keyword : {"LxHalfCut", "LxChainPrint", "LxHalfCut", "LxAutoTapeCut",
                              "LxCutAtEnd", "LxChainPrint", "LxSpecialTape"}) {
    click(box(keyword));
    EXPECT_EQ(shown(), outlineOf(planFor(model(), 3))) << keyword;
  }
}

TEST_F(StripInDialogTest, SaysThePlanInASentence) {
  openTape();
  EXPECT_TRUE(shows(QStringLiteral("3 labels, cut after each label: 3 pieces, 162 mm of tape")));
  click(box("LxHalfCut"));
  EXPECT_TRUE(
      shows(QStringLiteral("3 labels, cut at the end, half cut between: 1 piece, 162 mm of tape")));
}

TEST_F(StripInDialogTest, ShowsCopiesAndOnlyThePagesThatArePrinted) {
  openTape();
  ASSERT_TRUE(model().setCopies(2));
  EXPECT_EQ(strip().labelCount(), 6U);
  ASSERT_TRUE(model().setPageRanges("2-"));
  EXPECT_EQ(strip().labelCount(), 4U);
  EXPECT_EQ(shown(), outlineOf(planFor(model(), 3)));
}

TEST_F(StripInDialogTest, PrintsTheLabelAloneThatIsAskedFor) {
  openTape();
  emit strip().onlyThisWanted(2);
  EXPECT_EQ(model().pageRanges(), "2");
  EXPECT_EQ(strip().labelCount(), 1U);
  EXPECT_EQ(named<QLineEdit>("Pages")->text(), QStringLiteral("2"));
}

TEST_F(StripInDialogTest, WithoutADocumentShowsWhatOneLabelWouldDo) {
  setPaths({});
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(strip().labelCount(), 0U);
  EXPECT_EQ(shown(), "~|L~|");
  EXPECT_TRUE(shows(QStringLiteral("1 label, cut at the end: 1 piece, 62 mm of tape")));
}

}  // namespace
}  // namespace cutline
