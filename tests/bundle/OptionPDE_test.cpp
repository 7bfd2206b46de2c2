// Creation of the cut options panel, its keywords, and what the host asks and reports.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using Keywords = KeywordList;

constexpr std::array kAllIds = {
    OptionId::cutEvery,    OptionId::cutEnd,         OptionId::mirror,
    OptionId::autoCut,     OptionId::halfCut,        OptionId::chainPrint,
    OptionId::specialTape, OptionId::removeBlkSpace, OptionId::cutMark};

class OptionPDE : public PanelTest {
 protected:
  ppd_option_t* record(OptionId id) const { return (*panel).*rowOf(id).option; }
  ChoiceList* choices(OptionId id) const { return ((*panel).*rowOf(id).choices).get(); }
  PDEChoice*& selection(OptionId id) const { return (*panel).*rowOf(id).selection; }
  Keywords declared() const { return *panel->supportedPPDOptionKeys(); }
};

TEST_F(OptionPDE, TheTableNamesTheNineOptions) {
  struct Row {
    const char* keyword;
    const char* titleKey;
    const char* summaryKey;
    std::uint32_t item;
  };
  const std::vector<Row> expected = {
      {"LxCutLabel", "RS_CutAtEvery", "RS_STitle_CutLabels", 0x100},
      {"LxCutAtEnd", "RS_CutAtEnd", "RS_STitle_CutAtEnd", 0x200},
      {"LxMirror", "RS_MirrorPrinting", "RS_STitle_MirrorPrinting", 0x400},
      {"LxAutoTapeCut", "RS_AutoTapeCut", "RS_STitle_AutoTapeCut", 0x800},
      {"LxHalfCut", "RS_HalfCut", "RS_STitle_HalfCut", 0x1000},
      {"LxChainPrint", "RS_ChainPrinting", "RS_STitle_ChainPrint", 0x2000},
      {"LxSpecialTape", "RS_SpecialTape", "RS_STitle_SpecialTape", 0x4000},
      {"LxRemoveBlkSpace", "RS_RemoveBlkSpace", "RS_STitle_RemoveBlkSpace", 0x10000},
      {"LxCutMark", "RS_CutMark", "RS_STitle_CutMark", 0x80000}};
  ASSERT_EQ(kOptions.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_STREQ(kOptions[i].keyword, expected[i].keyword);
    EXPECT_STREQ(kOptions[i].titleKey, expected[i].titleKey);
    EXPECT_STREQ(kOptions[i].summaryKey, expected[i].summaryKey);
    EXPECT_EQ(kOptions[i].item, expected[i].item);
  }
  EXPECT_EQ(kItemOptionPopUp, 0x40000U);
}

TEST_F(OptionPDE, EachRowPointsAtItsOwnFields) {
  makePanelWithView(allNine());
  const OptionPDE13_v400_& p = *panel;
  const std::vector<const void*> records = {
      &p.mCutEvery_Option,    &p.mCutEnd_Option,         &p.mMirror_Option,
      &p.mAutoCut_Option,     &p.mHalfCut_Option,        &p.mChainPrint_Option,
      &p.mSpecialTape_Option, &p.mRemoveBlkSpace_Option, &p.mCutMark_Option};
  const std::vector<const void*> lists = {
      &p.mCutEvery_Choices,    &p.mCutEnd_Choices,         &p.mMirror_Choices,
      &p.mAutoCut_Choices,     &p.mHalfCut_Choices,        &p.mChainPrint_Choices,
      &p.mSpecialTape_Choices, &p.mRemoveBlkSpace_Choices, &p.mCutMark_Choices};
  const std::vector<const void*> selections = {
      &p.mCutEvery_Selection,    &p.mCutEnd_Selection,         &p.mMirror_Selection,
      &p.mAutoCut_Selection,     &p.mHalfCut_Selection,        &p.mChainPrint_Selection,
      &p.mSpecialTape_Selection, &p.mRemoveBlkSpace_Selection, &p.mCutMark_Selection};
  const std::vector<const CheckBox*> boxes = {
      p.mCutEveryChkBx,    p.mCutAndEndChkBx,      p.mMirrorPrintChkBx,
      p.mAutoCutChkBx,     p.mHalfCutChkBx,        p.mChainPrintChkBx,
      p.mSpecialTapeChkBx, p.mRemoveBlkSpaceChkBx, p.mCutMarkChkBx};
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    EXPECT_EQ(&(p.*kOptions[i].option), records[i]);
    EXPECT_EQ(&(p.*kOptions[i].choices), lists[i]);
    EXPECT_EQ(&(p.*kOptions[i].selection), selections[i]);
    EXPECT_EQ(p.*kOptions[i].checkBox, boxes[i]);
  }
}

