// PPDs with many options come out as libcups reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>
#include <set>
#include <span>
#include <sstream>

#include "cups/EasedRecords.h"
#include "cups/PpdContents.h"
#include "cups/PpdFile.h"
#include "cups/PpdTexts.h"
#include "tests/cups/Fixtures.h"
#include "tests/support/Command.h"
#include "tests/support/PpdText.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

using test::OpenPpd;
using test::replaced;
using Lines = std::vector<std::string>;

constexpr EasingCounts kEasy{0, 4};  // parts of few options, so that few options have many

const char* orNone(const char* text) { return text ? text : "(none)"; }

std::string code(const char* text) { return '[' + std::string(orNone(text)) + ']'; }

template <typename Record>
std::span<Record> recordsOf(Record* first, int count) {
  return {first, first ? static_cast<std::size_t>(count) : 0};
}

template <typename Element, typename Function>
void forEachElement(cups_array_t* list, const Function& function) {
  for (int i = 0; i < cupsArrayCount(list); ++i)
    function(*static_cast<Element*>(cupsArrayIndex(list, i)));
}

// Everything that a reader of the records can see, line by line.
class Dump {
 public:
  explicit Dump(ppd_file_t* ppd) : mPpd(ppd) {
    header();
    for (const ppd_group_t& each : recordsOf(ppd->groups, ppd->num_groups)) group(each);
    sorted();
    lists();
    custom();
    marks();
  }
  const Lines& lines() const { return mLines; }

 private:
  template <typename... Parts>
  void line(const Parts&... parts) {
    std::ostringstream text;
    ((text << parts << ' '), ...);
    mLines.push_back(text.str());
  }

  void header() {
    line("header", mPpd->language_level, mPpd->color_device, mPpd->variable_sizes,
         mPpd->accurate_screens, mPpd->contone_only, mPpd->landscape, mPpd->model_number,
         mPpd->manual_copies, mPpd->throughput, mPpd->colorspace, mPpd->num_emulations);
    for (const char* text :
         {mPpd->patches, mPpd->jcl_begin, mPpd->jcl_ps, mPpd->jcl_end, mPpd->lang_encoding,
          mPpd->lang_version, mPpd->modelname, mPpd->ttrasterizer, mPpd->manufacturer,
          mPpd->product, mPpd->nickname, mPpd->shortnickname, mPpd->protocols, mPpd->pcfilename})
      line("header", code(text));
  }

  void group(const ppd_group_t& group) {
    line("group", code(group.name), code(group.text), group.num_options, group.num_subgroups);
    for (ppd_option_t& each : recordsOf(group.options, group.num_options)) option(each);
    for (const ppd_group_t& each : recordsOf(group.subgroups, group.num_subgroups))
      this->group(each);
    line("group's end");
  }

  void option(ppd_option_t& option) {
    mOptions.insert(&option);
    mInOrder.push_back(&option);
    line("option", option.keyword, code(option.text), code(option.defchoice), option.ui,
         option.section, option.order, int{option.conflicted}, option.num_choices);
    for (const ppd_choice_t& choice : recordsOf(option.choices, option.num_choices)) {
      line("choice", code(choice.choice), code(choice.text), code(choice.code), int{choice.marked},
           choice.option == &option);
    }
  }

  void sorted() {
    forEachElement<ppd_option_t>(mPpd->options, [&](ppd_option_t& option) {
      line("sorted option", option.keyword, mOptions.contains(&option));
      ppd_option_t* found = ppdFindOption(mPpd, option.keyword);
      line("found", found ? found->keyword : "", mOptions.contains(found));
    });
    std::set<ppd_attr_t*> attributes(mPpd->attrs, mPpd->attrs + mPpd->num_attrs);
    forEachElement<ppd_attr_t>(mPpd->sorted_attrs, [&](ppd_attr_t& attribute) {
      line("attribute", attribute.name, code(attribute.spec), code(attribute.text),
           code(attribute.value), attributes.contains(&attribute));
      const ppd_attr_t* found = ppdFindAttr(mPpd, attribute.name, nullptr);
      line("found", found ? orNone(found->value) : "nothing");
    });
    line("attributes", mPpd->num_attrs, attributes.size());
  }

