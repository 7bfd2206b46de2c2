// Settings that the dialog saves are the printer's instances, for other programs too.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <atomic>

#include "host/core/JobLayout.h"
#include "host/dialog/PresetBar.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/e2e/ServerInBetween.h"
#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

class Presets : public EndToEndTest {
 protected:
  // The settings, and under which name they are saved.
  static void change(DialogOnServer& dialog) {
    click(dialog.box("LxHalfCut"));
    click(dialog.box("LxMirror"));
    type(dialog.named<QLineEdit>("Number of labels between cuts"), QStringLiteral("4"));
    choose(dialog.named<QComboBox>("Paper"), QStringLiteral("W24H30"));
    type(dialog.named<QSpinBox>("Copies"), QStringLiteral("2"));
  }

  static void save(DialogOnServer& dialog, const QString& name) {
    click(dialog.named<QPushButton>("Save these settings as a preset"));
    const auto* question = dialog.dialog().findChild<PresetNameDialog*>();
    ASSERT_NE(question, nullptr);
    type(question->findChild<QLineEdit*>(), name);
    QPushButton* button = nullptr;
    for (QPushButton* each : question->findChildren<QPushButton*>())
      if (each->text().contains(QStringLiteral("Save"))) button = each;
    click(button);
    const auto* presets = dialog.dialog().findChild<PresetBar*>();
    EXPECT_TRUE(waitUntil([&] { return presets->presets().contains(name); }));
  }

  static void saveChanged(const QString& name) {
    DialogOnServer dialog("tape24");
    change(dialog);
    save(dialog, name);
  }
};

Choices savedChoices() {
  return {{"LxHalfCut", "ON"}, {"LxMirror", "ON"}, {"LxCutLabel", "4"}, {"PageSize", "W24H30"}};
}

TEST_F(Presets, OtherProgramsPrintWhatTheDialogSaved) {
  Choices wanted;
  {
    DialogOnServer dialog("tape24");
    change(dialog);
    wanted = dialog.sent();
    save(dialog, QStringLiteral("shelf"));
  }
  ASSERT_EQ(only(wanted, savedChoices()), savedChoices());
  // How documents are laid out is no preset's business but the user's: he left it as it was.
  for (const auto& [name, value] : forLaidOutDocument({})) wanted.erase(name);
  wanted.erase("copies");
  const CommandResult printed = run("lp -d tape24/shelf " + labels());
  ASSERT_EQ(printed.status, 0) << printed.errors;
  const PrintedJob job = newJob();
  EXPECT_EQ(only(job.options(), wanted), wanted);
  EXPECT_EQ(job.number("labels"), 2 * kLabels);
}

TEST_F(Presets, ADialogThatIsOpenedAgainShowsWhatWasSaved) {
  saveChanged(QStringLiteral("shelf"));
  DialogOnServer dialog("tape24/shelf");
  EXPECT_EQ(dialog.checkBox("LxHalfCut")->state(), CheckBox::kOn);
  EXPECT_EQ(dialog.checkBox("LxMirror")->state(), CheckBox::kOn);
  EXPECT_EQ(dialog.named<QLineEdit>("Number of labels between cuts")->text(), QStringLiteral("4"));
  EXPECT_EQ(dialog.named<QComboBox>("Paper")->currentData().toString(), QStringLiteral("W24H30"));
  EXPECT_EQ(dialog.named<QSpinBox>("Copies")->value(), 2);
  EXPECT_EQ(dialog.summary()["Mirror printing"], "Yes");
  dialog.print();
  EXPECT_EQ(only(newJob().options(), savedChoices()), savedChoices());
}

TEST_F(Presets, TheListOffersWhatWasSavedAndBringsItBack) {
  saveChanged(QStringLiteral("shelf"));
  DialogOnServer dialog("tape24");
  const auto* bar = dialog.dialog().findChild<PresetBar*>();
  ASSERT_TRUE(waitUntil([&] { return bar->presets().contains(QStringLiteral("shelf")); }));
  EXPECT_NE(only(dialog.sent(), savedChoices()), savedChoices());
  choose(dialog.named<QComboBox>("Preset"), QStringLiteral("shelf"));
  EXPECT_EQ(only(dialog.sent(), savedChoices()), savedChoices());
  EXPECT_EQ(dialog.checkBox("LxHalfCut")->state(), CheckBox::kOn);
}

TEST_F(Presets, ThePrinterItselfPrintsAsBefore) {
  saveChanged(QStringLiteral("shelf"));
  DialogOnServer dialog("tape24");
  EXPECT_EQ(only(dialog.sent(), cutDefaults(*samplePpd("tape24"))),
            cutDefaults(*samplePpd("tape24")));
}

// Has listed its printers before, and tells so only later.
class SlowLister : public ServerInBetween {
 public:
  Result<std::vector<Destination>> destinations() override {
    const Result<std::vector<Destination>> list = ServerInBetween::destinations();
    waitInBackground([this] { return mMayTell.load(); });
    return list;
  }
  void tell() { mMayTell = true; }

 private:
  std::atomic<bool> mMayTell = false;
};

TEST_F(Presets, WhatIsSavedWhileThePrintersAreListedStaysInTheList) {
  const auto lister = std::make_shared<SlowLister>();
  DialogOnServer dialog(dialogOn("tape24"), lister);
  change(dialog);
  save(dialog, QStringLiteral("shelf"));
  lister->tell();
  // The list is there when it names the other printers.
  auto* printers = dialog.named<QComboBox>("Printer");
  ASSERT_TRUE(waitUntil([&] { return printers->count() == 3; }));
  const auto* presets = dialog.named<QComboBox>("Preset");
  EXPECT_GE(presets->findText(QStringLiteral("shelf")), 0);
  EXPECT_EQ(presets->currentText(), QStringLiteral("shelf"));
}

}  // namespace

}  // namespace cutline::test
