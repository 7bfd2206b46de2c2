// The dialog in the service of another program: for one job of that program's, or to choose
// settings for a document that is not made yet.
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>

#include "host/core/CommandLine.h"
#include "host/dialog/ChosenSettings.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

class ServiceTest : public DialogTest {
 protected:
  void choose(const char* ppd, const AskedSettings& asked = {}) {
    setPaths({});
    openQueue(samplePpd(ppd), asked);
    dialog().chooseOnly();
  }
  QJsonObject chosen() { return QJsonDocument::fromJson(chosenSettings(model())).object(); }
  QJsonObject part(const char* name) { return chosen().value(QLatin1String(name)).toObject(); }
  bool canOpen() { return buttonWithText<QPushButton>("&Open...")->isVisible(); }
};

TEST_F(ServiceTest, WithoutADocumentTheDialogGoesOnInsteadOfPrinting) {
  choose("tape-a");
  EXPECT_EQ(printButton()->text(), QStringLiteral("Cont&inue"));
  EXPECT_TRUE(printButton()->isEnabled());
  EXPECT_FALSE(shows(QStringLiteral("There is no document")));
  EXPECT_FALSE(canOpen());
  click(printButton());
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
  EXPECT_TRUE(server().submissions().empty());
}

TEST_F(ServiceTest, ChoosingCanBeCancelled) {
  choose("tape-a");
  press(&dialog(), Qt::Key_Escape);
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitCancelled);
}

TEST_F(ServiceTest, PagesThatAreNoneAreCorrectedFirst) {
  choose("tape-a");
  auto* const pages = named<QWidget>("Pages");
  press(pages, Qt::Key_X);
  click(printButton());
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(ServiceTest, WhatWasChosenIsTold) {
  choose("tape-a", {{{"LxCutLabel", "3"}, {"job-priority", "70"}}, 2, "1-4"});
  click(box("LxHalfCut"));
  const QJsonObject all = chosen();
  EXPECT_EQ(all.value(QStringLiteral("printer")).toString(), QStringLiteral("tape"));
  EXPECT_EQ(all.value(QStringLiteral("copies")).toInt(), 2);
  EXPECT_EQ(all.value(QStringLiteral("pages")).toString(), QStringLiteral("1-4"));
  const QJsonObject options = part("options");
  EXPECT_EQ(options.value(QStringLiteral("LxHalfCut")).toString(), QStringLiteral("ON"));
  EXPECT_EQ(options.value(QStringLiteral("LxCutLabel")).toString(), QStringLiteral("3"));
  EXPECT_FALSE(options.contains(QStringLiteral("job-priority")));
  EXPECT_EQ(part("job").value(QStringLiteral("job-priority")).toString(), QStringLiteral("70"));
}

// A rule has it that special tape is not cut; what was wanted stands for when it is another tape.
TEST_F(ServiceTest, WhatARuleKeepsFromPrintingIsToldAsItWasWanted) {
  choose("tape-a", {{{"LxHalfCut", "ON"}, {"LxSpecialTape", "ON"}}, {}, {}});
  ASSERT_EQ(sent()["LxHalfCut"], "OFF");
  EXPECT_EQ(part("options").value(QStringLiteral("LxHalfCut")).toString(), QStringLiteral("ON"));
}

// W24H50 has margins of 1 mm beside the tape's edges, and of 2 mm before and behind a label.
TEST_F(ServiceTest, ATapesPageIsToldAsItIsRead) {
  choose("tape-a", {{{"PageSize", "W24H50"}}, {}, {}});
  const QJsonObject page = part("page");
  EXPECT_EQ(page.value(QStringLiteral("name")).toString(), QStringLiteral("W24H50"));
  const std::map<const char*, double> lengths = {{"width", 50}, {"length", 24}, {"left", 2},
                                                 {"right", 2},  {"top", 1},     {"bottom", 1}};
  for (const auto& [name, millimetres] : lengths)
    EXPECT_NEAR(page.value(QLatin1String(name)).toDouble(), millimetres, 0.1) << name;
}

TEST_F(ServiceTest, ARollsPageIsToldAsThePaperIs) {
  choose("roll");
  const PaperSize paper = model().currentPaper();
  const QJsonObject page = part("page");
  EXPECT_NEAR(page.value(QStringLiteral("width")).toDouble(), paper.width * 25.4 / 72, 0.1);
  EXPECT_NEAR(page.value(QStringLiteral("length")).toDouble(), paper.length * 25.4 / 72, 0.1);
  EXPECT_NEAR(page.value(QStringLiteral("bottom")).toDouble(), paper.bottom * 25.4 / 72, 0.1);
}

TEST_F(ServiceTest, ADialogForOneJobOpensNoOtherDocument) {
  openQueue(samplePpd("tape-a"));
  EXPECT_TRUE(canOpen());
  dialog().closeAfterJob();
  EXPECT_FALSE(canOpen());
  EXPECT_FALSE(dialog().acceptDrops());
}

}  // namespace
}  // namespace cutline
