// Choices are marked as libcups marks them.
#include <gtest/gtest.h>

#include <functional>

#include "cups/PpdContents.h"
#include "cups/PpdMarks.h"
#include "cups/PpdRecords.h"
#include "tests/cups/PpdMixture.h"
#include "tests/support/PpdText.h"

namespace cutline {
namespace {

using test::grouped;
using test::kPpdHeader;
using test::OpenPpd;
using test::optionText;
using test::optionTexts;
using test::PpdMixture;
using Lines = std::vector<std::string>;

OpenPpd opened(const std::string& text) { return OpenPpd(ppdOpenFd(memoryFile(text).release())); }

// Everything that marks change, and libcups' list of them.
Lines marksOf(ppd_file_t* ppd) {
  Lines lines;
  for (const ppd_group_t& group : groupsOf(ppd))
    for (const ppd_option_t& option : optionsOf(group)) {
      lines.push_back(option.keyword + std::to_string(option.conflicted));
      for (const ppd_choice_t& choice : choicesOf(option))
        lines.push_back(choice.choice + std::to_string(choice.marked));
    }
  for (const ppd_size_t& size : sizesOf(ppd))
    lines.push_back(size.name + std::to_string(size.marked));
  for (const ppd_choice_t* choice : elementsOf<ppd_choice_t>(ppd->marked))
    lines.push_back(std::string("marked ") + choice->option->keyword + "=" + choice->choice);
  return lines;
}

using Mark = std::function<void(const char* keyword, const char* choice)>;

// Every choice of every option, one after the other. The values of custom ones are of no interest.
void markAll(ppd_file_t* ppd, const Mark& mark) {
  for (const ppd_group_t& group : groupsOf(ppd))
    for (const ppd_option_t& option : optionsOf(group))
      for (const ppd_choice_t& choice : choicesOf(option))
        if (!ppdFindCustomOption(ppd, option.keyword)) mark(option.keyword, choice.choice);
}

// The defaults, every choice, and the defaults again.
void expectMarkedAsEver(const std::string& text) {
  const OpenPpd asEver = opened(text), quickly = opened(text);
  if (!asEver) return;
  PpdMarks marks(quickly.get());
  const auto expectSame = [&] {
    test::expectSameLines(marksOf(asEver.get()), marksOf(quickly.get()), text);
  };
  ppdMarkDefaults(asEver.get());
  marks.markDefaults();
  expectSame();
  markAll(asEver.get(), [&](const char* keyword, const char* choice) {
    ppdMarkOption(asEver.get(), keyword, choice);
  });
  markAll(quickly.get(),
          [&](const char* keyword, const char* choice) { marks.mark(keyword, choice); });
  expectSame();
  ppdMarkDefaults(asEver.get());
  marks.markDefaults();
  expectSame();
}

void expectLinesMarkedAsEver(const std::string& lines) { expectMarkedAsEver(kPpdHeader + lines); }

TEST(PpdMarks, EachOptionHasItsDefault) {
  expectLinesMarkedAsEver(optionTexts(1, 9));
  expectLinesMarkedAsEver(optionTexts(9, 1) + grouped("One/First", optionTexts(10, 19)));
  expectLinesMarkedAsEver(optionText("aB") + optionText("Ab") + optionText("b") + optionText("C"));
}

TEST(PpdMarks, ADefaultThatIsNoChoiceIsNotMarked) {
  for (const char* choice : {"B", "b", "C", "", "Custom", "Custom.9", "{Value=9}", "_Custom"})
    expectLinesMarkedAsEver(optionTexts(1, 3) + optionText("New", choice));
}

TEST(PpdMarks, AnyLettersNameAChoice) {
  const OpenPpd ppd = opened(kPpdHeader + optionTexts(1, 3));
  ASSERT_TRUE(ppd);
  PpdMarks marks(ppd.get());
  marks.markDefaults();
  marks.mark("OTHER2", "b");
  EXPECT_TRUE(ppdIsMarked(ppd.get(), "Other2", "B"));
  for (const auto& [keyword, choice] :
       std::initializer_list<std::pair<const char*, const char*>>{{"Other2", "C"}, {"New", "A"}})
    marks.mark(keyword, choice);
  EXPECT_TRUE(ppdIsMarked(ppd.get(), "Other2", "B"));
}

// Others mark in the same PPD.
TEST(PpdMarks, WhatLibcupsMarkedIsTakenAway) {
  const OpenPpd ppd = opened(kPpdHeader + optionTexts(1, 3));
  ASSERT_TRUE(ppd);
  PpdMarks marks(ppd.get());
  ppdMarkOption(ppd.get(), "Other2", "B");
  marks.markDefaults();
  EXPECT_TRUE(ppdIsMarked(ppd.get(), "Other2", "A"));
  ppdMarkOption(ppd.get(), "Other2", "B");
  marks.mark("Other2", "A");
  EXPECT_TRUE(ppdIsMarked(ppd.get(), "Other2", "A"));
  EXPECT_EQ(cupsArrayCount(ppd->marked), 3);
}

TEST(PpdMarks, CustomValuesAreMarkedWithTheirValues) {
  const std::string custom = "*CustomNew True: \"x\"\n*ParamCustomNew Value: 1 int 1 9\n";
  for (const char* choice : {"Custom.7", "custom.7", "Custom", "{Value=7}"}) {
    const OpenPpd ppd = opened(kPpdHeader + custom + optionText("New", choice));
    ASSERT_TRUE(ppd);
    PpdMarks(ppd.get()).markDefaults();
    const int value = std::string(choice) == "Custom" ? 0 : 7;
    EXPECT_EQ(
        ppdFindCustomParam(ppdFindCustomOption(ppd.get(), "New"), "Value")->current.custom_int,
        value)
        << choice;
    expectLinesMarkedAsEver(custom + optionText("New", choice));
  }
}

TEST(PpdMarks, OneMarkTakesAnotherAway) {
  const std::string slot = optionText("InputSlot"), feed = optionText("ManualFeed", "True"),
                    sizes = optionText("PageSize") + optionText("PageRegion");
  const std::string trueFeed = feed +
                               "*OpenUI *ManualFeed: Boolean\n*ManualFeed True: \"\"\n*CloseUI: "
                               "*ManualFeed\n";
  expectLinesMarkedAsEver(optionTexts(1, 3) + slot + trueFeed + sizes);
  expectLinesMarkedAsEver(optionTexts(1, 3) + trueFeed + slot + sizes);
  expectLinesMarkedAsEver(sizes + optionText("AP_D_InputSlot") + slot);
  expectLinesMarkedAsEver(slot + optionText("ap_d_inputslot"));
}

TEST(PpdMarks, OfTwoOptionsOfANameOneIsMarked) {
  const std::string first = grouped("One/First", optionText("Same", "A")),
                    second = grouped("Two", optionText("Same", "B")),
                    third = grouped("Three", optionText("SAME", "B"));
  expectLinesMarkedAsEver(first + second + optionTexts(1, 3));
  expectLinesMarkedAsEver(second + first + third);
  expectLinesMarkedAsEver(third + optionTexts(1, 3) + first);
}

TEST(PpdMarks, BrokenConstraintsAreTold) {
  const std::string constraints =
      "*UIConstraints: *Other1 A *Other2 A\n*UIConstraints: *Other3 B *Other2 A\n";
  expectLinesMarkedAsEver(optionTexts(1, 9) + constraints);
  const OpenPpd ppd = opened(kPpdHeader + optionTexts(1, 9) + constraints);
  PpdMarks(ppd.get()).markDefaults();
  EXPECT_EQ(ppdFindOption(ppd.get(), "Other1")->conflicted, 1);
  EXPECT_EQ(ppdFindOption(ppd.get(), "Other3")->conflicted, 0);
}

TEST(PpdMarks, AnyMixtureIsMarkedAsEver) {
  constexpr unsigned kFirstSeed = 20250601;
  const int mixtures = std::getenv("CUTLINE_LONG_TESTS") ? 5'000 : 400;
  for (unsigned i = 0; static_cast<int>(i) < mixtures && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE(i);
    expectMarkedAsEver(PpdMixture(kFirstSeed + i).text());
  }
}

}  // namespace
}  // namespace cutline
