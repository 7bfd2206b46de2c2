// PPDs with many options come out as libcups reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <set>
#include <span>
#include <sstream>

#include "cups/EasedRecords.h"
#include "cups/PpdContents.h"
#include "cups/PpdFile.h"
#include "cups/PpdTexts.h"
#include "tests/cups/Fixtures.h"
#include "tests/cups/PpdMixture.h"
#include "tests/support/Command.h"
#include "tests/support/PpdText.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

using test::grouped;
using test::kPpdHeader;
using test::OpenPpd;
using test::optionText;
using test::optionTexts;
using test::PpdMixture;
using test::replaced;
using Lines = std::vector<std::string>;

constexpr std::size_t kEasy = 0;  // options that are few

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
OpenPpd openedWithEase(const std::string& text, std::size_t few) {
  ppd_file_t* ppd = openEased(text, few);
  return ppd ? OpenPpd(ppd) : openedAsEver(text);
}

Lines dumped(const OpenPpd& ppd) { return ppd ? Dump(ppd.get()).lines() : Lines{"refused"}; }

void expectReadAsEver(const std::string& text, std::size_t few = kEasy) {
  test::expectSameLines(dumped(openedAsEver(text)), dumped(openedWithEase(text, few)), text);
}

// How many options are left out.
std::size_t leftOutOf(const EasedPpd& eased) {
  std::size_t count = 0;
  for (const auto& [name, options] : eased.groups)
    count += options.size() - options.places().size();
  return count;
}

std::size_t leftOutOf(const std::string& text) {
  const auto eased = easedPpd(text, kEasy);
  if (!eased) return 0;
  EXPECT_TRUE(OpenPpd(openEased(text, kEasy))) << text;
  return leftOutOf(*eased);
}

void expectEased(std::size_t leftOut, const std::string& lines) {
  expectReadAsEver(kPpdHeader + lines);
  EXPECT_EQ(leftOutOf(kPpdHeader + lines), leftOut) << lines;
}

TEST(EasedPpd, FewOptionsAreReadAsTheyAre) {
  const std::string text = kPpdHeader + optionTexts(1, 500);
  EXPECT_FALSE(easedPpd(text));
  EXPECT_EQ(openEased(text), nullptr);
  EXPECT_TRUE(easedPpd(text + optionTexts(501, 501)));
}

TEST(EasedPpd, AllOptionsButTheFirstAreLeftOut) {
  expectEased(9, optionTexts(1, 10));
  expectEased(9, optionTexts(10, 1));
  expectEased(0, optionTexts(1, 1));
}

TEST(EasedPpd, ItMayHaveNothingButOptions) {
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + optionTexts(1, 10));
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + optionText("Zero", "A/A") + optionTexts(1, 10));
  const std::string withoutDefault = replaced(optionText("Zero"), "*DefaultZero: A\n", "");
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + withoutDefault + optionTexts(1, 10));
  expectReadAsEver("*PPD-Adobe: \"4.3\"\n" + withoutDefault +
                   replaced(withoutDefault, "Zero", "One"));
}

TEST(EasedPpd, TheFirstOptionOfEachGroupStays) {
  expectEased(8, grouped("One/First", optionTexts(1, 9)));
  expectEased(16, grouped("One/First", optionTexts(1, 9)) + grouped("Two", optionTexts(20, 28)));
  expectEased(13, grouped("One/First", optionTexts(1, 3)) + optionTexts(20, 25) +
                      grouped("One/First", optionTexts(4, 9)));
  expectEased(9, optionTexts(1, 3) + grouped("General/Others", optionTexts(4, 10)));
  expectEased(8, grouped("InstallableOptions/Parts", optionTexts(1, 9)));
}

TEST(EasedPpd, WhatLiesBetweenOptionsKeepsItsPlace) {
  for (const char* between :
       {"\n", "*% a comment: \"\n", " \t\n", "*Fact: \"x\"\n", "*Fact name/text: \"x\"\n",
        "*UIConstraints: *Other1 A *Other2 B\n", "*OrderDependency: 20 Prolog *Other1\n", "*End\n",
        "*Text: \"\n*OpenGroup: Not\n*OpenUI *Not/Not: PickOne\n\"\n*End\n",
        "*PaperDimension W9: \"9 9\"\n", "*Duplex None: \"\"\n", "*CloseUI: *Other\n"}) {
    SCOPED_TRACE(between);
    const std::string lines = optionTexts(1, 6) + between + optionTexts(7, 12) + between;
    expectEased(11, lines);
    expectReadAsEver(kPpdHeader + grouped("One/First", lines) + lines);
  }
}

