#include <algorithm>
#include <cstdlib>

#include "cups/Destinations.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/Command.h"
#include "tests/support/DestinationPrinters.h"

namespace cutline {
namespace {

using test::outputOf;

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// In the order in which libcups keeps options.
const OptionList kCut{{"LxChainPrint", "ON"}, {"LxHalfCut", "ON"}};

class DestinationsTest : public test::ServerTest {};

TEST_F(DestinationsTest, EveryPrinterIsListedWithItsFacts) {
  const auto list = listDestinations({});
  ASSERT_TRUE(list) << list.error().message;
  ASSERT_GE(list->size(), 2U);
  EXPECT_EQ(std::ranges::count(*list, true, &Destination::isDefault), 1);
  for (const Destination& destination : *list) {
    EXPECT_FALSE(destination.info.empty());
    EXPECT_FALSE(destination.deviceURI.empty());
    EXPECT_TRUE(destination.acceptsJobs);
    EXPECT_EQ(destination.stateText().english(), "Ready");
    EXPECT_TRUE(destination.savedOptions.empty());
  }
}

TEST_F(DestinationsTest, WithoutANameItIsTheServersDefault) {
  const auto found = findDestination({}, std::nullopt);
  ASSERT_TRUE(found) << found.error().message;
  EXPECT_TRUE(found->isDefault);
  EXPECT_TRUE(contains(outputOf("lpstat -d"), ": " + found->name.text() + "\n"));
}

TEST_F(DestinationsTest, AUsersSavedDefaultStandsOverTheServers) {
  writeSaved("Default " + otherPrinter() + " copies=2\n");
  const auto found = findDestination({}, std::nullopt);
  ASSERT_TRUE(found) << found.error().message;
  EXPECT_EQ(found->name.text(), otherPrinter());
  EXPECT_EQ(found->savedOptions, (OptionList{{"copies", "2"}}));
}

TEST_F(DestinationsTest, TheEnvironmentsPrinterStandsOverBoth) {
  writeSaved("Default " + printer() + " copies=2\nDest " + otherPrinter() + "/own copies=3\n");
  setenv("LPDEST", (otherPrinter() + "/own").c_str(), 1);
  const auto found = findDestination({}, std::nullopt);
  unsetenv("LPDEST");
  ASSERT_TRUE(found) << found.error().message;
  EXPECT_EQ(found->name, (DestinationName{otherPrinter(), "own"}));
  EXPECT_EQ(found->savedOptions, (OptionList{{"copies", "3"}}));
}

TEST_F(DestinationsTest, ADefaultThatDoesNotExistIsExplained) {
  setenv("LPDEST", "nope", 1);
  const auto found = findDestination({}, std::nullopt);
  unsetenv("LPDEST");
  ASSERT_FALSE(found);
  EXPECT_TRUE(contains(found.error().message, "LPDEST")) << found.error().message;
  EXPECT_TRUE(contains(found.error().message, "name one with -d")) << found.error().message;
  EXPECT_TRUE(contains(found.error().message, printer())) << found.error().message;
}

TEST_F(DestinationsTest, AnUnknownPrinterIsAnErrorThatListsTheKnownOnes) {
  const auto found = findDestination({}, DestinationName{"nope", std::nullopt});
  ASSERT_FALSE(found);
  EXPECT_TRUE(contains(found.error().message, "has no printer \"nope\"")) << found.error().message;
  EXPECT_TRUE(contains(found.error().message, printer())) << found.error().message;
  EXPECT_TRUE(contains(found.error().message, otherPrinter())) << found.error().message;
}

TEST_F(DestinationsTest, AnUnknownInstanceIsAnErrorThatListsTheSavedOnes) {
  writeSaved("Dest " + printer() + "/half LxHalfCut=ON\n");
  const auto found = findDestination({}, DestinationName{printer(), "whole"});
  ASSERT_FALSE(found);
  EXPECT_EQ(found.error().message,
            "the printer \"" + printer() + "\" has no saved settings \"whole\": saved are half");
}

TEST_F(DestinationsTest, WithoutAServerTheRemedyIsNamed) {
  const ServerOptions nobody{"/nowhere/cups.sock", std::nullopt, false};
  const std::string expected =
      "no print server answers at \"/nowhere/cups.sock\": start it or name another with -h";
  const auto list = listDestinations(nobody);
  ASSERT_FALSE(list);
  EXPECT_EQ(list.error().message, expected);
  const auto found = findDestination(nobody, DestinationName{printer(), std::nullopt});
  ASSERT_FALSE(found);
  EXPECT_EQ(found.error().message, expected);
}

TEST_F(DestinationsTest, AnInstanceIsSavedForThisProgramAndForOthers) {
  const DestinationName name{printer(), "half"};
  const auto saved = saveDestinationOptions(name, kCut);
  ASSERT_TRUE(saved) << saved.error().message;
  const auto found = findDestination({}, name);
  ASSERT_TRUE(found) << found.error().message;
  EXPECT_EQ(found->savedOptions, kCut);
  EXPECT_EQ(found->name, name);
  EXPECT_FALSE(found->info.empty());
  EXPECT_TRUE(contains(outputOf("lpstat -e"), name.text() + "\n"));
  EXPECT_TRUE(contains(outputOf("lpoptions -p " + name.text()), "LxHalfCut=ON"));
}

TEST_F(DestinationsTest, SavingReplacesTheOptionsOfThatInstanceOnly) {
  const DestinationName name{printer(), "half"};
  ASSERT_TRUE(saveDestinationOptions({printer(), "other"}, kCut));
  ASSERT_TRUE(saveDestinationOptions(name, kCut));
  ASSERT_TRUE(saveDestinationOptions(name, {{"LxMirror", "ON"}}));
  EXPECT_EQ(findDestination({}, name)->savedOptions, (OptionList{{"LxMirror", "ON"}}));
  EXPECT_EQ(findDestination({}, DestinationName{printer(), "other"})->savedOptions, kCut);
  EXPECT_TRUE(findDestination({}, DestinationName{printer(), std::nullopt})->savedOptions.empty());
}

TEST_F(DestinationsTest, WhatOtherServersPrintersHaveSavedIsKept) {
  writeSaved("Default elsewhere/fine LxHalfCut=ON\nDest faraway LxMirror=ON title=\"a b\"\nDest " +
             otherPrinter() + " LxMirror=ON\n");
  ASSERT_TRUE(saveDestinationOptions({printer(), "half"}, kCut));
  EXPECT_EQ(savedText(),
            "Default elsewhere/fine LxHalfCut=ON\nDest faraway LxMirror=ON title=\"a "
            "b\"\nDest " +
                otherPrinter() + " LxMirror=ON\nDest " + printer() +
                "/half LxChainPrint=ON LxHalfCut=ON\n");
}

TEST_F(DestinationsTest, TheServersDefaultStaysTheDefaultWhenAPresetIsSaved) {
  ASSERT_TRUE(saveDestinationOptions({otherPrinter(), "half"}, kCut));
  const auto list = listDestinations({});
  ASSERT_TRUE(list) << list.error().message;
  for (const Destination& destination : *list)
    EXPECT_EQ(destination.isDefault, destination.name.text() == printer())
        << destination.name.text();
}

TEST_F(DestinationsTest, PresetsThatDifferInCapitalsAloneAreOne) {
  ASSERT_TRUE(saveDestinationOptions({printer(), "Shelf"}, kCut));
  ASSERT_TRUE(saveDestinationOptions({printer(), "shelf"}, {{"LxMirror", "ON"}}));
  EXPECT_EQ(savedText(), "Dest " + printer() + "/shelf LxMirror=ON\n");
  const auto found = findDestination({}, DestinationName{printer(), "SHELF"});
  ASSERT_TRUE(found) << found.error().message;
  EXPECT_EQ(found->name.text(), printer() + "/shelf");
  EXPECT_EQ(found->savedOptions, (OptionList{{"LxMirror", "ON"}}));
  ASSERT_TRUE(removeInstance({printer(), "sHELF"}));
  EXPECT_EQ(savedText(), "");
}

TEST_F(DestinationsTest, SavingTheDefaultsOptionsLeavesItTheDefault) {
  writeSaved("Default " + otherPrinter() + " LxMirror=ON\n");
  ASSERT_TRUE(saveDestinationOptions({otherPrinter(), std::nullopt}, kCut));
  EXPECT_EQ(savedText(), "Default " + otherPrinter() + " LxChainPrint=ON LxHalfCut=ON\n");
}

TEST_F(DestinationsTest, AnInstanceIsForgottenAndEverythingElseKept) {
  writeSaved("Default elsewhere LxHalfCut=ON\nDest " + printer() + "/half LxHalfCut=ON\n");
  const auto removed = removeInstance({printer(), "half"});
  ASSERT_TRUE(removed) << removed.error().message;
  EXPECT_EQ(savedText(), "Default elsewhere LxHalfCut=ON\n");
  EXPECT_FALSE(findDestination({}, DestinationName{printer(), "half"}));
}

TEST_F(DestinationsTest, TheLastInstanceIsForgottenToo) {
  writeSaved("Dest " + printer() + "/half LxHalfCut=ON\n");
  ASSERT_TRUE(removeInstance({printer(), "half"}));
  EXPECT_EQ(savedText(), "");
}

TEST_F(DestinationsTest, OnlySavedSettingsCanBeForgotten) {
  EXPECT_FALSE(removeInstance({printer(), "never"}));
  const auto removed = removeInstance({printer(), std::nullopt});
  ASSERT_FALSE(removed);
  EXPECT_EQ(removed.error().message, "\"" + printer() + "\" is a printer, not saved settings");
}

TEST_F(DestinationsTest, WhatTheFileCannotHoldIsRefusedAndNothingIsLost) {
  writeSaved("Dest faraway LxMirror=ON\n");
  for (const char* instance : {"", "a b", "a/b", "a#b", "a\nb"}) {
    EXPECT_FALSE(saveDestinationOptions({printer(), instance}, kCut)) << instance;
  }
  for (const char* value : {"a#b", "a\nb"}) {
    EXPECT_FALSE(saveDestinationOptions({printer(), "half"}, {{"title", value}})) << value;
  }
  EXPECT_EQ(savedText(), "Dest faraway LxMirror=ON\n");
}

TEST_F(DestinationsTest, AValueWithBlanksAndQuotesComesBack) {
  const OptionList options{{"title", "it's \"12\" \\ mm"}};
  ASSERT_TRUE(saveDestinationOptions({printer(), "odd"}, options));
  EXPECT_EQ(findDestination({}, DestinationName{printer(), "odd"})->savedOptions, options);
}

TEST_F(DestinationsTest, APausedPrinterSaysSo) {
  outputOf("cupsdisable " + otherPrinter());
  outputOf("cupsreject " + otherPrinter());
  const auto found = findDestination({}, DestinationName{otherPrinter(), std::nullopt});
  outputOf("cupsenable " + otherPrinter());
  outputOf("cupsaccept " + otherPrinter());
  ASSERT_TRUE(found) << found.error().message;
  const std::string text = found->stateText().english();
  EXPECT_TRUE(text.starts_with("Paused since ")) << text;
  EXPECT_TRUE(text.ends_with(" - not accepting jobs")) << text;
}

}  // namespace
}  // namespace cutline
