// The panel as the PPD at hand makes it.
#include <cmath>

#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class Layout : public PanelTest {
 protected:
  std::vector<int> tags() const {
    std::vector<int> found;
    for (const PopUpItem& item : panel->mOptionPopUpButton->items()) found.push_back(item.tag);
    return found;
  }
  double height() const { return panel->kPDEView->frame().size.height; }
  double previewY() const { return panel->mOptionView->nativeView()->frame().origin.y; }
};

// A printer by what its PPD has.
struct Printer {
  bool isWN, autoCutShown;
  std::array<bool, kOptionCount> present;

  bool has(OptionId id) const { return present[static_cast<std::size_t>(id)]; }
  bool shows(OptionId id) const { return has(id) && (id != OptionId::autoCut || autoCutShown); }

  PpdText ppd() const {
    PpdText text = PpdText().attribute("LxTapeType", isWN ? "WN" : "KM");
    text.attribute("LxAutoCutObjHidden", autoCutShown ? "False" : "True");
    if (has(OptionId::cutEvery)) text.cutLabel(1, 2, "1");
    for (std::size_t i = 1; i < kOptionCount; ++i) {
      if (present[i]) text.onOff(nineKeywords()[i]);
    }
    return text;
  }
};

// Whether the pop-up keeps an entry, judged by what its title says.
bool keeps(const Printer& printer, const std::string& title) {
  const std::size_t flagsAt = title.find_first_of("O", title.starts_with("Every") ? 14 : 4);
  std::vector<bool> on;
  for (std::size_t at = flagsAt; at < title.size(); at += on.back() ? 2 : 3) {
    on.push_back(title.compare(at, 2, "On") == 0);
  }
  const bool hasMark = printer.has(OptionId::cutMark);
  const bool hasChain = printer.has(OptionId::chainPrint);
  if (title.starts_with("EveryEndMirror")) {
    if (on[0] && !printer.has(OptionId::cutEvery)) return false;
    if (on[1] && !printer.has(OptionId::cutEnd)) return false;
    return printer.isWN;
  }
  if (title.starts_with("SPMR")) return printer.has(OptionId::specialTape);
  if (title.starts_with("CTMR")) return hasMark && (hasChain || !on[1]);
  const bool allOff = !on[0] && !on[1] && !on[2];
  if (allOff && (printer.isWN || hasMark)) return false;
  if (on[2] && (hasMark || !hasChain)) return false;
  if (on[1] && !printer.has(OptionId::halfCut)) return false;
  return !on[0] || printer.shows(OptionId::autoCut) || printer.has(OptionId::cutEvery);
}

std::vector<int> expectedTags(const Printer& printer) {
  std::vector<int> tags;
  for (int tag = 1; tag <= 16; ++tag) {
    if (keeps(printer, presetTitles()[static_cast<std::size_t>(tag) - 1])) tags.push_back(tag);
  }
  return tags;
}

// The rows by name from top to bottom; the cut-every group takes two.
constexpr std::array kScreenOrder = {
    OptionId::cutMark,    OptionId::cutEvery, OptionId::autoCut,
    OptionId::cutEnd,     OptionId::halfCut,  OptionId::specialTape,
    OptionId::chainPrint, OptionId::mirror,   OptionId::removeBlkSpace};

// Where each shown control stands while the panel still has its design height.
struct Places {
  std::map<OptionId, double> boxes;
  double field = 0, stepper = 0, label = 0;
  int rows = 0;
};

Places expectedPlaces(const Printer& printer, double designHeight) {
  Places places;
  double top = designHeight - 38;
  for (const OptionId id : kScreenOrder) {
    if (!printer.shows(id)) continue;
    places.boxes[id] = top - 26 * places.rows;
    ++places.rows;
    if (id != OptionId::cutEvery) continue;
    const double second = std::trunc(top - 26 * places.rows);
    places.field = second - 4;
    places.stepper = second - 5;
    places.label = second + 2;
    ++places.rows;
    top = second + 26 * (places.rows - 1);
  }
  return places;
}