  void lists() {
    for (const ppd_size_t& size : recordsOf(mPpd->sizes, mPpd->num_sizes))
      line("size", size.name, int{size.marked}, size.width, size.length, size.left, size.bottom,
           size.right, size.top);
    for (const ppd_const_t& each : recordsOf(mPpd->consts, mPpd->num_consts))
      line("constraint", each.option1, each.choice1, each.option2, each.choice2);
    for (char* font : recordsOf(mPpd->fonts, mPpd->num_fonts)) line("font", font);
    for (char* filter : recordsOf(mPpd->filters, mPpd->num_filters)) line("filter", filter);
  }

  void custom() {
    line("custom size", mPpd->custom_min[0], mPpd->custom_max[1], mPpd->custom_margins[2]);
    forEachElement<ppd_coption_t>(mPpd->coptions, [&](ppd_coption_t& each) {
      line("custom", each.keyword, each.option ? each.option->keyword : "",
           mOptions.contains(each.option), cupsArrayCount(each.params));
      forEachElement<ppd_cparam_t>(each.params, [&](ppd_cparam_t& parameter) {
        line("parameter", parameter.name, code(parameter.text), parameter.order, parameter.type);
      });
    });
  }

  void marks() {
    ppdMarkDefaults(mPpd);
    line("conflicts", ppdConflicts(mPpd));
    forEachElement<ppd_choice_t>(mPpd->marked, [&](ppd_choice_t& choice) {
      line("marked", choice.option->keyword, choice.choice);
    });
    for (const ppd_option_t* option : mInOrder) {
      if (ppdFindCustomOption(mPpd, option->keyword)) continue;
      for (const ppd_choice_t& choice : recordsOf(option->choices, option->num_choices))
        ppdMarkOption(mPpd, option->keyword, choice.choice);
    }
    forEachElement<ppd_choice_t>(mPpd->marked, [&](ppd_choice_t& choice) {
      line("marked last", choice.option->keyword, choice.choice);
    });
  }

  ppd_file_t* mPpd;
  Lines mLines;
  std::set<ppd_option_t*> mOptions;
  std::vector<ppd_option_t*> mInOrder;
};

OpenPpd openedAsEver(const std::string& text) {
  return OpenPpd(ppdOpenFd(memoryFile(text).release()));
}

// As everything that reads a PPD with many options does: what cannot be eased is read as ever.
OpenPpd openedWithEase(const std::string& text, const EasingCounts& counts) {
  ppd_file_t* ppd = openEased(text, counts);
  return ppd ? OpenPpd(ppd) : openedAsEver(text);
}

Lines dumped(const OpenPpd& ppd) { return ppd ? Dump(ppd.get()).lines() : Lines{"refused"}; }

// The first difference with some lines before it.
void expectSame(const Lines& expected, const Lines& actual, const std::string& text) {
  if (expected == actual) return;
  const auto [one, other] = std::ranges::mismatch(expected, actual);
  std::string context;
  for (auto at = expected.begin() + std::max<std::ptrdiff_t>(0, one - expected.begin() - 5);
       at != one; ++at)
    context += *at + '\n';
  ADD_FAILURE() << context << "expected: " << (one == expected.end() ? "end" : *one)
                << "\nactual: " << (other == actual.end() ? "end" : *other) << "\nof:\n"
                << text;
}

void expectReadAsEver(const std::string& text, const EasingCounts& counts = kEasy) {
  expectSame(dumped(openedAsEver(text)), dumped(openedWithEase(text, counts)), text);
}

constexpr const char* kHeader =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: UTF-8\n*LanguageVersion: "
    "English\n*ModelName: \"Tape\"\n*Product: \"(Tape)\"\n*Other: \"x\"\n*zLast: \"x\"\n";