// Each stays among the others, in its place.
void expectKept(const std::string& option) {
  SCOPED_TRACE(option);
  const std::string lines = optionTexts(1, 6) + option + optionTexts(7, 12);
  expectEased(11, lines);
  expectEased(11, grouped("One/First", lines));
}

// The option New with another line instead of one of its own.
std::string newOption(const std::string& line, const std::string& by) {
  return replaced(optionText("New"), line + "\n", by);
}

TEST(EasedPpd, WhatLibcupsReadsItsOwnWayIsKept) {
  for (const char* name :
       {"InputSlot",       "MediaType",     "Resolution",    "PageSize",   "PageRegion",
        "ColorModel",      "ColorSpace",    "Font",          "Product",    "cupsFilter",
        "OrderDependency", "UIConstraints", "ImageableArea", "Throughput", "CustomNew",
        "ParamCustomNew",  "de.New",        "de-New",        "DefaultNew", "defaultNew"})
    expectReadAsEver(kPpdHeader + optionTexts(1, 6) + optionText(name) + optionTexts(7, 12));
  for (const char* name : {"InputSlot", "MediaType", "Resolution", "PageSize", "PageRegion"})
    expectKept(optionText(name));
  for (const char* kind : {"PickSome", "\"PickOne\"", "", "PickOne PickOne"})
    expectKept(newOption("*OpenUI *New/New text: PickOne",
                         "*OpenUI *New/New text: " + std::string(kind) + "\n"));
  expectReadAsEver(kPpdHeader + optionTexts(1, 6) + replaced(optionText("New"), "*New/", "*New /") +
                   optionTexts(7, 12));
  for (const char* opening :
       {"New/New text", "*New/<4e>", "*New/Größe", "*New/a~b", "*New/a\\b", "*New/\"New\""})
    expectKept(newOption("*OpenUI *New/New text: PickOne",
                         "*OpenUI " + std::string(opening) + ": PickOne\n"));
  for (const char* choice :
       {"Custom/Aa: \"a\"", "custom.9x9/Aa: \"a\"", "A/<41>: \"a\"", "A/Aa: a", "A/Aa: \"a",
        "A /Aa: \"a\"", "A;B/Aa: \"a\"", "A/Aa: \"a\rb\"", "A/Größe: \"a\"", "A/A\"a: \"a\""})
    expectReadAsEver(kPpdHeader + optionTexts(1, 6) +
                     newOption("*New A/Aa: \"a\"", "*New " + std::string(choice) + "\n") +
                     optionTexts(7, 12));
  for (const char* choice : {"Custom/Aa: \"a\"", "custom.9x9/Aa: \"a\"", "A/<41>: \"a\"", "A/Aa: a",
                             "A;B/Aa: \"a\"", "A/Größe: \"a\""})
    expectKept(newOption("*New A/Aa: \"a\"", "*New " + std::string(choice) + "\n"));
}

TEST(EasedPpd, LongTextsAreCutAsEver) {
  for (const std::size_t length : {39, 40, 41, 79, 80, 81, 200, 235, 240, 245, 246, 247, 255, 256})
    for (const char* line :
         {"*OpenUI *New/%: PickOne\n", "*New A/%: \"a\"\n", "*New A/Aa: \"%\"\n",
          "*New A/Aa: \"%\n%\"\n*End\n", "*New %: \"\"\n", "*DefaultNew: %\n", "*CloseUI: %\n"}) {
      SCOPED_TRACE(line + std::to_string(length));
      const std::string text = replaced(line, "%", std::string(length, 'x'));
      const std::string keyword = text.substr(0, text.find_first_of(" :"));
      std::string option = optionText("New");
      const auto at = option.find(keyword);
      option.replace(at, option.find('\n', at) + 1 - at, text);
      expectReadAsEver(kPpdHeader + optionTexts(1, 6) + option + optionTexts(7, 12));
    }
}

TEST(EasedPpd, LongCodesAreReadAsEver) {
  for (const int lines : {200, 300, 1200, 1300}) {  // a value of 1,300 is too long for libcups
    SCOPED_TRACE(lines);
    std::string code;
    for (int i = 0; i < lines; ++i) code += std::string(200, 'x') + '\n';
    const std::string option = newOption("*New A/Aa: \"a\"", "*New A/Aa: \"" + code + "\"\n*End\n");
    expectReadAsEver(kPpdHeader + optionTexts(1, 6) + option + optionTexts(7, 12));
  }
}

