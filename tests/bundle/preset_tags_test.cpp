// Presets: the title, the tag and the boxes of each, encoded and decoded.
#include "bundle/options/preset_tags.h"

#include "tests/bundle/BoxStates.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

// What choosing a tag sets, box by box; a box that isn't named keeps its state.
struct Expected {
  int tag;
  std::vector<std::pair<OptionId, int>> boxes;
};

const std::vector<Expected>& decodeTable() {
  using enum OptionId;
  static const std::vector<Expected> table = {
      {1, {{cutEvery, 0}, {cutEnd, 0}}},
      {2, {{cutEvery, 0}, {cutEnd, 1}}},
      {3, {{cutEvery, 1}, {cutEnd, 0}}},
      {4, {{autoCut, 0}, {cutEvery, 0}, {halfCut, 0}, {chainPrint, 0}, {specialTape, 0}}},
      {5, {{autoCut, 0}, {cutEvery, 0}, {halfCut, 0}, {chainPrint, 1}, {specialTape, 0}}},
      {6, {{autoCut, 0}, {cutEvery, 0}, {halfCut, 1}, {chainPrint, 0}, {specialTape, 0}}},
      {7, {{autoCut, 0}, {cutEvery, 0}, {halfCut, 1}, {chainPrint, 1}, {specialTape, 0}}},
      {8, {{autoCut, 1}, {cutEvery, 1}, {halfCut, 0}, {chainPrint, 0}, {specialTape, 0}}},
      {9, {{autoCut, 1}, {cutEvery, 1}, {halfCut, 0}, {chainPrint, 1}, {specialTape, 0}}},
      {10, {{autoCut, 1}, {cutEvery, 1}, {halfCut, 1}, {chainPrint, 0}, {specialTape, 0}}},
      {11, {{autoCut, 1}, {cutEvery, 1}, {halfCut, 1}, {chainPrint, 1}, {specialTape, 0}}},
      {12, {{specialTape, 1}}},
      {13, {{cutMark, 1}, {chainPrint, 0}}},
      {14, {{cutMark, 1}, {chainPrint, 1}}},
      {15, {{cutMark, 0}, {chainPrint, 1}}},
      {16, {{cutMark, 0}, {chainPrint, 0}}}};
  return table;
}

TEST(PresetTags, HaveTheTitlesOfTheTable) {
  for (int tag = 1; tag <= 16; ++tag) {
    const PresetRow* row = presetOfTag(tag);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->tag, tag);
    EXPECT_EQ(row->title, presetTitles()[static_cast<std::size_t>(tag) - 1]);
  }
  for (const int tag : {-1, 0, 17, 1000}) EXPECT_EQ(presetOfTag(tag), nullptr) << tag;
}

class Presets : public PanelTest {
 protected:
  // A fresh panel on a pop-up that holds every entry, as before the layout trims it.
  void makePanelWithAllPresets(const PpdText& text) {
    makePanelWithView(text);
    popUp = platform.toolkit.createPopUpButton({});
    for (int tag = 0; tag <= 17; ++tag) popUp->addItem({"", tag, {}, ""});
    panel->kPDEView->addSubview(popUp);
    panel->mOptionPopUpButton = popUp.get();
  }
  std::vector<CheckBox*> boxes(const std::vector<OptionId>& ids) const {
    std::vector<CheckBox*> found;
    for (const OptionId id : ids) found.push_back(box(id));
    return found;
  }
  std::map<OptionId, int> states() const {
    std::map<OptionId, int> found;
    for (const OptionRow& row : kOptions) found[row.id] = box(row.id)->state();
    return found;
  }

  std::shared_ptr<PopUpButton> popUp;
};