std::string optionText(const std::string& name, const std::string& choice = "A") {
  return "*OpenUI *" + name + "/" + name + " text: PickOne\n*Default" + name + ": " + choice +
         "\n*" + name + " A/Aa: \"a\"\n*" + name + " B/Bb: \"b\"\n*CloseUI: *" + name + "\n";
}

// Options with numbers in their names.
std::string optionTexts(int first, int last) {
  std::string text;
  const int step = first < last ? 1 : -1;
  for (int i = first; i != last + step; i += step) text += optionText("Other" + std::to_string(i));
  return text;
}

std::string grouped(const std::string& group, const std::string& text) {
  return "*OpenGroup: " + group + "\n" + text + "*CloseGroup: " + group + "\n";
}

// How much of a PPD is eased.
struct Eased {
  std::size_t defaults = 0;
  std::size_t parts = 0;
  friend bool operator==(const Eased&, const Eased&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Eased& eased) {
    return out << eased.defaults << " defaults, " << eased.parts << " parts";
  }
};

Eased easedOf(const std::string& lines) {
  const std::string text = kHeader + lines;
  const auto eased = easedPpd(text, kEasy);
  if (!eased) return {};
  EXPECT_TRUE(OpenPpd(openEased(text, kEasy))) << text;
  return {eased->defaults.size(), eased->parts.size()};
}

void expectEased(const Eased& expected, const std::string& lines) {
  expectReadAsEver(kHeader + lines);
  EXPECT_EQ(easedOf(lines), expected) << lines;
}

TEST(EasedPpd, FewOptionsAreReadAsTheyAre) {
  const std::string text = kHeader + optionTexts(1, 500);
  EXPECT_FALSE(easedPpd(text));
  EXPECT_EQ(openEased(text), nullptr);
  EXPECT_TRUE(easedPpd(text + optionTexts(501, 501)));
}

TEST(EasedPpd, OptionsOutsideOfGroupsComeInParts) {
  expectEased({10, 2}, optionTexts(1, 10));
  expectEased({10, 2}, optionTexts(10, 1));
  expectEased({4, 0}, optionTexts(1, 4));
  expectEased({5, 1}, optionTexts(1, 5));
}

TEST(EasedPpd, ItMayHaveNothingButOptions) {
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + optionTexts(1, 10));
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + optionText("Zero", "A/A") + optionTexts(1, 10));
}

TEST(EasedPpd, OptionsOfGroupsComeInParts) {
  expectEased({9, 2}, grouped("One/First", optionTexts(1, 9)));
  expectEased({18, 4},
              grouped("One/First", optionTexts(1, 9)) + grouped("Two", optionTexts(20, 28)));
  expectEased({15, 3}, grouped("One/First", optionTexts(1, 3)) + optionTexts(20, 25) +
                           grouped("One/First", optionTexts(4, 9)));
  expectEased({10, 2}, optionTexts(1, 3) + grouped("General/Others", optionTexts(4, 10)));
}

TEST(EasedPpd, WhatLiesBetweenOptionsKeepsItsPlace) {
  for (const char* between :
       {"\n", "*% a comment: \"\n", " \t\n", "*Fact: \"x\"\n", "*Fact name/text: \"x\"\n",
        "*UIConstraints: *Other1 A *Other2 B\n", "*OrderDependency: 20 Prolog *Other1\n", "*End\n",
        "*Text: \"\n*OpenGroup: Not\n*OpenUI *Not/Not: PickOne\n\"\n*End\n",
        "*PaperDimension W9: \"9 9\"\n", "*Duplex None: \"\"\n"}) {
    SCOPED_TRACE(between);
    const std::string lines = optionTexts(1, 6) + between + optionTexts(7, 12) + between;
    expectEased({12, 2}, lines);
    expectReadAsEver(kHeader + grouped("One/First", lines) + lines);
  }
}

TEST(EasedPpd, CustomChoicesFindTheirOptions) {
  const std::string custom =
      "*CustomOther6 True/Own: \"x\"\n*ParamCustomOther6 Value/V: 1 int 1 9\n";
  expectEased({12, 2}, custom + optionTexts(1, 12));
  expectEased({12, 2}, optionTexts(1, 12) + custom);
  expectEased({12, 2}, grouped("One/First", optionTexts(1, 8) + custom + optionTexts(9, 12)));
}

