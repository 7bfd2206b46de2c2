#include <gtest/gtest.h>

#include <set>

#include "host/core/HostPlatform.h"
#include "host/core/PrintModel.h"
#include "plain/PlainToolkit.h"
#include "platform/ports/PrintDialogPanel.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

using Log = std::vector<std::string>;

// A panel that writes down what it is asked.
class ScriptedPanel final : public PrintDialogPanel {
 public:
  ScriptedPanel(std::string name, KeywordList keywords, Log& log)
      : mName(std::move(name)), mKeywords(std::move(keywords)), mLog(log) {}
  ~ScriptedPanel() override { note("gone"); }

  std::shared_ptr<View> panelView() noexcept override {
    note("panelView");
    return std::make_shared<PlainView>(Rect{});
  }
  std::string panelName() noexcept override { return mName; }
  std::string panelKind() noexcept override { return "org.cutline.test"; }
  std::shared_ptr<const KeywordList> supportedPPDOptionKeys() noexcept override {
    note("supportedPPDOptionKeys");
    return std::make_shared<const KeywordList>(mKeywords);
  }
  void printWindowWillClose() noexcept override { note("printWindowWillClose"); }
  void willShow() noexcept override { note("willShow"); }
  bool shouldHide() noexcept override { return true; }
  bool shouldPrint() noexcept override {
    note("shouldPrint");
    return agrees;
  }
  bool shouldShowHelp() noexcept override { return false; }
  void PPDOptionKeyValueDidChange(const std::optional<std::string>& key,
                                  const std::optional<std::string>& choice) noexcept override {
    note("didChange " + key.value_or("") + "=" + choice.value_or(""));
  }
  bool restoreValuesAndReturnError(std::string*) noexcept override {
    note("restore");
    return true;
  }
  bool saveValuesAndReturnError(std::string*) noexcept override {
    note("save");
    return true;
  }
  std::shared_ptr<SummaryInfo> summaryInfo() noexcept override { return summary; }

  bool agrees = true;
  std::shared_ptr<SummaryInfo> summary;

 private:
  void note(const std::string& what) { mLog.push_back(mName + ": " + what); }

  std::string mName;
  KeywordList mKeywords;
  Log& mLog;
};

struct ScriptedPlugIn final : public PrintDialogPlugIn {
  bool initWithBundle(Bundle*) noexcept override { return true; }
  std::shared_ptr<PanelList> PDEPanelsForType(
      const std::string& type,
      const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept override {
    EXPECT_EQ(type, kPrintDialogPanelType);
    host = hostInfo;
    return std::make_shared<PanelList>(PanelList{panel});
  }
  std::shared_ptr<ScriptedPanel> panel;
  std::shared_ptr<PDEPluginCallback13_v400_> host;
};

struct ScriptedSource final : public PanelSource {
  std::vector<std::shared_ptr<PrintDialogPlugIn>> plugInsForPpd(const PpdFile&) noexcept override {
    return {plugIns.begin(), plugIns.end()};
  }
  std::vector<std::shared_ptr<ScriptedPlugIn>> plugIns;
};

class RecordingListener final : public PrintModelListener {
 public:
  void modelDidChange(ModelChange what) override { changes.insert(what); }
  std::set<ModelChange> changes;
};

class PrintModelTest : public testing::Test {
 protected:
  PrintModelTest() : mPlatform(mToolkit) {
    addPlugIn("first", {"LxHalfCut"});
    addPlugIn("second", {"LxMirror"});
  }

  void addPlugIn(const std::string& name, const KeywordList& keywords) {
    auto plugIn = std::make_shared<ScriptedPlugIn>();
    plugIn->panel = std::make_shared<ScriptedPanel>(name, keywords, mLog);
    mSource.plugIns.push_back(plugIn);
  }

  std::unique_ptr<PrintModel> open(const AskedSettings& asked = {}, const OptionList& saved = {}) {
    auto model = std::make_unique<PrintModel>(mSource, asked);
    Destination destination;
    destination.name.printer = "test";
    destination.savedOptions = saved;
    model->openPrinter({destination, mPpd});
    return model;
  }