TEST_F(Presets, EachTagSetsItsBoxesAndClearsTheMirror) {
  makePanelWithAllPresets(allNine());
  for (const Expected& row : decodeTable()) {
    for (const int before : {0, 1}) {
      std::map<OptionId, int> expected;
      for (const OptionRow& option : kOptions) {
        box(option.id)->setState(before);
        expected[option.id] = before;
      }
      for (const auto& [id, state] : row.boxes) expected[id] = state;
      expected[OptionId::mirror] = 0;
      popUp->selectItemWithTag(row.tag);
      panel->updateUIItem(kItemOptionPopUp);
      EXPECT_EQ(states(), expected) << "tag " << row.tag << " from " << before;
      EXPECT_EQ(popUp->selectedTag(), row.tag) << "the pop-up is not aligned";
    }
  }
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Presets, ATagOutsideTheTableSetsNoBox) {
  makePanelWithAllPresets(allNine());
  for (const int tag : {0, 17}) {
    for (const OptionRow& row : kOptions) box(row.id)->setState(CheckBox::kOn);
    const auto before = states();
    popUp->selectItemWithTag(tag);
    panel->mCutEveryTxBx->setEnabled(true);
    clearPreviewNeedsDisplay();
    panel->updateUIItem(kItemOptionPopUp);
    EXPECT_EQ(states(), before) << tag;
    EXPECT_FALSE(panel->mCutEveryTxBx->isEnabled()) << "special tape's rule has run";
    EXPECT_TRUE(previewNeedsDisplay());
  }
}

TEST_F(Presets, WithoutAPopUpNoBoxIsSet) {
  makePanelWithAllPresets(allNine());
  panel->mOptionPopUpButton = nullptr;
  box(OptionId::mirror)->setState(CheckBox::kOn);
  panel->updateUIItem(kItemOptionPopUp);
  EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOn);
  panel->updateUIItem(kItemMirror);
}

// The tag that a combination of ticked and shown boxes has, read off the tables.
struct Ticked {
  bool isWN, markShown, special, every, end, half, autoCut, chain, mark;

  int tag() const {
    if (isWN) {
      if (!special && (every || autoCut)) return 3;
      return end ? 2 : 1;
    }
    const bool n = !special && chain;
    if (markShown) {
      if (mark && !n) return 13;
      if (mark && n) return 14;
      if (!mark && n) return 15;
      return 16;
    }
    if (special) return 12;
    const bool x = autoCut || every;
    if (!x && !half) return chain ? 5 : 4;
    if (!x) return chain ? 7 : 6;
    if (!half) return chain ? 9 : 8;
    return chain ? 11 : 10;
  }
};

// Every state of every box that counts, and of those that don't, in both families.
TEST_F(Presets, TheTagForEveryCombinationOfBoxes) {
  using enum OptionId;
  const std::vector<OptionId> counted = {specialTape, cutEvery,   cutEnd, halfCut,
                                         autoCut,     chainPrint, cutMark};
  for (const char* family : {"WN", "KM"}) {
    makePanelWithView(PpdText(allNine()).attribute("LxTapeType", family));
    const auto all = boxes(counted);
    for (std::size_t code = 0; code < combinationsOf(all.size()); ++code) {
      const auto on = applyBoxStates(code, all);
      // Boxes that don't count follow the number, so that both their states are seen.
      box(mirror)->setState(static_cast<int>(code % 2));
      box(removeBlkSpace)->setState(static_cast<int>(code / 2 % 2));
      const Ticked ticked{family == std::string("WN"),
                          !box(cutMark)->isHidden(),
                          on[0],
                          on[1],
                          on[2],
                          on[3],
                          on[4],
                          on[5],
                          on[6]};
      ASSERT_EQ(panel->targetPopUpButtonTag(), ticked.tag()) << family << " code " << code;
    }
  }
}

TEST_F(Presets, NamedTags) {
  using enum OptionId;
  makePanelWithView(PpdText(allNine()));
  box(cutMark)->setHidden(true);
  box(autoCut)->setHidden(false);
  box(autoCut)->setState(1);
  box(specialTape)->setState(1);
  EXPECT_EQ(panel->targetPopUpButtonTag(), 12) << "special tape goes before auto cut";
  makePanelWithView(PpdText(allNine()).attribute("LxTapeType", "WN"));
  box(autoCut)->setHidden(false);
  box(autoCut)->setState(1);
  box(cutEnd)->setState(1);
  EXPECT_EQ(panel->targetPopUpButtonTag(), 3) << "auto cut goes before cut at end";
}