TEST(EasedPpd, OptionsThatLibcupsKnowsComeInParts) {
  std::string lines;
  for (const char* name :
       {"Collate", "Duplex", "InputSlot", "ManualFeed", "MediaType", "MediaColor", "MediaWeight",
        "OutputBin", "OutputMode", "OutputOrder", "Resolution", "PageSize", "PageRegion"})
    lines += optionText(name) + optionText("Other" + std::string(name));
  expectEased({24, 6}, lines);
}

TEST(EasedPpd, OnlyAPlainDefaultIsLeftOut) {
  const std::string plain = optionTexts(1, 6);
  for (const char* value : {"A/Text", "\"A\"", "A B", "", "A;", "<41>",
                            "ChoiceWhoseNameHasMoreThanTheFortyBytesOf1", "\"A\nB\""}) {
    SCOPED_TRACE(value);
    expectEased({6, 1}, plain + optionText("New", value));
  }
  for (const char* value : {"B", "None", "A  \t", "  A", "Custom.9x9mm", "1+1", "\tA"}) {
    SCOPED_TRACE(value);
    expectEased({7, 1}, plain + optionText("New", value));
  }
}

TEST(EasedPpd, ADefaultElsewhereIsLeftToLibcups) {
  const std::string plain = optionTexts(1, 6), more = optionText("New");
  for (const std::string line : {"*DefaultNew: B\n", "*defaultNew: B\n", "*DefaultNew: A/B\n"}) {
    SCOPED_TRACE(line);
    expectEased({6, 0}, line + plain + more);
    expectEased({6, 0}, plain + more + line);
    expectEased({6, 1}, plain + grouped("One/First", more) + line);
    expectEased({6, 1}, plain + replaced(more, "*DefaultNew: A\n", "*DefaultNew: A\n" + line));
    expectEased({6, 1}, plain + replaced(more, "*DefaultNew: A\n", line + "*DefaultNew: A\n"));
  }
  expectEased({6, 1}, plain + replaced(more, "*DefaultNew: A\n", ""));
  expectEased({6, 1}, plain + replaced(more, "*DefaultNew: A\n", "*DefaultNew A: B\n"));
}

TEST(EasedPpd, SpecialDefaultsAreLeftToLibcups) {
  expectEased({6, 1}, optionTexts(1, 6) + optionText("ColorSpace", "RGB"));
  expectEased({6, 1}, optionTexts(1, 6) + optionText("PageSize") + optionText("PageRegion"));
  expectEased({0, 0}, replaced(optionText("X"), "X", "DefaultX") + optionText("X"));
  expectEased({12, 0}, optionTexts(1, 6) + "*PageSize W9: \"\"\n" + optionTexts(7, 12));
}

TEST(EasedPpd, AnOptionThatIsOpenedTwiceKeepsItsGroupWhole) {
  const std::string plain = optionTexts(1, 9);
  expectEased({8, 0}, plain + replaced(optionText("Other3", "B"), "B/Bb", "C/Cc"));
  expectEased({8, 0}, plain + replaced(optionText("OTHER3", "B"), "B/Bb", "C/Cc"));
  expectEased({8, 0}, plain + grouped("One/First", optionText("Other3", "B")));
  expectEased({8, 0},
              plain + "*JCLOpenUI *Other3/J: PickOne\n*DefaultOther3: B\n*JCLCloseUI: *Other3\n");
  expectEased({8, 0}, plain + "*Other3 D/Dd: \"d\"\n");
}