// libcups looks for such an option in the first group without a text.
TEST(EasedPpd, AnOrderOutsideOfItsOptionIsReadAsEver) {
  const std::string order = "*OrderDependency: 20 Prolog *Other3\n", lines = optionTexts(1, 6);
  expectEased(4, lines + order);
  expectEased(4, order + grouped("One/First", lines));
  expectReadAsEver(kPpdHeader + grouped("Nameless/", lines) + order);
  expectReadAsEver(replaced(kPpdHeader, "UTF-8", "ISOLatin1") + grouped("One/\xe4", lines) + order);
  expectReadAsEver(replaced(kPpdHeader, "UTF-8", "ISOLatin5") + grouped("One/\xff\xfe", lines) +
                   order);
}

TEST(EasedPpd, TextsAndCodesOfAllKindsAreReadAsEver) {
  const auto expectOneMore = [](const std::string& option) {
    SCOPED_TRACE(option);
    expectEased(12, optionTexts(1, 6) + option + optionTexts(7, 12));
  };
  for (const char* choice :
       {"A: \"a\"", "True: \"a\"", "False: \"\"", "True/On: \"\"", "A/ : \"\"", "A/: \"\"",
        "A/ Text / more : \"a\"", "A/Aa:\"a\"", "A/Aa: \t\"a\" \t", "A/Aa: \"<1b40>\"",
        "A/Aa: \"\n  two lines\n\n\"\n*End", "A/Aa: \"a\"\n*New A/Again: \"b\"", "A/Aa: \"größer\"",
        "\tA/Aa: \"a\"", "A/Aa: \" a \"", "A/Aa: \"a:b\"", "A/Aa: \"\""})
    expectOneMore(newOption("*New A/Aa: \"a\"", "*New " + std::string(choice) + "\n"));
  for (const char* opening : {"*New", "*New/", "*New/ ", "*New/Text with / and more", " *New/Text"})
    for (const char* kind : {"PickOne", "PickMany", "Boolean", "\tBoolean "})
      expectOneMore(newOption("*OpenUI *New/New text: PickOne",
                              "*OpenUI " + std::string(opening) + ": " + kind + "\n"));
  for (const char* order : {"10 AnySetup *New", "15.5 DocumentSetup *New", "0 Prolog  *New",
                            "7. PageSetup *New", ".5 ExitServer *New"})
    expectOneMore(newOption("*DefaultNew: A", "*OrderDependency: " + std::string(order) + "\n"));
  for (const char* order :
       {"10 JCLSetup *New", "10 Setup *New", "-1 Prolog *New", "10 Prolog *Other1", "10 Prolog New",
        "1e1 Prolog *New", "10 Prolog *New more"})
    expectKept(newOption("*DefaultNew: A", "*OrderDependency: " + std::string(order) + "\n"));
  for (const char* order : {"10", "Prolog *New", "10 Prolog", "\"10 Prolog *New\""})
    expectReadAsEver(kPpdHeader + optionTexts(1, 6) +
                     newOption("*DefaultNew: A", "*OrderDependency: " + std::string(order) + "\n"));
}

TEST(EasedPpd, OtherLanguagesStandBetweenTheChoices) {
  const std::string lines =
      "*de-Translation New/Neu: \"\"\n*de-New A/Ah: \"\"\n*fr.New B/Be: \"\"\n*% none\n\n";
  const std::string option = replaced(optionText("New"), "*CloseUI", lines + "*CloseUI");
  expectEased(12, optionTexts(1, 6) + option + optionTexts(7, 12));
  expectEased(12, grouped("One/First", optionTexts(1, 6) + option + optionTexts(7, 12)));
}

TEST(EasedPpd, CustomChoicesFindTheirOptions) {
  for (const std::string custom :
       {"*CustomOther6 True/Own: \"x\"\n*ParamCustomOther6 Value/V: 1 int 1 9\n",
        "*CustomOther6 True: \"x\"\n", "*customOther6 True: \"x\"\n", "*CustomOTHER6 True: \"x\"\n",
        "*ParamCustomOther6 Value/V: 1 int 1 9\n"}) {
    SCOPED_TRACE(custom);
    expectEased(10, custom + optionTexts(1, 12));
    expectEased(10, optionTexts(1, 12) + custom);
    expectEased(10, grouped("One/First", optionTexts(1, 8) + custom + optionTexts(9, 12)));
  }
}

