// The real program on a display, with real events of the display's own.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QProcess>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "tests/e2e/DialogOnServer.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/qt/Display.h"

namespace cutline::test {

namespace {

constexpr int kPatience = 20000;
const QString kTitle = QStringLiteral("^Print labels.pdf$");
const QPoint kAside(1, 1);

QRect indicatorOf(const QCheckBox& box, const QWidget& dialog) {
  QStyleOptionButton option;
  option.initFrom(&box);
  const QRect indicator = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
  return {box.mapTo(&dialog, indicator.topLeft()), indicator.size()};
}

// The dialog as it has to look: the same dialog in this process says where its controls are and
// what they look like.
struct Likeness {
  QSize size;
  QRect box;  // the tick's place
  QPoint print;
  QImage unticked;
  QImage ticked;
};

Likeness likeness() {
  DialogOnServer dialog("tape24");
  const QWidget& window = dialog.dialog();
  const auto* box = qobject_cast<QCheckBox*>(dialog.box("LxHalfCut"));
  Likeness likeness{window.size(), indicatorOf(*box, window), {}, {}, {}};
  likeness.print = dialog.printButton()->mapTo(&window, dialog.printButton()->rect().center());
  const auto picture = [&] {
    return dialog.dialog().grab(likeness.box).toImage().convertToFormat(QImage::Format_RGB32);
  };
  likeness.unticked = picture();
  click(dialog.box("LxHalfCut"));
  likeness.ticked = picture();
  return likeness;
}

class OnDisplay : public EndToEndTest {
 protected:
  OnDisplay() {
    mDisplay.movePointer(kAside);
    mDisplay.start(
        mProgram, QString::fromStdString(built("bin/cutline")),
        {QStringLiteral("-d"), QStringLiteral("tape24"), QString::fromStdString(labels())});
    mWindow = mDisplay.waitForWindow(kTitle);
  }
  ~OnDisplay() override {
    mProgram.kill();
    mProgram.waitForFinished(kPatience);
  }

  const Display& display() const { return mDisplay; }
  const QRect& window() const { return mWindow; }
  bool willLook(const QRect& place, const QImage& like) const {
    return waitUntil(
        [&] { return mDisplay.picture().copy(place.translated(mWindow.topLeft())) == like; });
  }
  // The one job that the dialog has sent, once it is out; the dialog stays.
  PrintedJob printedJob() {
    EXPECT_TRUE(waitUntil([this] { return server().printedJobs() != mBefore; }));
    return newJob();
  }
  int exitStatus() {
    if (!mProgram.waitForFinished(kPatience)) return -1;
    EXPECT_EQ(mProgram.exitStatus(), QProcess::NormalExit);
    return mProgram.exitCode();
  }

 private:
  std::set<int> mBefore = server().printedJobs();
  Display mDisplay;
  QProcess mProgram;
  QRect mWindow;
};

TEST_F(OnDisplay, AClickOnHalfCutAndOneOnPrintReachThePrinter) {
  const Likeness like = likeness();
  ASSERT_NE(like.ticked, like.unticked);
  ASSERT_EQ(window().size(), like.size);
  ASSERT_TRUE(willLook(like.box, like.unticked)) << "the dialog does not come up";
  display().click(window().topLeft() + like.box.center());
  display().movePointer(kAside);
  EXPECT_TRUE(willLook(like.box, like.ticked)) << "the box does not get its tick";
  display().click(window().topLeft() + like.print);
  const PrintedJob job = printedJob();
  EXPECT_EQ(job.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(job.number("labels"), kLabels);
  display().press(kTitle, QStringLiteral("Escape"));
  EXPECT_EQ(exitStatus(), kExitDone);
}

TEST_F(OnDisplay, ADoubleClickOnPrintIsOneJob) {
  const Likeness like = likeness();
  ASSERT_TRUE(willLook(like.box, like.unticked)) << "the dialog does not come up";
  display().doubleClick(window().topLeft() + like.print);
  EXPECT_EQ(printedJob().number("labels"), kLabels);
  display().press(kTitle, QStringLiteral("Escape"));
  EXPECT_EQ(exitStatus(), kExitDone);
  EXPECT_TRUE(nothingNew());
}

TEST_F(OnDisplay, EscapeCancels) {
  const Likeness like = likeness();
  ASSERT_TRUE(willLook(like.box, like.unticked)) << "the dialog does not come up";
  display().press(kTitle, QStringLiteral("Escape"));
  EXPECT_EQ(exitStatus(), kExitCancelled);
  EXPECT_TRUE(nothingNew());
}

// The dialog comes up all the same, and another printer can be chosen in it.
TEST_F(EndToEndTest, AnUnknownPrinterIsNamedInTheWindow) {
  Display display;
  QProcess program;
  display.start(program, QString::fromStdString(built("bin/cutline")),
                {QStringLiteral("-d"), QStringLiteral("nosuch"), QString::fromStdString(labels())});
  EXPECT_FALSE(display.waitForWindow(kTitle).isEmpty());
  display.press(kTitle, QStringLiteral("Escape"));
  EXPECT_TRUE(program.waitForFinished(kPatience));
  EXPECT_EQ(program.exitCode(), kExitError);
  const QByteArray errors = program.readAllStandardError();
  EXPECT_TRUE(errors.contains("nosuch")) << errors.toStdString();
  EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
}

}  // namespace

}  // namespace cutline::test