class LayoutTable : public Layout {
 protected:
  void expectPlaces(const Places& places, double moved) {
    const auto yOf = [](const View* view) { return view->frame().origin.y; };
    for (const OptionRow& row : kOptions) {
      const auto place = places.boxes.find(row.id);
      EXPECT_EQ(box(row.id)->isHidden(), place == places.boxes.end()) << row.keyword;
      if (place != places.boxes.end()) {
        EXPECT_DOUBLE_EQ(yOf(box(row.id)), place->second - moved) << row.keyword;
        EXPECT_EQ(box(row.id)->frame().origin.x, 16);
      }
    }
    const bool group = places.boxes.contains(OptionId::cutEvery);
    EXPECT_EQ(panel->mCutEveryTxBx->isHidden(), !group);
    EXPECT_EQ(panel->mCutEveryStpr->isHidden(), !group);
    EXPECT_EQ(panel->mCutEveryStr->isHidden(), !group);
    if (!group) return;
    EXPECT_DOUBLE_EQ(yOf(panel->mCutEveryTxBx), places.field - moved);
    EXPECT_DOUBLE_EQ(yOf(panel->mCutEveryStpr), places.stepper - moved);
    EXPECT_DOUBLE_EQ(yOf(panel->mCutEveryStr), places.label - moved);
  }

  void check(const Printer& printer, double designHeight) {
    makePanelWithView(printer.ppd());
    const Places places = expectedPlaces(printer, designHeight);
    const double expectedHeight = std::max(150.0, designHeight - 26 * (10 - places.rows));
    EXPECT_DOUBLE_EQ(height(), expectedHeight);
    EXPECT_EQ(panel->kPDEView->frame().size.width, 560);
    EXPECT_DOUBLE_EQ(previewY(), expectedHeight - 130);
    // The controls keep their distance to the top while the panel shrinks.
    expectPlaces(places, designHeight - expectedHeight);
    EXPECT_EQ(tags(), expectedTags(printer));
    for (const PopUpItem& item : panel->mOptionPopUpButton->items()) EXPECT_EQ(item.title, "");
    EXPECT_EQ(panel->mOptionView->isWN(), printer.isWN);
  }
};

// Every set of options, with and without the auto-cut rule, in both families.
TEST_F(LayoutTable, EveryPrinter) {
  for (unsigned bits = 0; bits < 2048; ++bits) {
    Printer printer{(bits & 512U) != 0, (bits & 1024U) != 0, {}};
    for (std::size_t i = 0; i < kOptionCount; ++i) printer.present[i] = (bits >> i) & 1U;
    check(printer, 284);
    ASSERT_FALSE(HasFailure()) << "printer " << bits;
  }
}

// At heights that are no whole number, and at ones that the minimum decides.
TEST_F(LayoutTable, OtherDesignHeights) {
  for (const double design : {284.75, 150.0, 100.5, 38.0, 1000.25}) {
    bundle->panelSize = {560, design};
    for (const unsigned bits : {0U, 511U, 2U, 1U, 257U, 258U, 1535U, 170U}) {
      Printer printer{false, (bits & 1024U) != 0, {}};
      for (std::size_t i = 0; i < kOptionCount; ++i) printer.present[i] = (bits >> i) & 1U;
      check(printer, design);
      ASSERT_FALSE(HasFailure()) << "printer " << bits << " height " << design;
    }
  }
}

TEST_F(Layout, WithNoOptionEverythingIsHidden) {
  bundle->panelSize = {560, 500};
  makePanelWithView(PpdText());
  for (const OptionRow& row : kOptions) EXPECT_TRUE(box(row.id)->isHidden());
  EXPECT_EQ(height(), 500 - 260);
  bundle->panelSize = {560, 284};
  makePanelWithView(PpdText());
  EXPECT_EQ(height(), 150);
}

TEST_F(Layout, WithoutAViewItEnds150High) {
  bundle->missingOutlets = {"kPDEView"};
  makePanel(allNine());
  bundle->loadNibNamed("OptionPDE", *panel);
  EXPECT_EQ(panel->kPDEView, nullptr);
  ASSERT_TRUE(panel->mOptionView);
  EXPECT_EQ(previewY(), 150 - 130);
}

TEST_F(Layout, AnInterfaceFileWithoutAViewLeavesNoControls) {
  bundle->missingOutlets = {"kPDEView"};
  makePanel(allNine());
  EXPECT_EQ(panel->panelView(), nullptr);
  bundle->lastRoot.reset();
  EXPECT_EQ(panel->mMirrorPrintChkBx, nullptr);
  EXPECT_EQ(panel->mOptionPopUpButton, nullptr);
  EXPECT_EQ(panel->mOptionView, nullptr);
  panel->willShow();
  panel->changeCutEveryValue(nullptr);
  EXPECT_EQ(marked("LxMirror"), "OFF");
}

