#include <gtest/gtest.h>

#include "cups/Destination.h"
#include "tests/support/DestinationPrinters.h"

namespace cutline {
namespace {

std::string stateText(PrinterState state, std::vector<std::string> reasons, bool accepts = true) {
  Destination destination;
  destination.state = state;
  destination.stateReasons = std::move(reasons);
  destination.acceptsJobs = accepts;
  return destination.stateText().english();
}

TEST(DestinationName, IsShownAsItIsWritten) {
  EXPECT_EQ(testing::PrintToString(DestinationName{"tape", "half"}), "tape/half");
  EXPECT_EQ(testing::PrintToString(Result<Done>(Error{Sentence("no paper")})), "no paper");
}

TEST(DestinationName, IsAPrinterOrAnInstanceOfIt) {
  EXPECT_EQ(DestinationName::parse("tape"), (DestinationName{"tape", std::nullopt}));
  EXPECT_EQ(DestinationName::parse("tape/half"), (DestinationName{"tape", "half"}));
  EXPECT_EQ(DestinationName::parse("tape/"), (DestinationName{"tape", ""}));
  EXPECT_EQ((DestinationName{"tape", "half"}).text(), "tape/half");
  EXPECT_EQ((DestinationName{"tape", std::nullopt}).text(), "tape");
}

TEST(Destination, StatesInPlainWords) {
  EXPECT_EQ(stateText(PrinterState::idle, {}), "Ready");
  EXPECT_EQ(stateText(PrinterState::processing, {}), "Printing");
  EXPECT_EQ(stateText(PrinterState::stopped, {}), "Paused");
  EXPECT_EQ(stateText(PrinterState::unknown, {}), "State unknown");
}

TEST(Destination, ReasonsFollowTheStateWithoutTheirSeverity) {
  for (const char* reason :
       {"media-empty", "media-empty-report", "media-empty-warning", "media-empty-error"}) {
    EXPECT_EQ(stateText(PrinterState::stopped, {reason}), "Paused - label roll or tape is empty");
  }
  EXPECT_EQ(stateText(PrinterState::processing, {"connecting-to-device", "media-low-warning"}),
            "Printing - connecting to the printer, labels or tape nearly used up");
}

TEST(Destination, UsualReasonsAreSaidInPlainWords) {
  EXPECT_EQ(stateText(PrinterState::idle, {"marker-supply-missing-error"}),
            "Not ready - ink ribbon is missing");
  EXPECT_EQ(stateText(PrinterState::idle, {"cutter-open-warning"}),
            "Not ready - cutter's cover is open");
  EXPECT_EQ(stateText(PrinterState::idle, {"output-area-full-report"}),
            "Not ready - labels have to be taken out");
  EXPECT_EQ(stateText(PrinterState::idle, {"warming-up"}), "Ready - printer is starting");
}

TEST(Destination, APauseTellsSinceWhenAndWhy) {
  Destination printer;
  printer.state = PrinterState::stopped;
  printer.stateReasons = {"paused"};
  printer.stateMessage = "Ana changes the tape";
  EXPECT_EQ(printer.stateText().english(), "Paused - Ana changes the tape");
  printer.stateSince = 86400L * 365;
  EXPECT_TRUE(printer.stateText().english().starts_with("Paused since 197"));
  printer.stateMessage = "Paused";
  EXPECT_EQ(printer.stateText().english().find(" - "), std::string::npos);
}

TEST(Destination, PausedIsNotSaidTwice) {
  EXPECT_EQ(stateText(PrinterState::stopped, {"paused"}), "Paused");
  EXPECT_EQ(stateText(PrinterState::stopped, {"paused", "cover-open-error"}),
            "Paused - cover is open");
}

TEST(Destination, AnIdlePrinterThatCannotPrintIsNotReady) {
  EXPECT_EQ(stateText(PrinterState::idle, {"offline-report"}),
            "Not ready - printer is switched off or not connected");
  EXPECT_EQ(stateText(PrinterState::idle, {"media-low"}), "Ready - labels or tape nearly used up");
}

TEST(Destination, AnUnknownReasonIsReadAsWords) {
  EXPECT_EQ(stateText(PrinterState::idle, {"print-head-dirty-warning"}),
            "Ready - print head dirty");
}

TEST(Destination, AClosedQueueSaysSo) {
  EXPECT_EQ(stateText(PrinterState::idle, {}, false), "Ready - not accepting jobs");
}

}  // namespace
}  // namespace cutline