TEST_F(OptionPDE, FindsItsOptionsAndBuildsTheirLists) {
  makePanel(allNine());
  for (const OptionId id : kAllIds) {
    ASSERT_TRUE(record(id));
    EXPECT_STREQ(record(id)->keyword, rowOf(id).keyword);
    ASSERT_TRUE(choices(id));
    EXPECT_EQ(choices(id)->size(), id == OptionId::cutEvery ? 99U : 2U);
    EXPECT_EQ(selection(id), nullptr);
  }
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, nullptr);
  EXPECT_EQ(panel->mTapeState, 0);
  EXPECT_EQ(panel->column_dec, 0);
  EXPECT_EQ(panel->set_formatSetting, 0);
  EXPECT_EQ(panel->choice_PaperSize, 0);
  EXPECT_TRUE(panel->checkValues_dec);
  EXPECT_EQ(panel->mOptionView, nullptr);
}

TEST_F(OptionPDE, AnAbsentOptionHasNeitherRecordNorList) {
  makePanel(PpdText().onOff("LxMirror"));
  for (const OptionId id : kAllIds) {
    EXPECT_EQ(record(id) != nullptr, id == OptionId::mirror);
    EXPECT_EQ(choices(id) != nullptr, id == OptionId::mirror);
  }
}

class RefusingPanel : public OptionPDE13_v400_ {
 public:
  BasePDE13_v400_* init() noexcept override { return nullptr; }
};

TEST_F(OptionPDE, HandsBackItselfEvenWhenTheBaseRefused) {
  makePanel(allNine());
  RefusingPanel refusing;
  EXPECT_EQ(refusing.initWithCallback(callback, bundle), &refusing);
  EXPECT_FALSE(refusing.checkValues_dec) << "nothing is set up";
  EXPECT_EQ(refusing.mMirror_Option, nullptr);
  callback->paper.name = "HS24";
  panel.reset();
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF") << "no observer is registered";
  EXPECT_TRUE(refusing.supportedPPDOptionKeys()->empty());
}

TEST_F(OptionPDE, StandsWithoutCallbackAndPPD) {
  OptionPDE13_v400_ lonely;
  EXPECT_EQ(lonely.initWithCallback(nullptr, nullptr), &lonely);
  lonely.willShow();
  lonely.restoreValuesAndReturnError(nullptr);
  postPaperChange();
  EXPECT_TRUE(lonely.shouldPrint());
  EXPECT_TRUE(lonely.supportedPPDOptionKeys()->empty());
  EXPECT_EQ(lonely.summaryInfo()->size(), 1U);
}

TEST_F(OptionPDE, KnowsAPrinterOnUSBByItsScheme) {
  const std::vector<std::pair<std::optional<std::string>, int>> expected = {
      {"usb://maker/model", 1}, {"LXKMUSB://x", 1}, {"USB://x", 0}, {"lxkmusb://x", 0},
      {"usbx://x", 0},          {"ipp://usb", 0},   {"usb", 0},     {"", 0},
      {std::nullopt, 0}};
  for (const auto& [uri, flag] : expected) {
    callback->printer.uri = uri;
    makePanel(allNine());
    EXPECT_EQ(panel->usb_dec, flag) << uri.value_or("(nil)");
  }
  callback->printer.uri = "usb://x";
  callback->printer.status = kPMGeneralError;
  makePanel(allNine());
  EXPECT_EQ(panel->usb_dec, 0);
  callback->hasPrinter = false;
  makePanel(allNine());
  EXPECT_EQ(panel->usb_dec, 0);
}

TEST_F(OptionPDE, MediaBeginningWithHSTurnAutoCutOffAtCreation) {
  const PpdText text = PpdText().onOff("LxAutoTapeCut", "ON");
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"HS24", "OFF"}, {"HS", "OFF"}, {"hs24", "ON"}, {"W24HS", "ON"}, {"H", "ON"}, {"", "ON"}};
  for (const auto& [name, choice] : expected) {
    callback->paper.name = name;
    makePanel(text);
    EXPECT_EQ(marked("LxAutoTapeCut"), choice) << name;
    EXPECT_TRUE(callback->marks.empty()) << "the host isn't told";
  }
}

