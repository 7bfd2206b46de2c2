// The panel's three rules change what was asked for. Whoever asked is told, and the printer gets
// what was told.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/Program.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

struct Rule {
  const char* name;
  Choices asked;
  Choices sent;  // of those that were asked for or are on by default
  std::vector<std::string> notices;
};

void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.name; }

const std::vector<Rule> kRules = {
    {"SpecialTape",
     {{"LxSpecialTape", "ON"}, {"LxHalfCut", "ON"}, {"LxChainPrint", "ON"}, {"LxCutMark", "ON"}},
     {{"LxSpecialTape", "ON"},
      {"LxHalfCut", "OFF"},
      {"LxChainPrint", "OFF"},
      {"LxCutMark", "OFF"},
      {"LxAutoTapeCut", "OFF"}},
     {"Half cut between labels: sent as \"Off\" because special tape is on.",
      "Chain printing (saves tape): sent as \"Off\" because special tape is on.",
      "Print cut marks: sent as \"Off\" because special tape is on.",
      "Cut automatically: sent as \"Off\" because special tape is on.",
      "Cut after the last label: sent as \"On\", but nothing is cut while special tape is on."}},
    {"BlankSpaceOnDieCutLabels",
     {{"PageSize", "DC24H50"}, {"LxRemoveBlkSpace", "ON"}},
     {{"PageSize", "DC24H50"}, {"LxRemoveBlkSpace", "OFF"}},
     {"Remove blank space: sent as \"Off\" because the paper \"Die-cut labels 24 x 50 mm\" keeps "
      "its blank space."}},
    {"BlankSpaceOnPreSpacedLabels",
     {{"PageSize", "AV24H60"}, {"LxRemoveBlkSpace", "ON"}},
     {{"PageSize", "AV24H60"}, {"LxRemoveBlkSpace", "OFF"}},
     {"Remove blank space: sent as \"Off\" because the paper \"Pre-spaced labels 24 x 60 mm\" "
      "keeps "
      "its blank space."}},
    {"AutoCutOnTube",
     {{"PageSize", "HS24H50"}, {"LxAutoTapeCut", "ON"}},
     {{"PageSize", "HS24H50"}, {"LxAutoTapeCut", "OFF"}},
     {"Cut automatically: sent as \"Off\" because the paper \"Heat-shrink tube 24 x 50 mm\" must "
      "not "
      "be cut automatically."}},
};

class Rules : public EndToEndTest, public testing::WithParamInterface<Rule> {};
INSTANTIATE_TEST_SUITE_P(Each, Rules, testing::ValuesIn(kRules),
                         [](const auto& info) { return info.param.name; });

TEST_P(Rules, AreNamedInTheDialogAndKept) {
  CommandLine line = dialogOn("tape24");
  line.asked.options = asList(GetParam().asked);
  DialogOnServer dialog(line);
  for (const std::string& notice : GetParam().notices)
    EXPECT_TRUE(dialog.willShow(QString::fromStdString(notice))) << notice;
  EXPECT_EQ(dialog.model().deviations().size(), GetParam().notices.size());
  dialog.print();
  EXPECT_EQ(only(newJob().options(), GetParam().sent), GetParam().sent);
}

TEST_P(Rules, AreNamedOnStandardErrorAndKept) {
  std::string words = "--print -d tape24";
  for (const auto& [keyword, choice] : GetParam().asked) words += " -o " + keyword + "=" + choice;
  const CommandResult program = runProgram(words + " " + labels());
  EXPECT_EQ(program.status, kExitDone);
  for (const std::string& notice : GetParam().notices)
    EXPECT_NE(program.errors.find("cutline: " + notice + "\n"), std::string::npos)
        << program.errors;
  EXPECT_EQ(std::count(program.errors.begin(), program.errors.end(), '\n'),
            static_cast<std::ptrdiff_t>(GetParam().notices.size()))
      << program.errors;
  EXPECT_EQ(only(newJob().options(), GetParam().sent), GetParam().sent);
}

