// The real programs: a window is closed while its job is on its way, and the desktop is told.
#include <gtest/gtest.h>

#include <QProcess>

#include "tests/follow/Messages.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/qt/Display.h"
#include "tests/support/qt/child_process.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr int kPatience = 20000;

class Follow : public EndToEndTest {
 protected:
  Follow() { outputOf("cupsdisable tape24"); }
  ~Follow() override { run("cancel -a tape24; cupsenable tape24"); }
  static void letPrint() { outputOf("cupsenable tape24"); }
  bool isTold() {
    return waitUntil([this] { return !mMessages.shown().isEmpty(); });
  }
  void expectPaused(const QString& title) const {
    ASSERT_EQ(mMessages.shown().size(), 1);
    EXPECT_EQ(mMessages.shown()[0].title,
              title + QStringLiteral(" is still waiting to be printed"));
    EXPECT_TRUE(mMessages.shown()[0].text.contains(QStringLiteral("paused")))
        << mMessages.shown()[0].text.toStdString();
  }

  Messages mMessages;
};

TEST_F(Follow, TellsWhatAJobWaitsForAndEndsWithIt) {
  const std::string said = outputOf("lp -d tape24 " + labels());
  const std::string job = said.substr(said.find("tape24-") + 7);
  QProcess follower;
  endWithUs(follower);
  follower.start(QString::fromStdString(built("lib/cutline/cutline-follow")),
                 {QStringLiteral("tape24"), QString::number(std::stoi(job)),
                  QStringLiteral("Shelves & <more>")});
  ASSERT_TRUE(isTold());
  expectPaused(QStringLiteral("\"Shelves & <more>\""));
  letPrint();
  EXPECT_TRUE(waitUntil([&] { return follower.state() == QProcess::NotRunning; }));
  EXPECT_EQ(follower.exitCode(), 0);
  EXPECT_EQ(mMessages.shown().size(), 1) << "of what is printed nothing is told";
}

TEST_F(Follow, BeginsWhereAWindowIsClosedBeforeItsJobIsOut) {
  const Display display;
  const QString window = QStringLiteral("^Print labels.pdf$");
  QProcess dialog;
  display.start(dialog, QString::fromStdString(built("bin/cutline")),
                {QStringLiteral("-d"), QStringLiteral("tape24"), QString::fromStdString(labels())});
  ASSERT_FALSE(display.waitForWindow(window).isEmpty());
  ASSERT_TRUE(waitUntil([&] {
    display.press(window, QStringLiteral("alt+i"));
    return !outputOf("lpstat -o tape24").empty();
  }));
  display.press(window, QStringLiteral("Escape"));
  ASSERT_TRUE(dialog.waitForFinished(kPatience));
  EXPECT_EQ(dialog.exitCode(), 0);
  ASSERT_TRUE(isTold());
  expectPaused(QStringLiteral("\"labels.pdf\""));
  letPrint();
  EXPECT_EQ(newJob().number("labels"), kLabels);
}

}  // namespace

}  // namespace cutline::test