  Log notesOf(const std::string& name) const {
    Log notes;
    for (const std::string& note : mLog)
      if (note.starts_with(name + ": ")) notes.push_back(note.substr(name.size() + 2));
    return notes;
  }

  static std::string valueOf(const OptionList& options, const std::string& name) {
    for (const auto& [known, value] : options)
      if (known == name) return value;
    return "absent";
  }

  Log mLog;
  PlainToolkit mToolkit;
  HostPlatform mPlatform;
  ScriptedSource mSource;
  std::shared_ptr<PpdFile> mPpd = test::ppdFor(test::fullTapePrinter());
};

TEST_F(PrintModelTest, AsksForKeywordsThenTheViewThenShowsRestoresAndSaves) {
  const auto model = open();
  const Log expected = {"supportedPPDOptionKeys", "panelView", "willShow", "restore", "save"};
  EXPECT_EQ(notesOf("first"), expected);
}

TEST_F(PrintModelTest, AChangeIsMarkedAndReportedToTheOtherPanelsOnly) {
  const auto model = open();
  mLog.clear();
  mSource.plugIns[0]->host->willChangePPDOptionKeyValue("LxHalfCut", "ON");
  EXPECT_EQ(mPpd->markedChoice("LxHalfCut"), "ON");
  EXPECT_TRUE(notesOf("first").empty());
  EXPECT_EQ(notesOf("second"), Log{"didChange LxHalfCut=ON"});
}

TEST_F(PrintModelTest, AChangeWithoutAChoiceMarksNothing) {
  const auto model = open();
  mLog.clear();
  mSource.plugIns[0]->host->willChangePPDOptionKeyValue("LxHalfCut", std::nullopt);
  EXPECT_EQ(mPpd->markedChoice("LxHalfCut"), "OFF");
  EXPECT_TRUE(mLog.empty());
}

TEST_F(PrintModelTest, ThePanelsObjectsAreNeverNull) {
  const auto model = open();
  PDEPluginCallback13_v400_& host = *mSource.plugIns[0]->host;
  EXPECT_NE(host.printSession(), nullptr);
  EXPECT_NE(host.printSettings(), nullptr);
  EXPECT_NE(host.pageFormat(), nullptr);
  EXPECT_NE(host.PMPrinter(), nullptr);
  EXPECT_EQ(host.ppdFile(), mPpd->get());
}

TEST_F(PrintModelTest, APanelThatOutlivesTheDialogChangesNothing) {
  open();
  mLog.clear();
  mSource.plugIns[0]->host->willChangePPDOptionKeyValue("LxHalfCut", "ON");
  mSource.plugIns[0]->host->panelViewDidResize();
  EXPECT_EQ(mPpd->markedChoice("LxHalfCut"), "OFF");
  EXPECT_TRUE(mLog.empty());
}

TEST_F(PrintModelTest, TheOldPpdOutlivesAPanelThatSomebodyKeeps) {
  const std::weak_ptr<PpdFile> watched = mPpd;
  auto model = open();
  mPpd = test::ppdFor(test::fullTapePrinter());
  auto kept = mSource.plugIns[0]->host;
  Destination other;
  other.name.printer = "other";
  model->openPrinter({other, mPpd});
  EXPECT_FALSE(watched.expired());
  EXPECT_NE(kept->ppdFile(), nullptr);
  kept = nullptr;
  EXPECT_TRUE(watched.expired());
}

TEST_F(PrintModelTest, ARefusalToPrintNamesThePanel) {
  const auto model = open();
  mSource.plugIns[1]->panel->agrees = false;
  const auto options = model->prepareToPrint();
  ASSERT_FALSE(options);
  EXPECT_NE(options.error().message.find("second"), std::string::npos);
}

TEST_F(PrintModelTest, EveryPanelIsAskedAndSavesBeforePrinting) {
  const auto model = open();
  mLog.clear();
  ASSERT_TRUE(model->prepareToPrint());
  const Log expected = {"shouldPrint", "save"};
  EXPECT_EQ(notesOf("first"), expected);
  EXPECT_EQ(notesOf("second"), expected);
}

TEST_F(PrintModelTest, WithoutAQueueNothingIsPrinted) {
  PrintModel model(mSource, {});
  model.openPrinter({Destination{}, mPpd});
  EXPECT_FALSE(model.hasQueue());
  EXPECT_FALSE(model.prepareToPrint());
}

TEST_F(PrintModelTest, PanelsAreToldThatTheDialogCloses) {
  auto model = open();
  mLog.clear();
  model->close();
  EXPECT_EQ(notesOf("first"), Log{"printWindowWillClose"});
  EXPECT_FALSE(model->isOpen());
}

TEST_F(PrintModelTest, APaperChangeIsMarkedReportedAndTold) {
  const auto model = open();
  RecordingListener listener;
  model->setListener(&listener);
  ASSERT_TRUE(model->setPaper("W24"));
  EXPECT_EQ(model->currentPaper().name, "W24");
  EXPECT_TRUE(listener.changes.contains(ModelChange::paper));
  EXPECT_TRUE(listener.changes.contains(ModelChange::options));
  EXPECT_FALSE(model->setPaper("A4"));
  EXPECT_EQ(valueOf(model->jobOptions(), "PageSize"), "W24");
}

TEST_F(PrintModelTest, TheLayoutIsRelayed) {
  const auto model = open();
  RecordingListener listener;
  model->setListener(&listener);
  PDEPluginCallback13_v400_& host = *mSource.plugIns[0]->host;
  EXPECT_TRUE(host.respondsToPanelViewDidResize());
  host.panelViewDidResize();
  EXPECT_EQ(listener.changes, std::set<ModelChange>{ModelChange::layout});
}

TEST_F(PrintModelTest, OnlyOptionsThatNoPanelDeclaredAreGenerated) {
  const auto model = open();
  std::set<std::string> keywords;
  for (const OptionGroup& group : model->generatedOptions())
    for (const PpdOption& option : group.options) keywords.insert(option.keyword);
  EXPECT_TRUE(model->hasGeneratedOptions());
  EXPECT_TRUE(keywords.contains("LxChainPrint"));
  for (const char* other : {"LxHalfCut", "LxMirror", "PageSize", "PageRegion"})
    EXPECT_FALSE(keywords.contains(other)) << other;
}

TEST_F(PrintModelTest, AGeneratedOptionIsMarkedReportedAndSent) {
  const auto model = open();
  mLog.clear();
  ASSERT_TRUE(model->setOption("lxchainprint", "ON"));
  EXPECT_EQ(notesOf("first"), Log{"didChange LxChainPrint=ON"});
  EXPECT_EQ(valueOf(model->jobOptions(), "LxChainPrint"), "ON");
  EXPECT_FALSE(model->setOption("LxChainPrint", "MAYBE"));
  EXPECT_FALSE(model->setOption("LxNothing", "ON"));
}

TEST_F(PrintModelTest, CopiesAndPagesAreCheckedAndSent) {
  const auto model = open();
  EXPECT_EQ(valueOf(model->jobOptions(), "copies"), "1");
  EXPECT_TRUE(model->setCopies(9999));
  EXPECT_FALSE(model->setCopies(0));
  EXPECT_FALSE(model->setCopies(10000));
  EXPECT_TRUE(model->setPageRanges("1 - 4"));
  EXPECT_FALSE(model->setPageRanges("4-1"));
  EXPECT_EQ(valueOf(model->jobOptions(), "copies"), "9999");
  // The document that is sent has the chosen pages only: all of them are printed.
  EXPECT_EQ(valueOf(model->jobOptions(), "page-ranges"), "1-99999");
  EXPECT_EQ(model->pageSelection().ranges.text(), "1-4");
}

// As libcups reads options: the printer gets its own spelling, and each option once.
TEST_F(PrintModelTest, CapitalsDoNotCountInOptions) {
  const OptionList saved = {{"COPIES", "5"},
                            {"Page-Ranges", "2"},
                            {"Job-Priority", "70"},
                            {"lxhalfcut", "on"},
                            {"pagesize", "w24"}};
  const auto model = open({{{"LXMIRROR", "on"}, {"JOB-PRIORITY", "80"}}, {}, {}}, saved);
  EXPECT_EQ(model->copies(), 5);
  EXPECT_EQ(model->pageRanges(), "2");
  const OptionList sent = model->jobOptions();
  EXPECT_EQ(valueOf(sent, "LxHalfCut"), "ON");
  EXPECT_EQ(valueOf(sent, "LxMirror"), "ON");
  EXPECT_EQ(valueOf(sent, "PageSize"), "W24");
  EXPECT_EQ(valueOf(sent, "job-priority"), "80");
  for (const char* other : {"COPIES", "Page-Ranges", "Job-Priority", "JOB-PRIORITY", "lxhalfcut"})
    EXPECT_EQ(valueOf(sent, other), "absent") << other;
  EXPECT_TRUE(model->deviations().empty());
}

TEST_F(PrintModelTest, CapitalsDoNotCountInAPresetAndInAChoice) {
  const auto model = open();
  ASSERT_TRUE(model->applyPreset({{"lxhalfcut", "on"}, {"Copies", "3"}}));
  EXPECT_EQ(model->copies(), 3);
  EXPECT_EQ(valueOf(model->jobOptions(), "LxHalfCut"), "ON");
  ASSERT_TRUE(model->setOption("lxmirror", "on"));
  ASSERT_TRUE(model->setOption("PAGESIZE", "w24"));
  EXPECT_EQ(valueOf(model->jobOptions(), "LxMirror"), "ON");
  EXPECT_EQ(model->currentPaper().name, "W24");
  EXPECT_TRUE(model->deviations().empty());
}

TEST_F(PrintModelTest, SavedCopiesAndPagesStandWhereNoneWereAskedFor) {
  const OptionList saved = {{"copies", "5"}, {"page-ranges", "2"}};
  EXPECT_EQ(open({}, saved)->copies(), 5);
  EXPECT_EQ(open({}, saved)->pageRanges(), "2");
  EXPECT_EQ(open({{}, 2, "1"}, saved)->copies(), 2);
  EXPECT_EQ(open({{}, 2, "1"}, saved)->pageRanges(), "1");
}

TEST_F(PrintModelTest, OptionsBesideThePpdAreSentAsTheyWereGiven) {
  const auto model =
      open({{{"job-priority", "70"}}, {}, {}}, {{"job-priority", "30"}, {"job-billing", "shop"}});
  EXPECT_EQ(valueOf(model->jobOptions(), "job-priority"), "70");
  EXPECT_EQ(valueOf(model->jobOptions(), "job-billing"), "shop");
}

TEST_F(PrintModelTest, WhatLaysDocumentsOutIsReadAndNotSent) {
  const OptionList saved = {{"print-scaling", "fill"}, {"position", "top"}, {"mirror", "true"}};
  const auto model = open({{{"natural-scaling", "50"}}, {}, {}}, saved);
  EXPECT_EQ(model->jobLayout().placing.scaling, Scaling::percent);
  EXPECT_EQ(model->jobLayout().placing.position, Position::top);
  EXPECT_TRUE(model->compositionRequest().isMirrored);
  EXPECT_EQ(valueOf(model->jobOptions(), "print-scaling"), "none");
  EXPECT_EQ(valueOf(model->jobOptions(), "mirror"), "false");
  EXPECT_EQ(valueOf(model->jobOptions(), "position"), "absent");
  EXPECT_EQ(valueOf(model->jobOptions(), "natural-scaling"), "absent");
}

TEST_F(PrintModelTest, APresetRemembersHowDocumentsAreLaidOut) {
  const auto model = open();
  JobLayout layout = model->jobLayout();
  layout.placing = {Scaling::percent, 92, Turn::reversePortrait, Position::bottomLeft};
  layout.text.unit = TextUnit::line;
  model->setJobLayout(layout);
  const Result<OptionList> preset = model->savePreset();
  ASSERT_TRUE(preset);
  EXPECT_EQ(valueOf(*preset, "natural-scaling"), "92");
  EXPECT_EQ(valueOf(*preset, "number-up"), "absent");
  const auto other = open();
  EXPECT_NE(other->jobLayout(), layout);
  ASSERT_TRUE(other->applyPreset(*preset));
  EXPECT_EQ(other->jobLayout(), layout);
  ASSERT_TRUE(other->applyPreset({}));
  EXPECT_EQ(other->jobLayout(), JobLayout());
}

TEST_F(PrintModelTest, RestoresEverythingThatCanBeSet) {
  const auto model = open({{{"raw", "false"}}, {}, {}});
  const Settings before = model->settings();
  const OptionList sentBefore = model->jobOptions();
  JobLayout layout = model->jobLayout();
  layout.placing.scaling = Scaling::fill;
  layout.isReversed = true;
  model->setJobLayout(layout);
  ASSERT_TRUE(model->setCopies(7));
  ASSERT_TRUE(model->setPageRanges("2-3"));
  model->setCollated(true);
  const Settings after = model->settings();
  EXPECT_NE(after, before);
  model->restore(before);
  EXPECT_EQ(model->copies(), 1);
  EXPECT_EQ(model->pageRanges(), "");
  EXPECT_FALSE(model->isCollated());
  EXPECT_EQ(model->jobLayout(), JobLayout());
  model->restore(after);
  EXPECT_EQ(model->settings(), after);
  EXPECT_EQ(model->copies(), 7);
  EXPECT_EQ(model->pageRanges(), "2-3");
  EXPECT_TRUE(model->isCollated());
  EXPECT_EQ(model->jobLayout(), layout);
  model->reset();
  EXPECT_EQ(model->copies(), 1);
  EXPECT_EQ(valueOf(model->jobOptions(), "print-scaling"), valueOf(sentBefore, "print-scaling"));
}

TEST_F(PrintModelTest, ARawDocumentStaysOneWhenAPresetIsChosen) {
  const auto model = open({{{"raw", "true"}}, {}, {}});
  ASSERT_TRUE(model->applyPreset({}));
  EXPECT_EQ(valueOf(model->jobOptions(), "raw"), "true");
}

TEST_F(PrintModelTest, CollatesAsChosenWhateverWasSaved) {
  const auto model =
      open({}, {{"multiple-document-handling", "separate-documents-collated-copies"}});
  EXPECT_TRUE(model->isCollated());
  model->setCollated(false);
  EXPECT_FALSE(model->isCollated());
  EXPECT_EQ(valueOf(model->jobOptions(), "multiple-document-handling"),
            "separate-documents-uncollated-copies");
  EXPECT_EQ(valueOf(model->jobOptions(), "collate"), "false");
  model->setCollated(true);
  EXPECT_EQ(valueOf(model->jobOptions(), "collate"), "true");
}

TEST_F(PrintModelTest, CollatesAsAnOptionOfThePpdSays) {
  test::TestPrinter printer = test::fullTapePrinter();
  printer.more =
      "*OpenUI *Collate: Boolean\n*DefaultCollate: False\n*Collate True: \"\"\n"
      "*Collate False: \"\"\n*CloseUI: *Collate\n";
  mPpd = test::ppdFor(printer);
  EXPECT_FALSE(open()->isCollated());
  EXPECT_TRUE(open({{{"collate", "true"}}, {}, {}})->isCollated());
  EXPECT_TRUE(open({}, {{"Collate", "True"}})->isCollated());
}

TEST_F(PrintModelTest, ARawDocumentGoesWithEveryOptionThatItHad) {
  const auto model = open({{{"raw", "true"}, {"print-scaling", "fit"}}, {}, "1-2"});
  EXPECT_EQ(valueOf(model->jobOptions(), "raw"), "true");
  EXPECT_EQ(valueOf(model->jobOptions(), "print-scaling"), "fit");
  EXPECT_EQ(valueOf(model->jobOptions(), "page-ranges"), "1-2");
  EXPECT_EQ(valueOf(open({}, {{"raw", "true"}})->jobOptions(), "raw"), "absent");
}

TEST_F(PrintModelTest, NamesWhatDoesNotGoWithLabels) {
  const auto asked = open({{{"number-up", "4"}}, {}, {}})->deviations();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_NE(asked[0].sentence.english().find("number-up"), std::string::npos);
  EXPECT_TRUE(open({}, {{"number-up", "4"}})->deviations().empty());
}

TEST_F(PrintModelTest, EveryCutOptionIsSentAlsoAtItsDefault) {
  const OptionList options = open()->jobOptions();
  for (const auto& [keyword, choice] : test::fullTapePrinter().cutOptions)
    EXPECT_EQ(valueOf(options, keyword), choice);
}

TEST_F(PrintModelTest, OtherOptionsAreSentWhenTheyDifferOrWereAskedFor) {
  test::TestPrinter printer = test::fullTapePrinter();
  printer.more =
      "*OpenUI *Speed: PickOne\n*DefaultSpeed: Slow\n*Speed Slow: \"\"\n*Speed Fast: \"\"\n"
      "*CloseUI: *Speed\n";
  mPpd = test::ppdFor(printer);
  EXPECT_EQ(valueOf(open()->jobOptions(), "Speed"), "absent");
  EXPECT_EQ(valueOf(open({{{"Speed", "Slow"}}, {}, {}})->jobOptions(), "Speed"), "Slow");
  EXPECT_EQ(valueOf(open({{{"speed", "fast"}}, {}, {}})->jobOptions(), "Speed"), "Fast");
}

TEST_F(PrintModelTest, TheSummaryFollowsThePanelsOwnOrder) {
  const auto model = open();
  auto summary = std::make_shared<SummaryInfo>();
  (*summary)["A"] = std::string("1");
  (*summary)["B"] = std::string("2");
  (*summary)[kSummaryDisplayOrderKey] = std::vector<std::string>{"B", "A"};
  mSource.plugIns[0]->panel->summary = summary;
  const std::vector<SummaryLine> lines = model->summary();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].title + lines[0].value, "B2");
  EXPECT_EQ(lines[1].title + lines[1].value, "A1");
}