class RulesByHand : public EndToEndTest {};

TEST_F(RulesByHand, SpecialTapeGreysWhatItTurnsOffAndGivesItBack) {
  DialogOnServer dialog("tape24");
  click(dialog.box("LxHalfCut"));
  click(dialog.box("LxSpecialTape"));
  EXPECT_FALSE(dialog.box("LxHalfCut")->isEnabled());
  EXPECT_TRUE(dialog.willShow(QString::fromStdString(kRules[0].notices[0])));
  EXPECT_EQ(dialog.sent()["LxHalfCut"], "OFF");
  EXPECT_EQ(dialog.picture(), "SPMROnOff");
  click(dialog.box("LxSpecialTape"));
  EXPECT_TRUE(dialog.model().deviations().empty());
  EXPECT_FALSE(dialog.shows(QString::fromStdString(kRules[0].notices[0])));
  dialog.print();
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(job.options().at("LxAutoTapeCut"), "ON");
}

TEST_F(RulesByHand, BlankSpaceIsKeptOnDieCutLabelsAndTheTickWaits) {
  DialogOnServer dialog("tapeb");
  click(dialog.box("LxRemoveBlkSpace"));
  choose(dialog.named<QComboBox>("Paper"), QStringLiteral("DC24H50"));
  EXPECT_FALSE(dialog.box("LxRemoveBlkSpace")->isEnabled());
  EXPECT_EQ(dialog.checkBox("LxRemoveBlkSpace")->state(), CheckBox::kOn);
  EXPECT_TRUE(dialog.willShow(QString::fromStdString(kRules[1].notices[0])));
  dialog.print();
  EXPECT_EQ(newJob().options().at("LxRemoveBlkSpace"), "OFF");
}

TEST_F(RulesByHand, TubeTurnsAutoCutOffAndTapeTurnsItOnAgain) {
  DialogOnServer dialog("tape24");
  auto* papers = dialog.named<QComboBox>("Paper");
  choose(papers, QStringLiteral("HS24H50"));
  EXPECT_TRUE(dialog.willShow(QString::fromStdString(kRules[3].notices[0])));
  EXPECT_EQ(dialog.checkBox("LxAutoTapeCut")->state(), CheckBox::kOff);
  choose(papers, QStringLiteral("W24H50"));
  EXPECT_TRUE(dialog.model().deviations().empty());
  EXPECT_FALSE(dialog.shows(QString::fromStdString(kRules[3].notices[0])));
  dialog.print();
  EXPECT_EQ(newJob().options().at("LxAutoTapeCut"), "ON");
}

// Answers the alert that a click brings up, and gives its text.
QString clickAndAnswer(QWidget* box) {
  QString text;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&text] {
    auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (alert == nullptr) return;
    text = alert->text();
    QTest::keyClick(alert, Qt::Key_Return);
  });
  watch.start(10);
  click(box);
  return text;
}

TEST_F(RulesByHand, TickingAutoCutOnTubeWarnsOfTheCutterAndIsNamed) {
  DialogOnServer dialog("tape24");
  choose(dialog.named<QComboBox>("Paper"), QStringLiteral("HS24H50"));
  const QString alert = clickAndAnswer(dialog.box("LxAutoTapeCut"));
  EXPECT_TRUE(alert.contains(QStringLiteral("can jam the cutter"))) << alert.toStdString();
  EXPECT_EQ(dialog.checkBox("LxAutoTapeCut")->state(), CheckBox::kOn);
  EXPECT_TRUE(
      dialog.willShow(QStringLiteral("Cut automatically: sent as \"On\" although the paper "
                                     "\"Heat-shrink tube 24 x 50 mm\" must not "
                                     "be cut automatically.")));
  dialog.print();
  EXPECT_EQ(newJob().options().at("LxAutoTapeCut"), "ON");
}

}  // namespace

}  // namespace cutline::test
