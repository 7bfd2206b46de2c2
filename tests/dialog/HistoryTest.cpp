// Undo, redo, reset, and whether a preset is still as it was chosen.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include "host/dialog/SettingsPane.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

class HistoryTest : public DialogTest {
 protected:
  QToolButton* undo() { return named<QToolButton>("Undo the last change of a setting"); }
  QToolButton* redo() { return named<QToolButton>("Redo what was undone"); }
  void pause() {
    QTest::qWait(500);  // longer than what the user does in one go
  }
  QString preset() { return named<QComboBox>("Preset")->currentText(); }
};

TEST_F(HistoryTest, AClickIsUndoneAndRedone) {
  openQueue(samplePpd("tape-a"));
  EXPECT_FALSE(undo()->isEnabled());
  click(box("LxHalfCut"));
  ASSERT_TRUE(waitUntil([this] { return undo()->isEnabled(); }));
  click(undo());
  EXPECT_EQ(sent()["LxHalfCut"], "OFF");
  EXPECT_FALSE(undo()->isEnabled());
  click(redo());
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
  EXPECT_FALSE(redo()->isEnabled());
}

TEST_F(HistoryTest, CopiesPagesAndLayoutAreUndoneToo) {
  openQueue(samplePpd("tape-a"));
  named<QSpinBox>("Copies")->setValue(4);
  pause();
  JobLayout layout = model().jobLayout();
  layout.isReversed = true;
  model().setJobLayout(layout);
  pause();
  click(undo());
  EXPECT_FALSE(model().jobLayout().isReversed);
  EXPECT_EQ(model().copies(), 4);
  click(undo());
  EXPECT_EQ(model().copies(), 1);
  EXPECT_EQ(named<QSpinBox>("Copies")->value(), 1);
}

TEST_F(HistoryTest, WhatIsDoneInOneGoIsOneStep) {
  openQueue(samplePpd("tape-a"));
  for (int copies = 2; copies < 9; ++copies) named<QSpinBox>("Copies")->setValue(copies);
  pause();
  click(undo());
  EXPECT_EQ(model().copies(), 1);
}

TEST_F(HistoryTest, UndoDoesNotWaitForAPause) {
  openQueue(samplePpd("tape-a"));
  click(box("LxHalfCut"));
  press(&dialog(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(undo()->isEnabled());
  pause();
  click(box("LxMirror"));
  pause();
  press(&dialog(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(sent()["LxMirror"], "OFF");
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
}

TEST_F(HistoryTest, AnotherPrinterBeginsAnew) {
  server().addPrinter("other", samplePpd("tape-b"));
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  auto* const printers = named<QComboBox>("Printer");
  ASSERT_TRUE(waitUntil([&] { return printers->findData(QStringLiteral("other")) >= 0; }));
  click(box("LxHalfCut"));
  ASSERT_TRUE(waitUntil([this] { return undo()->isEnabled(); }));
  printers->setFocus();
  press(printers, printers->findData(QStringLiteral("other")) == 0 ? Qt::Key_Home : Qt::Key_End);
  ASSERT_TRUE(waitUntil([this] { return model().destination().name.printer == "other"; }));
  EXPECT_FALSE(undo()->isEnabled());
}

TEST_F(HistoryTest, ResetGoesBackToTheDriversSettings) {
  AskedSettings asked;
  asked.options = {{"LxHalfCut", "ON"}, {"PageSize", "W12H50"}};
  asked.copies = 3;
  openQueue(samplePpd("tape-a"), asked);
  click(named<QPushButton>("Reset"));
  EXPECT_EQ(sent()["LxHalfCut"], "OFF");
  EXPECT_EQ(model().copies(), 1);
  EXPECT_NE(model().currentPaper().name, "W12H50");
  click(undo());
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
  EXPECT_EQ(model().copies(), 3);
  EXPECT_EQ(model().currentPaper().name, "W12H50");
}

TEST_F(HistoryTest, APresetSaysThatItWasChanged) {
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(preset(), QStringLiteral("Printer's own settings"));
  click(box("LxHalfCut"));
  EXPECT_EQ(preset(), QStringLiteral("Printer's own settings (changed)"));
  click(box("LxHalfCut"));
  EXPECT_EQ(preset(), QStringLiteral("Printer's own settings"));
}

TEST_F(HistoryTest, GroupsLieBesideEachOtherWhereThereIsRoom) {
  openQueue(samplePpd("tape-a"));
  QWidget* printer = named<QWidget>("Printer");
  QWidget* panel = named<QWidget>("Cut Options");
  const auto left = [&](QWidget* each) { return each->mapTo(&dialog(), QPoint()).x(); };
  dialog().resize(1200, 900);
  QTest::qWait(20);
  EXPECT_GT(left(panel), left(printer) + printer->width());
  dialog().resize(800, 520);
  QTest::qWait(20);
  EXPECT_EQ(dialog().size(), QSize(800, 520));
  EXPECT_LT(left(panel), left(printer));
  auto* pane = dialog().findChild<SettingsPane*>();
  pane->ensureWidgetVisible(panel);
  EXPECT_FALSE(panel->visibleRegion().isEmpty());
}

}  // namespace
}  // namespace cutline
