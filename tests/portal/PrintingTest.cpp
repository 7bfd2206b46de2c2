// Applications print through the real portal, with GTK's own print operations, and our dialog.
#include <gmock/gmock.h>

#include "tests/portal/PortalTest.h"
#include "tests/support/PngPicture.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

using testing::Contains;
using testing::Pair;

// The first label is read upright along the tape.
bool isDottedTopLeft(const PrintedJob& job) {
  const PngPicture strip(job.picturePath());
  const printer::Place label = job.firstLabel();
  const auto inkInCorner = [&](bool isRight, bool isLow) {
    constexpr unsigned kPart = 5;
    const auto width = label.width / kPart;
    const auto height = label.height / kPart;
    return strip.inkIn({label.x + (isRight ? label.width - width : 0),
                        label.y + (isLow ? label.height - height : 0), width, height});
  };
  return inkInCorner(false, false) > 0 && inkInCorner(true, false) == 0 &&
         inkInCorner(false, true) == 0 && inkInCorner(true, true) == 0;
}

class PortalPrinting : public PortalTest, public testing::WithParamInterface<int> {
 protected:
  static Accessible halfCut(const Accessible& dialog) {
    return control(dialog, ATSPI_ROLE_CHECK_BOX, "Half cut between labels");
  }
  static Accessible copies(const Accessible& dialog) {
    return control(dialog, ATSPI_ROLE_SPIN_BUTTON, "Copies");
  }
};

TEST_P(PortalPrinting, WhatWasChosenIsSeenToldAndPrintedOnce) {
  Application application(GetParam());
  const Accessible first = dialogWith("Continue");
  ASSERT_TRUE(halfCut(first).press());
  ASSERT_TRUE(copies(first).setValue(2));
  press(first, "Continue");

  const Application::Report report = application.report();
  EXPECT_EQ(report.result, "apply");
  EXPECT_THAT(report.settings, Contains(Pair("cups-LxHalfCut", "ON")));
  EXPECT_THAT(report.settings, Contains(Pair("n-copies", "1")));
  EXPECT_THAT(report.settings, Contains(Pair("printer", "tape24")));
  ASSERT_EQ(report.pages.size(), 3U) << "each page is drawn once";
  // Within the margins, along the tape.
  EXPECT_NEAR(report.pages.front().first, 46, 0.2);
  EXPECT_NEAR(report.pages.front().second, 22, 0.2);

  const Accessible second = dialogWith("Print 6 labels");
  EXPECT_TRUE(halfCut(second).is(ATSPI_STATE_CHECKED));
  press(second, "Print 6 labels");
  EXPECT_TRUE(waitForDialogs(0)) << "the dialog closes when the job is out";
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(job.options().at("PageSize"), "W24H50");
  EXPECT_EQ(job.number("labels"), 6);
  EXPECT_EQ(job.number("half-cuts"), 6);
  EXPECT_EQ(job.printedLabels(), 6);
  EXPECT_TRUE(isDottedTopLeft(job));
}

TEST_P(PortalPrinting, TheApplicationsSettingsComeIn) {
  Application application(GetParam(), {"--settings", "printer=tapeb", "--settings",
                                       "output-basename=Shelf", "--settings", "cups-LxHalfCut=ON",
                                       "--settings", "n-copies=3", "--settings", "cups-LxSuch=ON"});
  const Accessible first = dialogWith("Continue");
  EXPECT_TRUE(halfCut(first).is(ATSPI_STATE_CHECKED));
  EXPECT_EQ(copies(first).value(), 3);
  press(first, "Continue");
  EXPECT_THAT(application.report().settings, Contains(Pair("printer", "tapeb")));
  press(dialogWith("Print 9 labels"), "Print 9 labels");
  EXPECT_TRUE(waitForDialogs(0));
  const PrintedJob job = newJob();
  EXPECT_EQ(job.fact("title"), "Shelf");
  EXPECT_EQ(job.number("labels"), 9);
}

TEST_P(PortalPrinting, CancelledOnTheStripNothingIsPrinted) {
  const Application application(GetParam());
  press(dialogWith("Continue"), "Continue");
  press(dialogWith("Print 3 labels"), "Cancel");
  EXPECT_TRUE(waitForDialogs(0));
  EXPECT_TRUE(nothingNew());
}

TEST_P(PortalPrinting, CancelledBeforeItIsDrawnNothingIsDrawn) {
  Application application(GetParam());
  press(dialogWith("Continue"), "Cancel");
  const Application::Report report = application.report();
  EXPECT_EQ(report.result, "cancel");
  EXPECT_TRUE(report.pages.empty());
  EXPECT_TRUE(waitForDialogs(0));
  EXPECT_TRUE(nothingNew());
}

TEST_P(PortalPrinting, TheDialogGoesWithTheApplication) {
  Application application(GetParam());
  dialogWith("Continue");
  application.kill();
  EXPECT_TRUE(waitForDialogs(0));
  EXPECT_TRUE(nothingNew());
}

TEST_P(PortalPrinting, WhatIsNotForLabelsIsTheOtherDialogs) {
  Application application(GetParam(), {"--settings", "printer=office"});
  EXPECT_EQ(application.report().result, "apply");
  EXPECT_TRUE(waitUntil([] { return otherDialog().calls.size() == 2; }));
  ASSERT_EQ(otherDialog().calls.size(), 2U);
  const OtherDialog::Call& chosen = otherDialog().calls.front();
  EXPECT_EQ(chosen.method, "PreparePrint");
  EXPECT_EQ(chosen.settings.value(QStringLiteral("printer")).toString(), QStringLiteral("office"));
  const OtherDialog::Call& printed = otherDialog().calls.back();
  EXPECT_EQ(printed.method, "Print");
  EXPECT_EQ(printed.token, OtherDialog::kToken);
  EXPECT_EQ(printed.document, "%PDF-");
  EXPECT_TRUE(dialogs().empty());
}

INSTANTIATE_TEST_SUITE_P(Gtk, PortalPrinting, testing::Values(3, 4));

TEST_F(PortalTest, TwoApplicationsHaveADialogEach) {
  Application one(3);
  Application other(4, {"--pages", "5"});
  EXPECT_TRUE(waitForDialogs(2));
  for (int i = 0; i < 2; ++i) {
    press(dialogs().front(), "Continue");
    EXPECT_TRUE(waitUntil([i] {
      std::size_t left = 0;
      for (const Accessible& each : dialogs())
        left += find(each, ATSPI_ROLE_PUSH_BUTTON, "Continue") ? 1 : 0;
      return left == static_cast<std::size_t>(1 - i);
    }));
  }
  press(dialogWith("Print 5 labels"), "Print 5 labels");
  EXPECT_TRUE(waitForDialogs(1));
  // A dialog that has much to do is not seen for a moment.
  EXPECT_TRUE(waitUntil([this] { return !nothingNew(); }));
  EXPECT_EQ(newJob().number("labels"), 5);
  press(dialogWith("Print 3 labels"), "Print 3 labels");
  EXPECT_TRUE(waitForDialogs(0));
  EXPECT_TRUE(waitUntil([this] { return !nothingNew(); }));
  EXPECT_EQ(newJob().number("labels"), 3);
}

}  // namespace
}  // namespace cutline::test