TEST_F(OptionPDE, TheHSRuleTakesTheTicketsNameAndSkipsAnUnknownOne) {
  const PpdText text = PpdText().onOff("LxAutoTapeCut", "ON");
  callback->paper.name.reset();
  makePanel(text);
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
  callback->settings.values[kPrintSettingsTicketKey] =
      "<plist version=\"1.0\"><dict><key>KmPaperName2</key><string>HS12</string></dict></plist>";
  makePanel(text);
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
  callback->format.status = kPMGeneralError;
  makePanel(text);
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
}

TEST_F(OptionPDE, TheAutoCutBoxHasItsRuleFromThePPD) {
  const std::vector<std::pair<std::string, int>> expected = {
      {"False", 1}, {"True", 0}, {"false", 0}, {"", 0}};
  for (const auto& [value, flag] : expected) {
    makePanel(PpdText().onOff("LxAutoTapeCut").attribute("LxAutoCutObjHidden", value));
    EXPECT_EQ(panel->mAutoCutHideKey_dec, flag) << value;
  }
  makePanel(PpdText().onOff("LxAutoTapeCut"));
  EXPECT_EQ(panel->mAutoCutHideKey_dec, 0);
  makePanel(PpdText().attribute("LxAutoCutObjHidden", "False"));
  EXPECT_EQ(panel->mAutoCutHideKey_dec, 0) << "no auto cut to show";
}

TEST_F(OptionPDE, DeclaresAllNineInOrder) {
  makePanel(allNine());
  EXPECT_EQ(declared(), nineKeywords());
}

TEST_F(OptionPDE, DeclaresAutoCutWithCutLabelEvenWhenThePPDLacksIt) {
  makePanel(PpdText().onOff("LxCutAtEnd").cutLabel(1, 3, "1").onOff("LxCutMark"));
  EXPECT_EQ(declared(), (Keywords{"LxCutLabel", "LxAutoTapeCut", "LxCutAtEnd", "LxCutMark"}));
  makePanel(PpdText().onOff("LxCutAtEnd").onOff("LxMirror"));
  EXPECT_EQ(declared(), (Keywords{"LxCutAtEnd", "LxMirror"}));
  makePanel(PpdText().onOff("LxAutoTapeCut").onOff("LxMirror"));
  EXPECT_EQ(declared(), (Keywords{"LxMirror", "LxAutoTapeCut"}));
  makePanel(PpdText().onOff("OtherOption"));
  EXPECT_EQ(declared(), Keywords{});
}

TEST_F(OptionPDE, TheFirstQuestionForTheKeywordsSavesOnce) {
  makePanel(allNine());
  const auto first = panel->supportedPPDOptionKeys();
  EXPECT_FALSE(callback->marks.empty());
  EXPECT_EQ(callback->marks.size(), 9U);
  callback->marks.clear();
  EXPECT_EQ(panel->supportedPPDOptionKeys(), first);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(OptionPDE, BeforePrintingUnmarkedOptionsGetTheirDefaults) {
  PpdText text = PpdText().cutLabel(1, 9, "3");
  for (std::size_t i = 1; i < nineKeywords().size(); ++i) {
    text.onOff(nineKeywords()[i], i % 2 ? "ON" : "OFF");
  }
  makePanel(text.openUnmarked());
  ppdMarkOption(ppd.get(), "LxMirror", "ON");
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxCutLabel", "3"},
                                                {"LxCutAtEnd", "ON"},
                                                {"LxAutoTapeCut", "ON"},
                                                {"LxHalfCut", "OFF"},
                                                {"LxChainPrint", "ON"},
                                                {"LxSpecialTape", "OFF"},
                                                {"LxRemoveBlkSpace", "ON"},
                                                {"LxCutMark", "OFF"}}));
  EXPECT_EQ(marked("LxMirror"), "ON");
  callback->marks.clear();
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_TRUE(callback->marks.empty());
  EXPECT_FALSE(panel->shouldShowHelp());
  panel->printWindowWillClose();
  panel->tabView(nullptr, nullptr);
}