// Decoding a tag and computing the tag of the boxes gives the tag again, where the boxes can say
// it.
TEST_F(Presets, EveryTagSurvivesDecodingAndEncoding) {
  for (int tag = 1; tag <= 16; ++tag) {
    PpdText text = allNine();
    if (tag <= 3) text.attribute("LxTapeType", "WN");
    makePanelWithAllPresets(text);
    box(OptionId::autoCut)->setHidden(false);
    box(OptionId::cutMark)->setHidden(tag <= 12);
    popUp->selectItemWithTag(tag);
    panel->updateUIItem(kItemOptionPopUp);
    EXPECT_EQ(panel->targetPopUpButtonTag(), tag);
  }
}

TEST_F(Presets, TheUsersChoiceChangesBoxesOnly) {
  showPanel(allNine());
  ASSERT_TRUE(panel->mOptionPopUpButton->performSelection(13));
  EXPECT_EQ(box(OptionId::cutMark)->state(), CheckBox::kOn);
  EXPECT_TRUE(callback->marks.empty());
  EXPECT_EQ(panel->mCutMark_Selection->ppdTitle(), "OFF") << "the selection stays";
}

class PresetWords : public PanelTest {
 protected:
  const PopUpItem& entry(int tag) {
    mItems = panel->mOptionPopUpButton->items();
    const auto found = std::find_if(mItems.begin(), mItems.end(),
                                    [&](const PopUpItem& item) { return item.tag == tag; });
    EXPECT_NE(found, mItems.end()) << tag;
    return *found;
  }
  static PpdText roll() { return PpdText().attribute("LxTapeType", "WN"); }

 private:
  std::vector<PopUpItem> mItems;
};

TEST_F(PresetWords, OnARollEachEntryHasARollsPicture) {
  makePanelWithView(PpdText(allNine()).attribute("LxTapeType", "WN"));
  const std::set<int> cutting = {3, 8, 9, 10, 11};
  const std::vector<PopUpItem> items = panel->mOptionPopUpButton->items();
  for (const PopUpItem& item : items) {
    if (item.tag < 4) continue;
    EXPECT_EQ(item.imagePath, cutting.contains(item.tag) ? "/bundle/EveryEndMirrorOnOffOff.svg"
                                                         : "/bundle/EveryEndMirrorOffOffOff.svg")
        << item.tag;
  }
  EXPECT_GT(items.size(), 4U);
}

TEST_F(PresetWords, OnARollAutomaticCuttingIsNotSaidTwice) {
  bundle->strings["RS_RollPreset_AHCMOnOffOffOff"] = "Automatic cut, end unchanged";
  makePanelWithView(roll().cutLabel(1, 9, "1").onOff("LxCutAtEnd").onOff("LxAutoTapeCut"));
  EXPECT_EQ(entry(8).accessibilityLabel, "Automatic cut, end unchanged");
  EXPECT_EQ(entry(3).accessibilityLabel, "EveryEndMirrorOnOffOff") << "the interface file's";
}

TEST_F(PresetWords, OnATapeTheEntriesStayAsTheInterfaceFileHasThem) {
  bundle->strings["RS_RollPreset_AHCMOnOffOffOff"] = "Automatic cut, end unchanged";
  makePanelWithView(PpdText().onOff("LxAutoTapeCut").cutLabel(1, 9, "1"));
  EXPECT_EQ(entry(8).accessibilityLabel, "AHCMOnOffOffOff");
  EXPECT_EQ(entry(8).imagePath, std::nullopt);
}

// A roll whose automatic cutting has a box of its own and no number: the entry for it is gone with
// the number, and the one that stayed selected would say that nothing is cut.
TEST_F(PresetWords, ACombinationWithoutAnEntrySelectsNone) {
  bundle->strings["RS_OtherPreset"] = "Other combination";
  showPanel(roll().onOff("LxAutoTapeCut").attribute("LxAutoCutObjHidden", "False"));
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 1);
  click(OptionId::autoCut);
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 0);
  EXPECT_EQ(panel->mOptionPopUpButton->placeholder(), "Other combination");
  panel->willShow();
  EXPECT_EQ(box(OptionId::autoCut)->state(), CheckBox::kOn) << "no entry sets no box";
  click(OptionId::autoCut);
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 1);
}

}  // namespace
}  // namespace cutline::test