TEST(EasedPpd, GroupsOfAKindStayWhole) {
  expectEased({9, 0}, grouped("InstallableOptions/Parts", optionTexts(1, 9)));
  expectEased({9, 0}, grouped("JCL/Commands", optionTexts(1, 9)));
  expectEased({9, 0}, grouped("Nameless/", optionTexts(1, 9)) +
                          "*NonUIOrderDependency: 20 Prolog *Other7\n");
  expectEased({9, 0}, "*OpenGroup\n" + optionTexts(1, 9));
  expectEased({9, 0}, grouped("Hexadecimal/<>", optionTexts(1, 9)) +
                          "*NonUIOrderDependency: 20 Prolog *Other7\n");
  expectEased({9, 0}, grouped("\"One/First\"", optionTexts(1, 9)));
  expectEased({9, 0}, grouped(std::string(41, 'G') + "/Long", optionTexts(1, 9)));
  expectReadAsEver(kHeader +
                   grouped("One/First", "*OpenSubGroup: Sub/Below\n" + optionTexts(1, 9) +
                                            "*CloseSubGroup: Sub\n" + optionTexts(10, 19)));
  expectReadAsEver(kHeader + grouped("One/First", optionTexts(1, 9) +
                                                      "*JCLOpenUI *J/J: PickOne\n*DefaultJ: B\n*J "
                                                      "A: \"<41>\"\n*JCLCloseUI: *J\n" +
                                                      optionTexts(10, 19)));
}

TEST(EasedPpd, QuotedTextsAreNoStatements) {
  const std::string quoted =
      "*Other1 A/Aa: \"\n*DefaultOther1: B\n*OpenGroup: Not/Not\n*CloseUI: *Other1\n\"\n*End\n";
  expectEased({10, 2}, replaced(optionTexts(1, 10), "*Other1 A/Aa: \"a\"\n", quoted));
  const std::string open = replaced(optionTexts(1, 10), "*Other9 A/Aa: \"a\"", "*Other9 A/Aa: \"a");
  expectReadAsEver(kHeader + open);
}

TEST(EasedPpd, LinesMayEndAsOnAnySystem) {
  const std::string lines =
      optionTexts(1, 9) + grouped("One/First", optionTexts(10, 19)) + optionTexts(20, 22);
  for (const char* end : {"\r\n", "\r"}) expectReadAsEver(replaced(kHeader + lines, "\n", end));
  expectReadAsEver(kHeader + lines.substr(0, lines.size() - 1));
}

TEST(EasedPpd, WhatLibcupsRefusesIsRefusedWithTheSameLine) {
  for (const std::string& harm :
       {std::string("nonsense\n"), std::string("*OpenGroup: A/A\n*OpenGroup: B/B\n"),
        optionText(std::string(36, 'X')), optionText(std::string(41, 'X'))}) {
    SCOPED_TRACE(harm);
    const std::string text = kHeader + optionTexts(1, 9) + harm + optionTexts(10, 12);
    int line = 0, lineWithEase = 0;
    EXPECT_FALSE(openedAsEver(text));
    const ppd_status_t status = ppdLastError(&line);
    EXPECT_FALSE(openedWithEase(text, kEasy));
    EXPECT_EQ(ppdLastError(&lineWithEase), status);
    EXPECT_EQ(lineWithEase, line);
  }
}

TEST(EasedPpd, WhatLibcupsDoesNotReadIsNotPutBack) {
  const std::string lines = optionTexts(1, 6), more = optionTexts(7, 12);
  expectReadAsEver(kHeader + lines + "*%APLWORKSET START\n" + more);
  expectReadAsEver(kHeader + lines + grouped(partName(0) + "/Part", more));
}

// libcups skips the sign before the name, and reads nothing of the line behind the other one.
TEST(EasedPpd, SignsThatLibcupsReadsItsOwnWayAreLeftToIt) {
  const std::string lines = optionTexts(1, 6), more = optionTexts(7, 12);
  expectEased({0, 0}, lines + "*Default\x1aOther3: B\n" + more);
  expectEased({0, 0}, "*OpenGroup: One/First\n" + lines + "*CloseGroup" + '\0' + "\n" + more);
}

