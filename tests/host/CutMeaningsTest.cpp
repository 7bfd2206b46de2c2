// What printers of other drivers can be asked to cut.
#include <gtest/gtest.h>

#include "host/core/CutMeanings.h"
#include "host/core/CutSettingsReader.h"
#include "host/core/CutWordsFiles.h"
#include "tests/host/Dialog.h"
#include "tests/support/OtherDrivers.h"

namespace cutline {
namespace {

using test::TestPrinter;

std::string wordsOf(const OptionList& options) {
  std::string words;
  for (const auto& [keyword, choice] : options)
    words += (words.empty() ? "" : " ") + keyword + '=' + choice;
  return words;
}

// "never: A=b", one for each offer; a star before the one in force.
std::vector<std::string> offersOf(const PpdFile& ppd) {
  constexpr const char* kNames[] = {"never", "label", "every ", "copy", "end", "printer"};
  const CutMeanings meanings = cutMeaningsOf(ppd, cutWordsFor(ppd).words);
  std::vector<std::string> offers;
  for (std::size_t at = 0; at < meanings.offers.size(); ++at) {
    const CutOffer& offer = meanings.offers[at];
    std::string text = meanings.inForce == at ? "*" : "";
    text += kNames[static_cast<std::size_t>(offer.meaning)];
    if (offer.labels > 0) text += std::to_string(offer.labels);
    offers.push_back(text + ": " + wordsOf(offer.assignment));
  }
  return offers;
}

std::vector<std::string> offersOf(const TestPrinter& printer, const OptionList& marks = {}) {
  const auto ppd = test::ppdFor(printer);
  ppd->mark({marks});
  const OptionList before = ppd->markedOptions();
  std::vector<std::string> offers = offersOf(*ppd);
  EXPECT_EQ(ppd->markedOptions(), before);
  return offers;
}

using Offers = std::vector<std::string>;

TEST(CutMeanings, OfTheStandardsKeyword) {
  EXPECT_EQ(offersOf(test::cutMediaPrinter()),
            (Offers{"*never: ", "label: CutMedia=EndOfPage", "copy: CutMedia=EndOfSet",
                    "end: CutMedia=EndOfJob", "printer: CutMedia=Auto"}));
  EXPECT_EQ(offersOf(test::cutMediaPrinter(), {{"CutMedia", "EndOfDoc"}}),
            (Offers{"never: CutMedia=None", "label: CutMedia=EndOfPage", "copy: CutMedia=EndOfSet",
                    "*end: ", "printer: CutMedia=Auto"}));
}

// The printer never sees a second copy.
TEST(CutMeanings, WithoutCopiesWhereThePrintSystemMakesThem) {
  EXPECT_EQ(offersOf(test::cutMediaPrinter("", true)),
            (Offers{"*never: ", "label: CutMedia=EndOfPage", "end: CutMedia=EndOfJob",
                    "printer: CutMedia=Auto"}));
}

TEST(CutMeanings, OfAFilterThatCutsBehindEachPage) {
  EXPECT_EQ(offersOf(test::cutMediaPrinter(test::kLabelFilter)),
            (Offers{"*never: ", "label: CutMedia=EndOfPage"}));
  EXPECT_EQ(offersOf(test::cutMediaPrinter(test::kLabelFilter), {{"CutMedia", "EndOfJob"}}),
            (Offers{"never: CutMedia=None", "*label: "}));
}

TEST(CutMeanings, OfModes) {
  EXPECT_EQ(offersOf(test::modePrinter()),
            (Offers{"never: zePrintMode=Tear", "label: zePrintMode=Cutter", "*printer: "}));
  EXPECT_EQ(offersOf(test::modePrinter(), {{"zePrintMode", "Peel"}}),
            (Offers{"*never: ", "label: zePrintMode=Cutter", "printer: zePrintMode=Saved"}));
}

// Mode and interval go together, and what stands in the way gives way.
TEST(CutMeanings, OfAModeWithAnInterval) {
  const Offers offers =
      offersOf(test::intervalPrinter(), {{"inPrintMode", "Tear"}, {"inTearInterval", "2"}});
  ASSERT_EQ(offers.size(), 12U);
  EXPECT_EQ(offers.front(), "*never: ");
  EXPECT_EQ(offers[1], "label: inPrintMode=Cut inCutInterval=1 inTearInterval=None");
  EXPECT_EQ(offers[3], "every 3: inPrintMode=Cut inCutInterval=3 inTearInterval=None");
  EXPECT_EQ(offers[10], "every 10: inPrintMode=Cut inCutInterval=10 inTearInterval=None");
  EXPECT_EQ(offers.back(), "printer: inPrintMode=Cut inTearInterval=None");
}

TEST(CutMeanings, LeavesNoIntervalBehind) {
  const Offers offers =
      offersOf(test::intervalPrinter(), {{"inPrintMode", "Cut"}, {"inCutInterval", "3"}});
  EXPECT_EQ(offers.front(), "never: inPrintMode=Standard inCutInterval=None");
  EXPECT_EQ(offers[3], "*every 3: ");
  EXPECT_EQ(offers[4], "every 4: inCutInterval=4");
  EXPECT_EQ(offers.back(), "printer: inCutInterval=None");
  // Marked against the constraints, it means never, and one change makes it good.
  EXPECT_EQ(offersOf(test::intervalPrinter(), {{"inCutInterval", "3"}}).front(),
            "*never: inCutInterval=None");
}

TEST(CutMeanings, AreNoneWhereThereIsNothingToSay) {
  EXPECT_EQ(offersOf(TestPrinter()), Offers());
  EXPECT_EQ(offersOf(test::fullTapePrinter()), Offers());
  TestPrinter both = test::cutMediaPrinter();
  both.cutOptions = {{"LxCutAtEnd", "OFF"}};
  EXPECT_EQ(offersOf(both), Offers());
}

// What an assignment is chosen for is what the plan says afterwards.
TEST(CutMeanings, AreWhatThePlanSaysOnceChosen) {
  for (const TestPrinter& printer :
       {test::cutMediaPrinter(), test::cutMediaPrinter(test::kLabelFilter), test::intervalPrinter(),
        test::intervalPrinter(test::kLabelFilter), test::modePrinter()}) {
    Dialog dialog;
    dialog.open(test::ppdFor(printer));
    const std::size_t count = dialog.model().cutMeanings().offers.size();
    EXPECT_GE(count, 2U);
    for (std::size_t at = 0; at < count; ++at) {
      const CutOffer offer = dialog.model().cutMeanings().offers.at(at);
      dialog.model().chooseCut(offer);
      EXPECT_EQ(dialog.model().cutMeanings().inForce, at) << printer.more;
      EXPECT_TRUE(dialog.model().conflicts().empty()) << printer.more;
      for (const auto& [keyword, choice] : offer.assignment)
        EXPECT_EQ(dialog.sent()[keyword], choice) << printer.more;
    }
  }
}

}  // namespace
}  // namespace cutline
