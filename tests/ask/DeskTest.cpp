// Plain users print from a program that knows nothing of us, under the distribution's own policy,
// and are asked in the dialog.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>

#include "cups/AskQueue.h"
#include "host/core/CutRules.h"
#include "host/dialog/PrintDialog.h"
#include "tests/ask/Desk.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/support/Command.h"
#include "tests/support/PrintedJob.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

const std::string kQueue = "tape24_ask";
const QStringList kTwo{QStringLiteral("One"), QStringLiteral("Two")};
// Users whom every system has, and who print like everybody else.
constexpr char kOne[] = "nobody";
constexpr char kOther[] = "daemon";

QString titled(const std::string& title) { return QString::fromStdString("^Print " + title + "$"); }

// The key that clicks a control of the dialog, by the letter that its text underlines.
QString keyOf(const QString& text) {
  const qsizetype at = text.indexOf(QLatin1Char('&'));
  return at < 0 ? QString() : QStringLiteral("alt+") + text.mid(at + 1, 1).toLower();
}

struct Keys {
  QString halfCut, print;
};

// The same dialog in this process tells them.
const Keys& keys() {
  static const Keys all = [] {
    DialogOnServer dialog("tape24");
    const auto* box = qobject_cast<QAbstractButton*>(dialog.box("LxHalfCut"));
    return Keys{keyOf(box->text()), QStringLiteral("alt+i")};
  }();
  return all;
}

class AtDesks : public testing::Test {
 protected:
  AtDesks() {
    const auto added = addAskQueue(askServer().options(), "tape24");
    EXPECT_TRUE(added) << added.error().message;
  }
  ~AtDesks() override { run("cancel -a"); }
  static bool waits(const Desk& desk, int job) {
    const std::string jobs = desk.run("lpstat", {QStringLiteral("-o")});
    return jobs.find('-' + std::to_string(job) + ' ') != std::string::npos;
  }
  static bool comes(const Desk& desk, const std::string& title) {
    return !desk.display().waitForWindow(titled(title)).isEmpty();
  }
  static bool goes(const Desk& desk, const std::string& title) {
    return waitUntil([&] { return !desk.display().hasWindow(titled(title)); });
  }
  // Long enough for the service to have looked several times.
  static bool staysAway(const Desk& desk, const std::string& title) {
    constexpr int kLooks = 30;
    for (int i = 0; i < kLooks; ++i) {
      if (desk.display().hasWindow(titled(title))) return false;
      usleep(100'000);
    }
    return true;
  }
  static PrintedJob printed(int job) {
    EXPECT_TRUE(waitUntil([&] { return askServer().printedJobs().contains(job); })) << job;
    return {askServer(), job};
  }
};

// As anybody else than root there is one user only.
#define NEEDS_ROOT \
  if (::geteuid() != 0) GTEST_SKIP() << "only root can be two plain users"

TEST_F(AtDesks, OneIsAskedAndTheJobPrintsAsWasSaidWhileAnothersStays) {
  NEEDS_ROOT;
  Desk one(kOne);
  Desk other(kOther);
  one.startService();
  other.startService();
  const int others = other.print(kQueue, "Private", 1, "own", kTwo);
  ASSERT_TRUE(comes(other, "Private"));
  const int job = one.print(kQueue, "Shelves", 2, "own", kTwo);
  ASSERT_TRUE(comes(one, "Shelves"));
  EXPECT_FALSE(one.display().hasWindow(titled("Private")));
  EXPECT_TRUE(staysAway(other, "Shelves"));

  one.display().press(titled("Shelves"), keys().halfCut);
  one.display().press(titled("Shelves"), keys().print);
  const PrintedJob out = printed(job);
  EXPECT_EQ(out.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(out.fact("user"), kOne);
  EXPECT_EQ(out.fact("title"), "Shelves");
  EXPECT_EQ(out.number("labels"), 4) << "two labels, twice";
  EXPECT_EQ(out.printedLabels(), 4);
  EXPECT_TRUE(goes(one, "Shelves"));
  EXPECT_TRUE(waits(other, others));
  EXPECT_FALSE(askServer().hasPrinted(others));
  EXPECT_TRUE(other.display().hasWindow(titled("Private")));

  other.display().press(titled("Private"), QStringLiteral("Escape"));
  EXPECT_TRUE(goes(other, "Private"));
  EXPECT_TRUE(waitUntil([&] { return !waits(other, others); }));
  EXPECT_FALSE(askServer().hasPrinted(others));
}

TEST_F(AtDesks, AnA4PageIsPrintedAsTheDialogLaidItOutInPlaceOfTheJob) {
  NEEDS_ROOT;
  Desk one(kOne);
  one.startService();
  const int job = one.print(kQueue, "Letter", 1, "A4", kTwo);
  ASSERT_TRUE(comes(one, "Letter"));
  one.display().press(titled("Letter"), keys().print);
  ASSERT_TRUE(goes(one, "Letter"));
  const PrintedJob out = printed(job + 1);
  EXPECT_FALSE(askServer().hasPrinted(job));
  EXPECT_FALSE(waits(one, job)) << "it would be printed twice";
  EXPECT_EQ(out.fact("user"), kOne);
  EXPECT_EQ(out.fact("title"), "Letter");
  EXPECT_EQ(out.number("labels"), 2);
}

TEST_F(AtDesks, AWindowThatIsKilledLeavesTheJobAndComesBackWhenAskedFor) {
  NEEDS_ROOT;
  Desk one(kOne);
  one.startService();
  const int job = one.print(kQueue, "Boxes", 1, "own", kTwo);
  ASSERT_TRUE(comes(one, "Boxes"));
  one.killDialog();
  EXPECT_TRUE(goes(one, "Boxes"));
  EXPECT_TRUE(staysAway(one, "Boxes"));
  EXPECT_TRUE(waits(one, job));
  one.endService();
  one.startService();
  ASSERT_TRUE(comes(one, "Boxes"));
  one.display().press(titled("Boxes"), keys().print);
  EXPECT_EQ(printed(job).number("labels"), 2);
}

TEST_F(AtDesks, AServiceThatIsKilledLeavesTheWindowAndOpensNoSecondOne) {
  NEEDS_ROOT;
  Desk one(kOne);
  one.startService();
  const int job = one.print(kQueue, "Drawers", 1, "own", kTwo);
  ASSERT_TRUE(comes(one, "Drawers"));
  one.endService();
  one.startService();
  constexpr int kLooks = 30;
  for (int i = 0; i < kLooks; ++i) usleep(100'000);
  EXPECT_TRUE(one.display().hasWindow(titled("Drawers")));
  one.display().press(titled("Drawers"), keys().print);
  EXPECT_EQ(printed(job).number("labels"), 2);
  EXPECT_TRUE(goes(one, "Drawers")) << "there was a second window";
}

TEST_F(AtDesks, AServerThatIsStartedAnewGoesOnAsking) {
  NEEDS_ROOT;
  Desk one(kOne);
  one.startService();
  const int before = one.print(kQueue, "Before", 1, "own", kTwo);
  ASSERT_TRUE(comes(one, "Before"));
  askServer().restart();
  one.display().press(titled("Before"), keys().print);
  EXPECT_EQ(printed(before).number("labels"), 2);
  askServer().restart();
  const int after = one.print(kQueue, "After", 1, "own", kTwo);
  ASSERT_TRUE(comes(one, "After"));
  one.display().press(titled("After"), keys().print);
  EXPECT_EQ(printed(after).number("labels"), 2);
}

}  // namespace

}  // namespace cutline::test