TEST(EasedPpd, AnOptionThatIsCalledAsAStatementIsThatStatement) {
  const std::string closing =
      "*OpenUI *CloseGroup/Own: PickOne\n*CloseGroup A/Aa: \"a\"\n*CloseUI: *CloseGroup\n";
  expectEased({12, 1},
              "*OpenGroup: One/First\n" + optionTexts(1, 6) + closing + optionTexts(7, 12));
}

// The tables of options, names and texts in every language.
TEST(EasedPpd, TextsAreInTheLanguageThatIsAskedFor) {
  for (const char* name : {"tape-a", "tape-b", "roll"}) {
    std::string text = test::contentsOf(test::source("samples/ppd/" + std::string(name) + ".ppd"));
    ASSERT_FALSE(text.empty()) << name;
    text += optionTexts(1, 600);
    for (const char* language : {"en", "de", "fr", "ja", "zh_CN"})
      for (int i = 1; i <= 600; i += 7) {
        const std::string number = std::to_string(i);
        text += "*" + std::string(language) + ".Translation Other" + number + "/In " + language +
                ": \"\"\n*" + language + ".Other" + number + " B/B in " + language + ": \"\"\n";
      }
    for (const char* language : {"en", "de", "ja", "zh_CN", "it"}) {
      std::string kept = text;
      const auto languages = keepTexts(kept, {language});
      const OpenPpd asEver = openedAsEver(kept), eased(openEased(kept));
      ASSERT_TRUE(eased) << name;
      for (const OpenPpd& ppd : {std::cref(asEver), std::cref(eased)}) putTexts(*ppd, languages);
      expectSame(dumped(asEver), dumped(eased), name);
    }
  }
}

// PPDs made of all these at random.
class Mixture {
 public:
  explicit Mixture(unsigned seed) : mRandom(seed) {}

  std::string text() {
    std::string text = kHeader;
    for (int pieces = 1 + below(8); pieces > 0; --pieces) text += piece();
    if (below(6) == 0) text.insert(text.size() - 1 - below(text.size() / 2), "\"");
    if (below(3) == 0) return replaced(text, "\n", below(2) == 0 ? "\r\n" : "\r");
    return text;
  }

 private:
  int below(std::size_t limit) { return static_cast<int>(mRandom() % limit); }
  std::string oneOf(std::initializer_list<const char*> list) {
    return list.begin()[below(list.size())];
  }

  std::string name() {
    if (below(12) == 0)
      return oneOf({"Duplex", "PageSize", "PageRegion", "MediaType", "Resolution", "ColorSpace",
                    "OutputOrder", "Collate", "DefaultOther7", "OTHER5", "OpenGroup", "JCLOther",
                    "Custom", "CustomOther3", "de.Other3", "BlackSubstitution", "Smoothing"});
    return oneOf({"Other", "other", "A", "Zz"}) + std::to_string(below(400));
  }

  std::string defaultText(const std::string& name) {
    const std::string value = oneOf({"A", "A", "A", "A", "B", "C", "None", "A ", "True"});
    switch (below(14)) {
      case 0:
        return "";
      case 1:
        return "*Default" + name + ": \"" + value + "\"\n";
      case 2:
        return "*Default" + name + ": " + value + "/Text\n";
      case 3:
        return "*Default" + name + ": A\n*Default" + name + ": " + value + "\n";
      case 4:
        return "*default" + name + ": " + value + "\n";
      default:
        return "*Default" + name + ": " + value + "\n";
    }
  }

  std::string choices(const std::string& name) {
    switch (below(12)) {
      case 0:
        return "*" + name + " A: \"\n*Default" + name + ": B\n*CloseUI: *X\n\"\n*End\n";
      case 1:
        return "";
      case 2:
        return "*" + name + " True/<4a61>: \"1\"\n*OrderDependency: 15.5 DocumentSetup *" + name +
               "\n";
      case 3:
        return "*" + name + " A/A: \"1\"\n*de.Translation " + name + "/De: \"\"\n*fr-" + name +
               " A/Fr: \"\"\n";
      case 4:
        return "*" + name + " A/A: \"1\"\n" + other();
      default:
        return "*" + name + " A/A: \"1\"\n*" + name + " B: \"2\"\n";
    }
  }