TEST_F(Layout, ARollWithCutEveryAndCutAtEndKeepsFourPresets) {
  makePanelWithView(
      PpdText().attribute("LxTapeType", "WN").cutLabel(1, 9, "1").onOff("LxCutAtEnd"));
  EXPECT_EQ(tags(), (std::vector<int>{1, 2, 3, 8}));
}

TEST_F(Layout, TheAutoCutPresetsStayWithTheCutEveryGroup) {
  makePanelWithView(PpdText().onOff("LxAutoTapeCut").cutLabel(1, 9, "1").onOff("LxHalfCut"));
  EXPECT_TRUE(box(OptionId::autoCut)->isHidden());
  EXPECT_EQ(tags(), (std::vector<int>{4, 6, 8, 10}));
  makePanelWithView(PpdText().onOff("LxAutoTapeCut").onOff("LxHalfCut"));
  EXPECT_EQ(tags(), (std::vector<int>{4, 6}));
}

TEST_F(Layout, ThePreviewTakesThePlaceholdersPlace) {
  makePanelWithView(allNine());
  const auto native = panel->mOptionView->nativeView();
  EXPECT_EQ(panel->mOptionDummyView, nullptr);
  EXPECT_EQ(native->superview(), panel->kPDEView.get());
  EXPECT_EQ(native->frame().origin.x, 280);
  EXPECT_EQ(native->frame().size, (Size{264, 84}));
  EXPECT_EQ(panel->kPDEView->subviews().back(), native) << "the placeholder was the last subview";
  EXPECT_EQ(panel->mOptionView->mCutEveryChkBx, panel->mCutEveryChkBx);
  EXPECT_EQ(panel->mOptionView->mCutAndEndChkBx, panel->mCutAndEndChkBx);
  EXPECT_EQ(panel->mOptionView->mMirrorPrintChkBx, panel->mMirrorPrintChkBx);
  EXPECT_EQ(panel->mOptionView->mAutoCutChkBx, panel->mAutoCutChkBx);
  EXPECT_EQ(panel->mOptionView->mHalfCutChkBx, panel->mHalfCutChkBx);
  EXPECT_EQ(panel->mOptionView->mChainPrintChkBx, panel->mChainPrintChkBx);
  EXPECT_EQ(panel->mOptionView->mSpecialTapeChkBx, panel->mSpecialTapeChkBx);
  EXPECT_EQ(panel->mOptionView->mRemoveBlkSpaceChkBx, panel->mRemoveBlkSpaceChkBx);
  EXPECT_EQ(panel->mOptionView->mCutMarkChkBx, panel->mCutMarkChkBx);
}

TEST_F(Layout, WithoutAPreviewThePlaceholderStaysAndTheLayoutCompletes) {
  platform.toolkit.makesCustomViews = false;
  makePanelWithView(PpdText());
  EXPECT_EQ(panel->mOptionView, nullptr);
  ASSERT_TRUE(panel->mOptionDummyView);
  EXPECT_EQ(panel->mOptionDummyView->superview(), panel->kPDEView.get());
  EXPECT_EQ(height(), 150);
  panel->willShow();
  panel->changeOption(panel->mMirrorPrintChkBx);
}

TEST_F(Layout, MissingControlsAreSkippedAndTheirRowsConsumed) {
  makePanelWithView(allNine());
  const double y = box(OptionId::mirror)->frame().origin.y;
  bundle->missingOutlets = {"mHalfCutChkBx", "mCutEveryTxBx", "mOptionPopUpButton",
                            "mOptionDummyView"};
  makePanelWithView(allNine());
  EXPECT_EQ(box(OptionId::mirror)->frame().origin.y, y);
  ASSERT_TRUE(panel->mOptionView);
  EXPECT_EQ(panel->mOptionView->nativeView()->superview(), nullptr);
  EXPECT_EQ(panel->mOptionView->nativeView()->frame().size, Size());
}

TEST_F(Layout, TheSizeIsGivenThroughTheHost) {
  callback->listensToResizes = false;
  makePanelWithView(PpdText());
  EXPECT_EQ(height(), 284) << "a host that doesn't listen keeps the design height";
  EXPECT_EQ(previewY(), 150 - 130);
  callback->listensToResizes = true;
  platform.toolkit.setKeyWindowFrame(Rect{{}, {800, 700}});
  makePanelWithView(PpdText());
  EXPECT_EQ(callback->resizes, 1);
}

}  // namespace
}  // namespace cutline::test