TEST_F(OptionPDE, AReportedChangeSetsTheSelectionOnly) {
  makePanelWithView(allNine());
  for (const OptionId id : kAllIds) {
    const std::string choice = id == OptionId::cutEvery ? "7" : "ON";
    panel->PPDOptionKeyValueDidChange(rowOf(id).keyword, choice);
    ASSERT_TRUE(selection(id)) << rowOf(id).keyword;
    EXPECT_EQ(selection(id)->ppdTitle(), choice);
    EXPECT_EQ(box(id)->state(), CheckBox::kOff) << "controls are not refreshed";
  }
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, nullptr);
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(OptionPDE, AReportedChoiceThatIsNotInTheListClearsTheSelection) {
  makePanel(allNine());
  panel->PPDOptionKeyValueDidChange("LxMirror", "ON");
  panel->PPDOptionKeyValueDidChange("LxMirror", "MAYBE");
  EXPECT_EQ(panel->mMirror_Selection, nullptr);
}

TEST_F(OptionPDE, AReportForAnAbsentOptionClearsItsSelection) {
  makePanel(PpdText().onOff("LxMirror"));
  const auto stray = PDEChoice::choiceWithChoice(nullptr);
  panel->mHalfCut_Selection = stray.get();
  panel->PPDOptionKeyValueDidChange("LxHalfCut", "ON");
  EXPECT_EQ(panel->mHalfCut_Selection, nullptr);
}

TEST_F(OptionPDE, OtherReportsChangeNothing) {
  makePanel(allNine());
  panel->PPDOptionKeyValueDidChange("LxMirror", "ON");
  const PDEChoice* before = panel->mMirror_Selection;
  panel->PPDOptionKeyValueDidChange(std::nullopt, "ON");
  panel->PPDOptionKeyValueDidChange("LxMirror", std::nullopt);
  panel->PPDOptionKeyValueDidChange("Duplex", "None");
  panel->PPDOptionKeyValueDidChange("lxmirror", "OFF");
  EXPECT_EQ(panel->mMirror_Selection, before);
}

TEST_F(OptionPDE, TheOneTimeSetUpRunsOnce) {
  makePanelWithView(allNine());
  panel->willShow();
  EXPECT_EQ(panel->set_formatSetting, 1);
  EXPECT_EQ(callback->marks.size(), 9U) << "one full save";
  callback->marks.clear();
  box(OptionId::cutEnd)->setTitle("changed");
  panel->initUI();
  EXPECT_EQ(box(OptionId::cutEnd)->title(), "changed");
  panel->willShow();
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(OptionPDE, SavingHandsTheNineChoicesOnInOrder) {
  makePanelWithView(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
  std::vector<std::string> keywords;
  for (const Mark& mark : callback->marks) keywords.push_back(mark.key);
  EXPECT_EQ(keywords, nineKeywords());
}

// Counts the refreshes and the readings that the hooks ask for.
class CountingPanel : public OptionPDE13_v400_ {
 public:
  void updateUIItem(std::uint32_t item) noexcept override { refreshed.push_back(item); }
  void updateMarkedSelections(std::uint32_t item) noexcept override { read.push_back(item); }
  std::vector<std::uint32_t> refreshed;
  std::vector<std::uint32_t> read;
};

TEST_F(OptionPDE, TheRefreshEndsWithThePresetAndTheReadingNeverHasIt) {
  CountingPanel counting;
  counting.setPDEItems();
  const std::vector<std::uint32_t> items = {0x100,  0x200,  0x400,   0x800,  0x1000,
                                            0x2000, 0x4000, 0x10000, 0x80000};
  auto withPopUp = items;
  withPopUp.push_back(0x40000);
  EXPECT_EQ(counting.refreshed, withPopUp);
  counting.setPDEItems2();
  EXPECT_EQ(counting.read, items);
}

TEST_F(OptionPDE, APanelThatIsGoneHearsNoPaperChange) {
  makePanel(PpdText().onOff("LxAutoTapeCut", "ON"));
  panel.reset();
  callback->paper.name = "HS24";
  postPaperChange();
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
}

TEST_F(OptionPDE, AViewThatOutlivesThePanelCallsNothing) {
  makePanelWithView(allNine());
  const auto view = panel->kPDEView;
  CheckBox* half = panel->mHalfCutChkBx;
  TextField* field = panel->mCutEveryTxBx;
  panel.reset();
  half->setEnabled(true);
  half->performClick();
  dynamic_cast<PlainTextField&>(*field).typeText("7");
  EXPECT_TRUE(callback->marks.empty());
}

}  // namespace
}  // namespace cutline::test
