// Every window in every language: letters that clash with no other, a tab key that reaches every
// control, texts that have their room.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "host/dialog/DialogLanguage.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "platform/lib/Languages.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/FontSize.h"
#include "tests/dialog/languages.h"
#include "tests/dialog/window_checks.h"
#include "tests/support/TemporaryBundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {

namespace {

// The user's language, as the program takes it from the environment.
class UsersLanguage {
 public:
  explicit UsersLanguage(const char* language)
      : mEnvironment(test::languageEnvironment({{"LANG", "en_US.UTF-8"}, {"LANGUAGE", language}})),
        mInForce(chooseLanguage(preferredLocalizations(), tableDirectory()), tableDirectory()) {}

 private:
  test::ScopedEnvironment mEnvironment;
  LanguageInForce mInForce;
};

class LanguagesTest : public DialogTest,
                      public testing::WithParamInterface<std::tuple<const char*, int>> {
 protected:
  LanguagesTest() : mLanguage(std::get<0>(GetParam())), mFont(std::get<1>(GetParam())) {}
  ~LanguagesTest() override { closeDialog(); }

  static void expectUsable(QWidget& window) {
    expectNoSharedMnemonic(window);
    expectNothingCutOff(window);
    expectTabReachesEveryControl(window);
  }

  // A button in one of the dialog's parts by its place there: its words differ by language.
  template <class Part>
  QPushButton* buttonOf(int place) {
    return dialog().findChild<Part*>()->template findChildren<QPushButton*>().at(place);
  }
  void showMoreOptions() {
    click(buttonWithText<QPushButton>(PrintDialog::tr("&More printer options")));
    QTest::qWait(20);
  }
  template <class Window>
  Window* openWindow() {
    Window* window = nullptr;
    EXPECT_TRUE(waitUntil([&] {
      window = dialog().findChild<Window*>();
      return window && window->isActiveWindow() && QApplication::focusWidget();
    }));
    return window;
  }

 private:
  UsersLanguage mLanguage;
  FontSize mFont;
};

TEST_P(LanguagesTest, TheDialogIsUsableOnEachKindOfPrinter) {
  const std::string printers[] = {samplePpd("tape-a"),      samplePpd("tape-b"),
                                  samplePpd("roll"),        oddPpd("odd-missing-texts"),
                                  oddPpd("tape-all-shown"), oddPpd("without-cut-options")};
  for (const std::string& printer : printers) {
    SCOPED_TRACE(printer);
    openQueue(printer);
    expectUsable(dialog());
    expectWholeEntry(*dialog().findChild<PresetBar*>()->findChild<QComboBox*>());
    closeDialog();
  }
}

TEST_P(LanguagesTest, TheDialogIsUsableWithMoreOptions) {
  openQueue(samplePpd("tape-a"));
  showMoreOptions();
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheLayoutFormIsUsable) {
  const test::TemporaryFolder folder;
  setPaths({folder.write("notes.txt", "one\n\ntwo\n")});
  openQueue(samplePpd("tape-a"));
  click(dialog().findChild<LayoutBar*>()->findChild<QPushButton*>());
  JobLayout layout;
  layout.placing.scaling = Scaling::percent;
  model().setJobLayout(layout);
  QTest::qWait(20);
  expectUsable(dialog());
  for (const QComboBox* list : dialog().findChild<LayoutForm*>()->findChildren<QComboBox*>())
    expectWholeEntry(*list);
  EXPECT_LE(dialog().minimumSizeHint().width(), kSmallScreen.width());
  EXPECT_LE(dialog().minimumSizeHint().height(), 720);
}

TEST_P(LanguagesTest, TheNoticeOfAShrunkPageIsUsable) {
  composer().setPages(1, {283.46, 68.03}, 0.5);
  openQueue(samplePpd("tape-a"));
  ASSERT_EQ(dialog().findChild<NoticeView*>()->findChildren<QPushButton*>().size(), 1);
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheNoticeOfLostEdgesIsUsable) {
  composer().setPages(1, {141.73, 68.03}, 1);
  composer().setBleed(3);
  openQueue(samplePpd("tape-a"));
  ASSERT_EQ(dialog().findChild<NoticeView*>()->findChildren<QPushButton*>().size(), 1);
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheDialogWithoutADocumentIsUsable) {
  setPaths({});
  openQueue(samplePpd("tape-a"));
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheDialogFitsASmallScreen) {
  openQueue(samplePpd("tape-a"));
  const QSize least = dialog().minimumSizeHint();
  EXPECT_LE(least.width(), kSmallScreen.width());
  EXPECT_LE(least.height(), kSmallScreen.height());
}

TEST_P(LanguagesTest, NothingIsCutOffAtTheSmallestSize) {
  openQueue(samplePpd("roll"));
  dialog().resize(dialog().minimumSizeHint());
  QTest::qWait(20);
  expectNothingCutOff(dialog());
}

TEST_P(LanguagesTest, NoticesAreUsable) {
  openQueue(samplePpd("tape-a"));
  click(box("LxHalfCut"));
  click(box("LxSpecialTape"));
  QTest::qWait(20);
  ASSERT_FALSE(dialog().findChild<NoticeView*>()->notices(NoticeTopic::deviations).isEmpty());
  expectUsable(dialog());
}

TEST_P(LanguagesTest, NoticesOfWhatIsSentAgainstARuleAreUsable) {
  openQueue(samplePpd("tape-a"));
  ASSERT_TRUE(model().setPaper("HS24H50"));
  clickPastAlert(box("LxAutoTapeCut"));
  QTest::qWait(20);
  ASSERT_FALSE(dialog().findChild<NoticeView*>()->notices(NoticeTopic::deviations).isEmpty());
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheButtonThatSortsConflictsOutIsUsable) {
  openQueue(samplePpd("tape-a"));
  click(box("LxHalfCut"));
  ASSERT_TRUE(model().setOption("TapeMaterial", "Fabric"));
  QTest::qWait(20);
  ASSERT_TRUE(buttonWithText<QPushButton>(NoticeView::resolveTitle())->isVisible());
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheProgressOfAJobIsUsable) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::pending)});
  click(printButton());
  QPushButton* leave = buttonOf<JobProgress>(1);
  ASSERT_TRUE(waitUntil([leave] { return leave->isEnabled(); }));
  expectUsable(dialog());
}

