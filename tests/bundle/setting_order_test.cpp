// The order in which the panel sets its boxes.
#include <deque>
#include <functional>

#include "tests/bundle/PanelTest.h"
#include "tests/bundle/ToldBox.h"

namespace cutline::test {
namespace {

using Settings = std::vector<std::string>;

class SettingOrder : public PanelTest {
 protected:
  void SetUp() override {
    makePanelWithView(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
    panel->setPDEItems2();
    // The names of the boxes are their options' keywords without the prefix.
    for (const OptionRow& row : kOptions) {
      (*panel).*row.checkBox = &boxes.emplace_back(nameOf(row), told);
    }
  }
  void TearDown() override { panel.reset(); }

  static std::string nameOf(const OptionRow& row) {
    return row.id == OptionId::cutEvery ? "Every" : row.keyword + 2;
  }
  // What the operation sets, readings left out.
  template <typename Operation>
  Settings settingsOf(const Operation& operation) {
    told.clear();
    operation();
    std::erase_if(told, [](const std::string& each) { return each.find('=') == each.npos; });
    return told;
  }
  Settings settingsOfPreset(int tag) {
    // Without an entry of its own the pop-up could not be at this tag.
    panel->mOptionPopUpButton->addItem({"", tag, {}, ""});
    EXPECT_TRUE(panel->mOptionPopUpButton->selectItemWithTag(tag));
    return settingsOf([&] { panel->updateUIItem(kItemOptionPopUp); });
  }

  Settings told;
  std::deque<ToldBox> boxes;
};

TEST_F(SettingOrder, APresetSetsItsBoxesFromLeftToRightAndTheMirrorLast) {
  EXPECT_EQ(settingsOfPreset(2), (Settings{"Every=0", "CutAtEnd=1", "Mirror=0"}));
  EXPECT_EQ(settingsOfPreset(9), (Settings{"AutoTapeCut=1", "Every=1", "HalfCut=0", "ChainPrint=1",
                                           "SpecialTape=0", "Mirror=0"}));
  EXPECT_EQ(settingsOfPreset(12), (Settings{"SpecialTape=1", "Mirror=0"}));
  EXPECT_EQ(settingsOfPreset(13), (Settings{"CutMark=1", "ChainPrint=0", "Mirror=0"}));
  EXPECT_EQ(settingsOfPreset(15), (Settings{"CutMark=0", "ChainPrint=1", "Mirror=0"}));
}

TEST_F(SettingOrder, ARefreshSetsTheBoxesInTheCanonicalOrder) {
  Settings all;
  for (const OptionRow& row : kOptions) all.push_back(nameOf(row) + "=0");
  EXPECT_EQ(settingsOf([&] { panel->updateUIItem(0xFFFFFFFF & ~kItemOptionPopUp); }), all);
}

TEST_F(SettingOrder, TheSetUpTicksTheBoxesInTheCanonicalOrder) {
  EXPECT_EQ(settingsOf([&] { panel->initUI(); }),
            (Settings{"Every=1", "CutAtEnd=0", "Mirror=0", "AutoTapeCut=0", "HalfCut=0",
                      "ChainPrint=0", "SpecialTape=0", "RemoveBlkSpace=0", "CutMark=0"}));
}

// Tells when the panel asks for the page format, which its rules do.
class FormatHost : public TestCallback {
 public:
  PMPageFormat pageFormat() noexcept override {
    if (whenAsked) whenAsked();
    return TestCallback::pageFormat();
  }
  std::function<void()> whenAsked;
};

class RefreshOrder : public PanelTest {
 protected:
  std::shared_ptr<FormatHost> host = std::make_shared<FormatHost>();
};

TEST_F(RefreshOrder, TheRulesRunBehindThePresetAndBeforeTheRedraw) {
  callback = host;
  showPanel(PpdText().onOff("LxHalfCut").onOff("LxChainPrint"));
  ppdMarkOption(ppd.get(), "LxHalfCut", "ON");
  panel->updateMarkedSelections(kItemHalfCut);
  clearPreviewNeedsDisplay();
  int runs = 0;
  host->whenAsked = [&] {
    ++runs;
    EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 6);
    EXPECT_FALSE(previewNeedsDisplay());
  };
  panel->updateUIItem(kItemHalfCut);
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(previewNeedsDisplay());
}

}  // namespace
}  // namespace cutline::test