TEST(EasedPpd, OnlyPlainDefaultsAreLeftOut) {
  for (const char* value : {"A/Text", "\"A\"", "A B", "", "A;", "<41>", "\"A\nB\"", "Custom.9x9mm",
                            "custom", "ChoiceWhoseNameHasMoreThanTheFortyBytesOf1"})
    expectKept(optionText("New", value));
  for (const char* value : {"B", "None", "A  \t", "  A", "1+1", "\tA"}) {
    SCOPED_TRACE(value);
    expectEased(6, optionTexts(1, 6) + optionText("New", value));
  }
  expectEased(6, optionTexts(1, 6) + newOption("*DefaultNew: A", ""));
  expectEased(6, optionTexts(1, 6) + "*DefaultNew: B\n" + newOption("*DefaultNew: A", ""));
}

TEST(EasedPpd, WhatIsNamedElsewhereIsKept) {
  const std::string plain = optionTexts(1, 6), more = optionText("New");
  for (const std::string line : {"*DefaultNew: B\n", "*defaultNew: B\n", "*DefaultNew: A/B\n"}) {
    SCOPED_TRACE(line);
    expectEased(5, line + plain + more);
    expectEased(5, plain + line + more);
    expectEased(5, plain + more + line);
    expectEased(5, plain + grouped("One/First", more) + line);
    expectEased(5, plain + replaced(more, "*DefaultNew: A\n", "*DefaultNew: A\n" + line));
    expectEased(5, plain + replaced(more, "*DefaultNew: A\n", line + "*DefaultNew: A\n"));
  }
  expectEased(5, plain + newOption("*DefaultNew: A", "*DefaultNew A: B\n"));
  expectEased(5, plain + more + "*New D/Dd: \"d\"\n");
  expectEased(0, replaced(optionText("X"), "X", "DefaultX") + optionText("X") + optionTexts(1, 5));
}

// It may be in either group, and libcups has one record of it in each.
TEST(EasedPpd, AnOptionThatIsOpenedTwiceKeepsItsGroupWhole) {
  const std::string plain = optionTexts(1, 9), two = grouped("Two", optionTexts(20, 22));
  for (const std::string& again :
       {replaced(optionText("Other3", "B"), "B/Bb", "C/Cc"),
        replaced(optionText("OTHER3", "B"), "B/Bb", "C/Cc"),
        grouped("One/First", optionText("Other3", "B")),
        std::string("*JCLOpenUI *Other3/J: PickOne\n*DefaultOther3: B\n*JCLCloseUI: *Other3\n")}) {
    SCOPED_TRACE(again);
    expectEased(2, plain + again + two);
    expectEased(2, two + again + plain);
  }
  expectEased(2, optionTexts(1, 6) + "*PageSize W9: \"\"\n" + optionTexts(7, 12) + two);
}

TEST(EasedPpd, WhatFollowsAnOpenOptionIsKept) {
  const std::string open = "*OpenUI *Open/Open: PickOne\n*DefaultOpen: A\n*Open A: \"a\"\n";
  expectEased(8, "*OpenGroup: One/First\n" + open + "*CloseGroup: One\n" + optionTexts(1, 9) +
                     "*Open B: \"b\"\n");
  expectEased(7, optionTexts(1, 2) + "*JCLOpenUI *Open/Open: PickOne\n" + optionTexts(3, 9) +
                     "*Open B: \"b\"\n");
  expectReadAsEver(kPpdHeader + optionTexts(1, 9) +
                   replaced(optionText("New"), "*CloseUI: *New", "*CloseUI") + optionTexts(10, 19));
  expectReadAsEver(kPpdHeader + open + "*CloseUI\n" + optionTexts(1, 9) + "*Open B: \"b\"\n");
}

TEST(EasedPpd, GroupsOfAKindStayWhole) {
  expectEased(0, grouped("JCL/Commands", optionTexts(1, 9)));
  expectEased(
      0, grouped("Nameless/", optionTexts(1, 9)) + "*NonUIOrderDependency: 20 Prolog *Other7\n");
  expectEased(0, "*OpenGroup\n" + optionTexts(1, 9));
  expectEased(0, grouped("Hexadecimal/<>", optionTexts(1, 9)) +
                     "*NonUIOrderDependency: 20 Prolog *Other7\n");
  expectEased(0, grouped("\"One/First\"", optionTexts(1, 9)));
  expectEased(0, grouped(std::string(41, 'G') + "/Long", optionTexts(1, 9)));
  expectReadAsEver(kPpdHeader +
                   grouped("One/First", "*OpenSubGroup: Sub/Below\n" + optionTexts(1, 9) +
                                            "*CloseSubGroup: Sub\n" + optionTexts(10, 19)));
  expectReadAsEver(kPpdHeader +
                   grouped("One/First", optionTexts(1, 9) +
                                            "*JCLOpenUI *J/J: PickOne\n*DefaultJ: B\n*J "
                                            "A: \"<41>\"\n*JCLCloseUI: *J\n" +
                                            optionTexts(10, 19)));
  expectReadAsEver(
      kPpdHeader +
      replaced(grouped("One/First", optionTexts(1, 9)), "*CloseGroup: One/First", "*CloseGroup") +
      optionTexts(10, 19));
}