TEST_P(LanguagesTest, TheDialogAfterAJobIsUsable) {
  openQueue(samplePpd("tape-a"));
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return dialog().findChild<JobOutcome*>()->isShown(); }));
  QTest::qWait(20);
  expectUsable(dialog());
}

TEST_P(LanguagesTest, NamingAPresetIsUsable) {
  openQueue(samplePpd("tape-a"));
  click(buttonOf<PresetBar>(0));
  auto* window = openWindow<PresetNameDialog>();
  ASSERT_NE(window, nullptr);
  for (const char* name : {"", "a b", "tape"}) {
    window->findChild<QLineEdit*>()->setText(QLatin1String(name));
    window->adjustSize();
    QTest::qWait(10);
    expectUsable(*window);
  }
}

TEST_P(LanguagesTest, DeletingAPresetIsUsable) {
  server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
  openQueue(samplePpd("tape-a"));
  dialog().findChild<PresetBar*>()->setPresets({QStringLiteral("halfcut")},
                                               QStringLiteral("halfcut"));
  click(buttonOf<PresetBar>(1));
  auto* window = openWindow<QMessageBox>();
  ASSERT_NE(window, nullptr);
  expectUsable(*window);
}

TEST_P(LanguagesTest, TheDialogsOwnWordsAreInTheLanguage) {
  openQueue(samplePpd("tape-a"));
  const bool isEnglish = std::string(std::get<0>(GetParam())) == "en";
  for (const char* words : {"Open or drop a document", "Printer's own settings", "Printing"}) {
    const QStringList said = {PrintDialog::tr(words), PresetBar::tr(words),
                              QCoreApplication::translate("cups", words)};
    EXPECT_EQ(said.count(QLatin1String(words)) == said.size(), isEnglish) << words;
  }
  EXPECT_EQ(shows(QStringLiteral("Ready")), isEnglish);
}

INSTANTIATE_TEST_SUITE_P(AllOfThem, LanguagesTest,
                         testing::Combine(testing::ValuesIn(kDialogLanguages),
                                          testing::Values(9, 12)),
                         [](const auto& test) {
                           return std::string(std::get<0>(test.param)) + "_" +
                                  std::to_string(std::get<1>(test.param));
                         });

// What cutting needs is beside the printer, and in sight without scrolling.
class LittleRoomTest : public DialogTest, public testing::WithParamInterface<const char*> {
 protected:
  LittleRoomTest() : mLanguage(GetParam()), mFont(9) {}
  ~LittleRoomTest() override { closeDialog(); }

  void expectCuttingInSight(const QSize& window) {
    openQueue(samplePpd("tape-a"));
    dialog().resize(window);
    QTest::qWait(20);
    ASSERT_EQ(dialog().size(), window);
    const auto& panel = *dialog().findChild<PanelFrame*>();
    EXPECT_EQ(panel.visibleRegion().boundingRect(), panel.rect());
    const auto& presets = *dialog().findChild<PresetBar*>();
    EXPECT_EQ(presets.visibleRegion().boundingRect(), presets.rect());
    expectNothingCutOff(dialog());
  }

 private:
  UsersLanguage mLanguage;
  FontSize mFont;
};

TEST_P(LittleRoomTest, HasTheCutPanelWhole) { expectCuttingInSight({984, 660}); }

INSTANTIATE_TEST_SUITE_P(AllOfThem, LittleRoomTest, testing::ValuesIn(kDialogLanguages),
                         [](const auto& test) { return std::string(test.param); });

class LeastRoomTest : public LittleRoomTest {};

TEST_P(LeastRoomTest, HasTheCutPanelBesideThePrinter) { expectCuttingInSight({920, 660}); }

INSTANTIATE_TEST_SUITE_P(English, LeastRoomTest, testing::Values("en"));

}  // namespace

}  // namespace cutline