class Constrained : public PrintModelTest {
 protected:
  Constrained() {
    test::TestPrinter printer = test::fullTapePrinter();
    printer.more =
        "*OpenUI *Speed: PickOne\n*DefaultSpeed: Slow\n*Speed Slow: \"\"\n*Speed Fast: \"\"\n"
        "*CloseUI: *Speed\n*UIConstraints: *Speed Fast *LxChainPrint ON\n"
        "*UIConstraints: *LxChainPrint ON *Speed Fast\n";
    mPpd = test::ppdFor(printer);
  }
};

TEST_F(Constrained, ConflictsAreNamedInWords) {
  const auto model = open();
  EXPECT_TRUE(model->conflicts().empty());
  ASSERT_TRUE(model->setOption("Speed", "Fast"));
  ASSERT_TRUE(model->setOption("LxChainPrint", "ON"));
  ASSERT_EQ(model->conflicts().size(), 1U);
  const std::string sentence = model->conflicts().front().english();
  for (const char* part : {"Speed", "Fast", "ChainPrint", "On"})
    EXPECT_NE(sentence.find(part), std::string::npos) << sentence;
}

TEST_F(Constrained, TheOptionThatWasChosenLastStays) {
  const auto model = open();
  ASSERT_TRUE(model->setOption("Speed", "Fast"));
  ASSERT_TRUE(model->setOption("LxChainPrint", "ON"));
  ASSERT_TRUE(model->resolveConflicts());
  EXPECT_TRUE(model->conflicts().empty());
  EXPECT_EQ(mPpd->markedChoice("LxChainPrint"), "ON");
  EXPECT_EQ(mPpd->markedChoice("Speed"), "Slow");
}

}  // namespace
}  // namespace cutline
