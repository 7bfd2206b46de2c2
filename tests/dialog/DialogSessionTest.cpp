// One run of the program's dialog, from the printer that is looked for to the exit status.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <future>
#include <map>

#include "host/core/CommandLine.h"
#include "host/core/Installation.h"
#include "host/core/PluginLoader.h"
#include "host/dialog/DialogSession.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/Remembered.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

class DialogSessionTest : public testing::Test {
 protected:
  DialogSessionTest()
      : mPlugIns({CUTLINE_BUILD_DIR "/lib/cutline/plugins"}), mInstallation(CUTLINE_BUILD_DIR) {
    mLine.command = Command::dialog;
    mLine.ppdPath = samplePpd("tape-a");
    mLine.files = {CUTLINE_SOURCE_DIR "/samples/documents/labels.pdf"};
  }

  int run(const FirstPrinter& printer) {
    testing::internal::CaptureStderr();
    const int status = DialogSession({&mLine, &mPlugIns, &mInstallation}, printer).run();
    mErrors = testing::internal::GetCapturedStderr();
    return status;
  }
  int run() { return run(startFindingFirstPrinter(mLine)); }

  static PrintDialog* shownDialog() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<PrintDialog*>(window);
      if (dialog && dialog->isVisible()) return dialog;
    }
    return nullptr;
  }
  static bool shows(const char* part) {
    const PrintDialog* dialog = shownDialog();
    if (!dialog) return false;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (label->isVisible() && label->text().contains(QLatin1String(part))) return true;
    }
    return false;
  }
  // Runs the action once the condition holds, and ends the session when it never does.
  void when(std::function<bool()> condition, std::function<void()> action) {
    auto* timer = new QTimer(&mTimers);
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [=, tries = 0]() mutable {
      if (++tries > 1000) QApplication::exit(-1);
      if (!condition()) return;
      timer->stop();
      action();
    });
    timer->start();
  }
  void closeWhen(std::function<bool()> condition) {
    when(std::move(condition), [] { shownDialog()->close(); });
  }

  CommandLine mLine;
  PluginLoader mPlugIns;
  Installation mInstallation;
  std::string mErrors;
  QObject mTimers;
};

// Which widgets were painted when the dialog was seen for the first time, and where.
class FirstFrame : public QObject {
 public:
  FirstFrame() { QApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (mIsOver || event->type() != QEvent::Paint) return false;
    if (qobject_cast<PrintDialog*>(watched))
      QTimer::singleShot(0, this, [this] { mIsOver = true; });
    if (auto* widget = qobject_cast<QWidget*>(watched)) mPlaces[widget] = placeOf(*widget);
    return false;
  }

  bool isOver() const { return mIsOver; }
  bool has(QWidget* widget) const { return mPlaces.contains(widget); }
  // Whether it still lies where it was painted.
  bool stays(QWidget* widget) const { return mPlaces.at(widget) == placeOf(*widget); }

 private:
  static QRect placeOf(QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
  }

  std::map<QWidget*, QRect> mPlaces;
  bool mIsOver = false;
};

// What is seen first is where it stays.
TEST_F(DialogSessionTest, TheFirstFrameHasThePanel) {
  const FirstFrame frame;
  closeWhen([&] {
    if (!frame.isOver() || !shows("12 labels")) return false;
    int ofThePanel = 0;
    for (QCheckBox* box : shownDialog()->findChildren<QCheckBox*>()) {
      if (box->visibleRegion().isEmpty()) continue;
      EXPECT_TRUE(frame.has(box) && frame.stays(box)) << box->text().toStdString();
      ofThePanel += shownDialog()->findChild<PanelFrame*>()->isAncestorOf(box) ? 1 : 0;
    }
    EXPECT_GT(ofThePanel, 0);
    return true;
  });
  EXPECT_EQ(run(), kExitCancelled);
}

TEST_F(DialogSessionTest, TheSnapshotHoldsPanelAndDocument) {
  const QTemporaryDir directory;
  mLine.command = Command::snapshot;
  mLine.snapshotPath = directory.filePath(QStringLiteral("dialog.png")).toStdString();
  EXPECT_EQ(run(), kExitDone);
  const QImage picture(QString::fromStdString(mLine.snapshotPath));
  ASSERT_FALSE(picture.isNull());
  EXPECT_GE(picture.width(), 1100);
  int black = 0;
  for (int y = 0; y < picture.height() / 3; ++y) {
    for (int x = 0; x < picture.width(); ++x) black += qGray(picture.pixel(x, y)) < 40 ? 1 : 0;
  }
  EXPECT_GT(black, 2000) << "the document's black bars are missing";
  EXPECT_EQ(mErrors, "");
}

TEST_F(DialogSessionTest, ASnapshotThatCannotBeWrittenIsAnError) {
  mLine.command = Command::snapshot;
  mLine.snapshotPath = "/nowhere/dialog.png";
  EXPECT_EQ(run(), kExitError);
  EXPECT_EQ(mErrors,
            "cutline: /nowhere/dialog.png: the picture cannot be written; "
            "name another file\n");
}