  std::string option() {
    const std::string keyword = name(), kind = oneOf({"PickOne", "PickOne", "Boolean", "PickMany"});
    const std::string jcl = below(40) == 0 ? "JCL" : "";
    std::string text = defaultText(keyword) + choices(keyword);
    if (below(4) == 0) text = choices(keyword) + defaultText(keyword);
    if (below(20) == 0) return text + optionText(name());
    std::string whole = "*" + jcl + "OpenUI *" + keyword + oneOf({"/Text", "", "/Größe", "/ "}) +
                        ": " + kind + "\n" + text;
    if (below(30) != 0) whole += "*" + jcl + "CloseUI: *" + keyword + "\n";
    return whole;
  }

  std::string other() {
    const std::string keyword = name();
    switch (below(10)) {
      case 0:
        return "*UIConstraints: *" + keyword + " A *" + name() + " B\n";
      case 1:
        return "*Custom" + keyword + " True/Own: \"x\"\n*ParamCustom" + keyword +
               " Value/V: 1 int 1 9\n";
      case 2:
        return "*NonUIOrderDependency: 30 Prolog *" + keyword + "\n";
      case 3:
        return "*" + keyword + " A/A: \"x\"\n";
      case 4:
        return defaultText(keyword);
      case 5:
        return "*% *OpenUI *" + keyword + ": \"\n";
      case 6:
        return "*Fact name: \"x\"\n*PaperDimension A: \"9 9\"\n";
      case 7:
        return "*cupsUIConstraints " + keyword + ": \"*" + keyword + " *Other1 B\"\n";
      default:
        return oneOf({"\n", "\n", "*Fact: \"x\"\n", "*End\n", " \n"});
    }
  }

  std::string options() {
    std::string text;
    for (int count = below(25); count > 0; --count) text += below(6) == 0 ? other() : option();
    return text;
  }

  // Of options that stand nowhere else.
  std::string run() {
    const int first = mNext, last = first + below(20);
    mNext = last + 1;
    return below(2) == 0 ? optionTexts(first, last) : optionTexts(last, first);
  }

  std::string content() { return mIsWild && below(2) == 0 ? options() : run() + other(); }

  std::string piece() {
    const std::string group = oneOf({"One/First", "Two", "Extra/More", "General/All", "Three/3",
                                     "InstallableOptions/Parts", "JCL/J", "Empty/", "Hex/<41>"});
    switch (below(9)) {
      case 0:
        return "*OpenGroup: " + group + "\n" + content();
      case 1:
        return grouped(group, content() + "*OpenSubGroup: Sub/Sub\n" + content() +
                                  "*CloseSubGroup: Sub\n" + content());
      case 2:
      case 3:
        return content();
      default:
        return grouped(group, content() + content());
    }
  }

  std::mt19937 mRandom;
  const bool mIsWild = below(2) == 0;
  int mNext = 500;  // more than the other numbers in names
};

TEST(EasedPpd, AnyMixtureIsReadAsEver) {
  constexpr unsigned kFirstSeed = 20250301;
  const int mixtures = std::getenv("CUTLINE_LONG_TESTS") ? 5'000 : 400;
  int refused = 0, parted = 0, eased = 0;
  for (unsigned i = 0; static_cast<int>(i) < mixtures && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const std::string text = Mixture(kFirstSeed + i).text();
    expectReadAsEver(text);
    refused += openedAsEver(text) ? 0 : 1;
    const auto easing = easedPpd(text, kEasy);
    if (!easing || !OpenPpd(openEased(text, kEasy))) continue;
    eased += easing->defaults.empty() ? 0 : 1;
    parted += easing->parts.empty() ? 0 : 1;
  }
  EXPECT_LT(refused, mixtures / 2) << "too many are refused to tell anything";
  EXPECT_GT(eased, mixtures / 4) << "too few are eased to tell anything";
  EXPECT_GT(parted, mixtures / 8) << "too few are parted to tell anything";
}

}  // namespace
}  // namespace cutline
