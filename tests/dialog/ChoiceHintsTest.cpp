// What is said of the cut options: their meaning, what they change, why they cannot be used.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QToolTip>
#include <QWhatsThis>

#include "host/dialog/ChoiceHints.h"
#include "host/dialog/NoticeView.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

CutPlan planWith(const CutSettings& settings) {
  LabelRun run;
  run.pages = {1, 2, 3};
  run.labelLength = 50;
  return {settings, run};
}

TEST(ChoiceEffects, TellTheTapeThatAChoiceSavesOrTakes) {
  CutSettings settings;
  settings.leader = 8;
  settings.feed = 4;
  EXPECT_EQ(effectOf("LxChainPrint", settings, planWith(settings)),
            QStringLiteral("Would save 12 mm of tape."));
  settings.chains = true;
  EXPECT_EQ(effectOf("LxChainPrint", settings, planWith(settings)),
            QStringLiteral("Saves 12 mm of tape."));
  EXPECT_EQ(effectOf("LxSpecialTape", settings, planWith(settings)),
            QStringLiteral("Would take 12 mm more tape."));
}

TEST(ChoiceEffects, TellThePiecesWhereTheTapeIsTheSameOrNotKnown) {
  CutSettings settings;
  EXPECT_EQ(effectOf("LxAutoTapeCut", settings, planWith(settings)),
            QStringLiteral("Pieces: would be 3 instead of 1."));
  settings.cutsAutomatically = true;
  EXPECT_EQ(effectOf("LxAutoTapeCut", settings, planWith(settings)),
            QStringLiteral("Pieces: 3 instead of 1."));
  EXPECT_EQ(effectOf("LxMirror", settings, planWith(settings)), QString());
  EXPECT_EQ(effectOf("PageSize", settings, planWith(settings)), QString());
}

class ChoiceHintsTest : public DialogTest {
 protected:
  QString tipOf(QWidget* widget) {
    QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), widget->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(widget, &event);
    return QToolTip::text();
  }
  QStringList notices(NoticeTopic topic) {
    return dialog().findChild<NoticeView*>()->notices(topic);
  }
};

TEST_F(ChoiceHintsTest, ATipTellsMeaningAndEffect) {
  openQueue(samplePpd("tape-a"));
  const QString tip = tipOf(box("LxChainPrint"));
  EXPECT_TRUE(tip.contains(QStringLiteral("stays in the printer"))) << tip.toStdString();
  EXPECT_TRUE(tip.contains(QStringLiteral("Would save 12 mm of tape."))) << tip.toStdString();
}

TEST_F(ChoiceHintsTest, ABoxThatCannotBeUsedSaysWhy) {
  openQueue(samplePpd("tape-a"));
  click(box("LxSpecialTape"));
  ASSERT_FALSE(box("LxHalfCut")->isEnabled());
  const QString tip = tipOf(box("LxHalfCut"));
  EXPECT_TRUE(tip.contains(QStringLiteral("Special tape is never cut"))) << tip.toStdString();
}

TEST_F(ChoiceHintsTest, TheHelpKeyExplainsTheOptionThatHasTheFocus) {
  openQueue(samplePpd("tape-a"));
  box("LxHalfCut")->setFocus();
  press(box("LxHalfCut"), Qt::Key_F1);
  const auto shown = [] {
    for (const QWidget* each : QApplication::topLevelWidgets())
      if (each->inherits("QWhatsThat") && each->isVisible()) return true;
    return false;
  };
  EXPECT_TRUE(waitUntil(shown));
  QWhatsThis::hideText();
}

TEST_F(ChoiceHintsTest, AnOddLastPieceHasRemediesAtAClick) {
  AskedSettings asked;
  asked.options = {{"LxCutLabel", "2"}};
  openQueue(samplePpd("tape-a"), asked);
  ASSERT_TRUE(waitUntil([this] { return notices(NoticeTopic::cutting).size() == 1; }));
  EXPECT_EQ(notices(NoticeTopic::cutting).front(),
            QStringLiteral("The last piece has 1 of 2 labels."));
  click(named<QPushButton>("Print 2 copies"));
  EXPECT_EQ(model().copies(), 2);
  EXPECT_TRUE(notices(NoticeTopic::cutting).isEmpty());
}

TEST_F(ChoiceHintsTest, MuchTapeIsAskedAboutOnce) {
  openQueue(samplePpd("tape-a"));
  named<QSpinBox>("Copies")->setValue(100);
  auto* print = dialog().findChild<QPushButton*>(QStringLiteral("print"));
  click(print);
  auto* question = dialog().findChild<QMessageBox*>();
  ASSERT_NE(question, nullptr);
  EXPECT_TRUE(question->informativeText().startsWith(QStringLiteral("300 labels")));
  EXPECT_TRUE(server().submissions().empty());
  click(question->defaultButton());
  EXPECT_TRUE(waitUntil([this] { return server().submissions().size() == 1; }));
}

}  // namespace
}  // namespace cutline