TEST_F(DialogSessionTest, AMissingDocumentIsNamedInTheWindowAndIsAnError) {
  mLine.files = {"/nowhere/labels.pdf"};
  closeWhen([] { return shows("/nowhere/labels.pdf"); });
  EXPECT_EQ(run(), kExitError);
  EXPECT_EQ(mErrors, "cutline: /nowhere/labels.pdf: there is no such document\n");
}

TEST_F(DialogSessionTest, AnUnreadablePpdIsNamedInTheWindowAndIsAnError) {
  mLine.ppdPath = "/nowhere/printer.ppd";
  closeWhen([] { return shows("/nowhere/printer.ppd"); });
  EXPECT_EQ(run(), kExitError);
  EXPECT_NE(mErrors.find("/nowhere/printer.ppd"), std::string::npos);
  EXPECT_EQ(std::count(mErrors.begin(), mErrors.end(), '\n'), 1);
}

// Another printer can be chosen then, and a document for it.
TEST_F(DialogSessionTest, AfterAFailureAtTheStartRecentDocumentsAreThere) {
  Remembered().addRecent(mLine.files.front());
  mLine.ppdPath = "/nowhere/printer.ppd";
  closeWhen([] {
    const PrintDialog* dialog = shownDialog();
    return dialog && dialog->findChild<OpenBar*>()->findChild<QToolButton*>()->isVisible();
  });
  EXPECT_EQ(run(), kExitError);
  std::filesystem::remove(Remembered::usualPath());
}

TEST_F(DialogSessionTest, WhatIsWrongFromTheStartEndsASnapshot) {
  mLine.command = Command::snapshot;
  mLine.files = {"/nowhere/labels.pdf"};
  EXPECT_EQ(run(), kExitError);
}

TEST_F(DialogSessionTest, TheWindowOpensAsLargeAsItWas) {
  Remembered().setWindowSize({1400, 780});
  QSize size;
  when([] { return shownDialog() != nullptr; },
       [&] {
         size = shownDialog()->size();
         shownDialog()->close();
       });
  run();
  const QSize room = QApplication::primaryScreen()->availableSize();
  EXPECT_EQ(size.height(), std::min(780, room.height() - 40));
  std::filesystem::remove(Remembered::usualPath());
}

TEST_F(DialogSessionTest, ClosingTheDialogCancels) {
  closeWhen([] { return shownDialog() != nullptr; });
  EXPECT_EQ(run(), kExitCancelled);
}

TEST_F(DialogSessionTest, ADialogWithoutADocumentSaysSo) {
  mLine.files.clear();
  closeWhen([] { return shows("PPD file, no printer"); });
  EXPECT_EQ(run(), kExitCancelled);
}

TEST_F(DialogSessionTest, ASlowServerIsWaitedForOnTheScreen) {
  std::promise<Result<PrinterChoice>> answer;
  closeWhen([] { return shows("Waiting for the print server"); });
  EXPECT_EQ(run(answer.get_future().share()), kExitCancelled);
  answer.set_value(Error{"too late"});
}

TEST_F(DialogSessionTest, AServerThatKeepsSilentIsNamedWhileItIsWaitedFor) {
  std::promise<Result<PrinterChoice>> answer;
  closeWhen([] { return shows("The print server does not answer yet"); });
  EXPECT_EQ(run(answer.get_future().share()), kExitCancelled);
  answer.set_value(Error{"too late"});
}

TEST_F(DialogSessionTest, TheLateAnswerOfAServerOpensThePrinter) {
  std::promise<Result<PrinterChoice>> answer;
  when([] { return shows("Waiting for the print server"); },
       [&] { answer.set_value(findFirstPrinter(mLine)); });
  closeWhen([] { return shows("Label 1 of 12"); });
  EXPECT_EQ(run(answer.get_future().share()), kExitCancelled);
}

TEST_F(DialogSessionTest, TheLateFailureOfAServerIsShownAndIsAnError) {
  std::promise<Result<PrinterChoice>> answer;
  when([] { return shows("Waiting for the print server"); },
       [&] { answer.set_value(Error{"the print server does not answer"}); });
  closeWhen([] { return shows("the print server does not answer"); });
  EXPECT_EQ(run(answer.get_future().share()), kExitError);
  EXPECT_EQ(mErrors, "cutline: the print server does not answer\n");
}

TEST_F(DialogSessionTest, MarksAreTimesInTheirOrderAndEndTheProgram) {
  mLine.marks = true;
  testing::internal::CaptureStdout();
  EXPECT_EQ(run(), kExitDone);
  const std::string output = testing::internal::GetCapturedStdout();
  std::size_t place = 0;
  for (const char* name :
       {"MARK constructed ", "MARK painted ", "MARK complete ", "MARK rss_MiB "}) {
    const std::size_t found = output.find(name, place);
    ASSERT_NE(found, std::string::npos) << name << " in " << output;
    place = found;
  }
}

}  // namespace

}  // namespace cutline