TEST(EasedPpd, QuotedTextsAreNoStatements) {
  const std::string quoted =
      "*Other1 A/Aa: \"\n*DefaultOther1: B\n*OpenGroup: Not/Not\n*CloseUI: *Other1\n\"\n*End\n";
  expectEased(9, replaced(optionTexts(1, 10), "*Other1 A/Aa: \"a\"\n", quoted));
  expectEased(9, optionText("New") + replaced(optionTexts(1, 9), "*Other1 A/Aa: \"a\"\n", quoted));
  const std::string open = replaced(optionTexts(1, 10), "*Other9 A/Aa: \"a\"", "*Other9 A/Aa: \"a");
  expectReadAsEver(kPpdHeader + open);
}

TEST(EasedPpd, LinesMayEndAsOnAnySystem) {
  const std::string lines =
      optionTexts(1, 9) + grouped("One/First", optionTexts(10, 19)) + optionTexts(20, 22);
  for (const char* end : {"\r\n", "\r"}) expectReadAsEver(replaced(kPpdHeader + lines, "\n", end));
  expectReadAsEver(kPpdHeader + lines.substr(0, lines.size() - 1));
}

TEST(EasedPpd, WhatLibcupsRefusesIsRefusedWithTheSameLine) {
  for (const std::string& harm :
       {std::string("nonsense\n"), std::string("*OpenGroup: A/A\n*OpenGroup: B/B\n"),
        optionText(std::string(36, 'X')), optionText(std::string(41, 'X'))}) {
    SCOPED_TRACE(harm);
    const std::string text = kPpdHeader + optionTexts(1, 9) + harm + optionTexts(10, 12);
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
  expectReadAsEver(kPpdHeader + lines + "*%APLWORKSET START\n" + more);
  expectReadAsEver(kPpdHeader + lines + grouped("Part/Part", more));
}

// libcups skips the sign before the name, and reads nothing of the line behind the other one.
TEST(EasedPpd, SignsThatLibcupsReadsItsOwnWayAreLeftToIt) {
  const std::string lines = optionTexts(1, 6), more = optionTexts(7, 12);
  expectEased(0, lines + "*Default\x1aOther3: B\n" + more);
  expectEased(0, "*OpenGroup: One/First\n" + lines + "*CloseGroup" + '\0' + "\n" + more);
}

TEST(EasedPpd, AnOptionThatIsCalledAsAStatementIsThatStatement) {
  const std::string closing =
      "*OpenUI *CloseGroup/Own: PickOne\n*CloseGroup A/Aa: \"a\"\n*CloseUI: *CloseGroup\n";
  expectEased(5, "*OpenGroup: One/First\n" + optionTexts(1, 6) + closing + optionTexts(7, 12));
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
      test::expectSameLines(dumped(asEver), dumped(eased), name);
    }
  }
}

TEST(EasedPpd, AnyMixtureIsReadAsEver) {
  constexpr unsigned kFirstSeed = 20250301;
  const int mixtures = std::getenv("CUTLINE_LONG_TESTS") ? 5'000 : 400;
  int refused = 0, eased = 0;
  for (unsigned i = 0; static_cast<int>(i) < mixtures && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const std::string text = PpdMixture(kFirstSeed + i).text();
    expectReadAsEver(text);
    refused += openedAsEver(text) ? 0 : 1;
    const auto easing = easedPpd(text, kEasy);
    if (easing && OpenPpd(openEased(text, kEasy)) && leftOutOf(*easing) > 0) ++eased;
  }
  EXPECT_LT(refused, mixtures / 2) << "too many are refused to tell anything";
  EXPECT_GT(eased, mixtures / 4) << "too few are eased to tell anything";
}

}  // namespace
}  // namespace cutline
