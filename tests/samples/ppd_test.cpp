#include <cups/ppd.h>
#include <gtest/gtest.h>

#include <memory>

#include "samples/printer/Choices.h"
#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using Ppd = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

Ppd opened(const std::string& path) { return {ppdOpenFile(path.c_str()), &ppdClose}; }
Ppd sample(const std::string& name) { return opened(source("samples/ppd/" + name + ".ppd")); }
Ppd fixture(const std::string& name) {
  return opened(source("tests/samples/ppd/" + name + ".ppd"));
}

constexpr const char* kCutOptions[] = {"LxCutLabel",    "LxCutAtEnd",       "LxMirror",
                                       "LxAutoTapeCut", "LxHalfCut",        "LxChainPrint",
                                       "LxSpecialTape", "LxRemoveBlkSpace", "LxCutMark"};

// The cut options that a PPD has, in the order of the table.
std::string cutOptionsOf(ppd_file_t* ppd) {
  std::string keywords;
  for (const char* keyword : kCutOptions) {
    if (ppdFindOption(ppd, keyword) != nullptr) keywords += std::string(keyword + 2) + ' ';
  }
  return keywords;
}

std::string valueOf(ppd_file_t* ppd, const char* attribute) {
  const ppd_attr_t* found = ppdFindAttr(ppd, attribute, nullptr);
  return found == nullptr ? "none" : found->value;
}

TEST(SamplePpds, ConformToTheSpecificationOfPpds) {
  for (const char* name : {"tape-a", "tape-b", "roll"}) {
    const CommandResult result =
        run("cupstestppd -q -I filters " + source("samples/ppd/") + name + ".ppd");
    EXPECT_EQ(result.status, 0) << name << result.output;
  }
}

TEST(SamplePpds, AreWhatTheGeneratorWrites) {
  const TemporaryFolder folder;
  ASSERT_EQ(run("mkdir " + folder / "s" + ' ' + folder / "f" + " && " +
                source("samples/ppd/generate") + ' ' + folder / "s" + ' ' + folder / "f")
                .status,
            0);
  const CommandResult samples =
      run("diff -r -x generate -x texts " + source("samples/ppd") + ' ' + folder / "s");
  EXPECT_EQ(samples.status, 0) << samples.output;
  const CommandResult fixtures = run("diff -r " + source("tests/samples/ppd") + ' ' + folder / "f");
  EXPECT_EQ(fixtures.status, 0) << fixtures.output;
}

TEST(SamplePpds, HaveTheirCutOptions) {
  EXPECT_EQ(cutOptionsOf(sample("tape-a").get()),
            "CutLabel CutAtEnd Mirror AutoTapeCut HalfCut ChainPrint SpecialTape RemoveBlkSpace "
            "CutMark ");
  EXPECT_EQ(cutOptionsOf(sample("tape-b").get()),
            "CutAtEnd Mirror AutoTapeCut HalfCut ChainPrint SpecialTape RemoveBlkSpace ");
  EXPECT_EQ(cutOptionsOf(sample("roll").get()), "CutLabel CutAtEnd Mirror AutoTapeCut ");
}

TEST(SamplePpds, NameTheirFamilyAndTheirPanel) {
  EXPECT_EQ(valueOf(sample("tape-a").get(), "LxAutoCutObjHidden"), "none");
  EXPECT_EQ(valueOf(sample("tape-b").get(), "LxAutoCutObjHidden"), "False");
  EXPECT_EQ(valueOf(sample("roll").get(), "LxTapeType"), "WN");
  EXPECT_EQ(valueOf(sample("tape-a").get(), "LxTapeType"), "none");
  EXPECT_TRUE(valueOf(sample("tape-a").get(), "APDialogExtension").ends_with("CutOptions.plugin"));
}

TEST(SamplePpds, SayWhatThePrinterFeeds) {
  for (const char* name : {"tape-a", "tape-b", "roll"}) {
    const Ppd ppd = sample(name);
    const CutSettings fed =
        printer::cutSettingsOf({{printer::kFamilyKey, valueOf(ppd.get(), printer::kFamilyKey)}});
    EXPECT_EQ(std::stod(valueOf(ppd.get(), "LxLeaderLength")), fed.leader) << name;
    EXPECT_EQ(std::stod(valueOf(ppd.get(), "LxFeedLength")), fed.feed) << name;
  }
}

// A check box's state is the position of the choice.
TEST(SamplePpds, ListOffBeforeOn) {
  for (const char* name : {"tape-a", "tape-b", "roll"}) {
    const Ppd ppd = sample(name);
    for (const char* keyword : kCutOptions) {
      const ppd_option_t* option = ppdFindOption(ppd.get(), keyword);
      if (option == nullptr || std::string(keyword) == "LxCutLabel") continue;
      EXPECT_EQ(option->ui, PPD_UI_PICKONE) << keyword;
      ASSERT_EQ(option->num_choices, 2) << keyword;
      EXPECT_STREQ(option->choices[0].choice, "OFF");
      EXPECT_STREQ(option->choices[1].choice, "ON");
    }
  }
}

TEST(SamplePpds, CountLabelsFromOneToNinetyNine) {
  for (const char* name : {"tape-a", "roll"}) {
    const Ppd ppd = sample(name);
    const ppd_option_t* option = ppdFindOption(ppd.get(), "LxCutLabel");
    ASSERT_NE(option, nullptr);
    ASSERT_EQ(option->num_choices, 99);
    for (int at = 0; at < 99; ++at) {
      EXPECT_EQ(option->choices[at].choice, std::to_string(at + 1));
    }
  }
}

TEST(SamplePpds, HaveSizesOfEveryKind) {
  const Ppd ppd = sample("tape-a");
  for (const char* name : {"W12H30", "W24H100", "DC24H50", "AV12H45", "HS24H50"}) {
    EXPECT_NE(ppdPageSize(ppd.get(), name), nullptr) << name;
  }
  const ppd_size_t* size = ppdPageSize(ppd.get(), "W24H100");
  EXPECT_NEAR(size->width, 68.03, 0.01);
  EXPECT_NEAR(size->length, 283.46, 0.01);
  EXPECT_NEAR(ppdPageSize(sample("roll").get(), "W62H29")->width, 175.75, 0.01);
}

TEST(SamplePpds, HaveOptionsForNoPanelAndRulesBetweenThem) {
  const Ppd ppd = sample("tape-a");
  for (const char* keyword : {"PrintDensity", "PrintSpeed", "Resolution", "Halftone"}) {
    EXPECT_NE(ppdFindOption(ppd.get(), keyword), nullptr) << keyword;
  }
  ppdMarkDefaults(ppd.get());
  EXPECT_EQ(ppdConflicts(ppd.get()), 0);
  ppdMarkOption(ppd.get(), "PrintSpeed", "Fast");
  EXPECT_GT(ppdMarkOption(ppd.get(), "Resolution", "360dpi"), 0);
  ppdMarkDefaults(ppd.get());
  ppdMarkOption(ppd.get(), "TapeMaterial", "Fabric");
  EXPECT_GT(ppdMarkOption(ppd.get(), "LxHalfCut", "ON"), 0);
}

TEST(FixturePpds, CanAllBeOpened) {
  for (const char* name : {"tape-all-shown", "roll-without-autocut", "without-cut-options",
                           "odd-one-choice", "odd-no-default", "odd-labels-from-two",
                           "odd-on-first", "odd-utf8", "odd-bad-text", "odd-missing-texts",
                           "odd-no-choices", "odd-boolean", "odd-size-names", "odd-hidden-true"}) {
    EXPECT_NE(fixture(name), nullptr) << name;
  }
}

TEST(FixturePpds, AreOddInTheirWay) {
  const Ppd undefined = fixture("odd-no-default");
  EXPECT_STREQ(ppdFindOption(undefined.get(), "LxHalfCut")->defchoice, "");
  EXPECT_STREQ(ppdFindOption(undefined.get(), "LxMirror")->defchoice, "Sideways");
  const Ppd empty = fixture("odd-no-choices");
  EXPECT_EQ(ppdFindOption(empty.get(), "LxHalfCut")->num_choices, 0);
  const Ppd single = fixture("odd-one-choice");
  EXPECT_EQ(ppdFindOption(single.get(), "LxHalfCut")->num_choices, 1);
  const Ppd boolean = fixture("odd-boolean");
  EXPECT_EQ(ppdFindOption(boolean.get(), "LxHalfCut")->ui, PPD_UI_BOOLEAN);
  EXPECT_EQ(cutOptionsOf(fixture("without-cut-options").get()), "");
  EXPECT_EQ(cutOptionsOf(fixture("roll-without-autocut").get()), "CutLabel CutAtEnd Mirror ");
}

TEST(FixturePpds, HaveATextThatIsNoUtf8) {
  const Ppd ppd = fixture("odd-bad-text");
  EXPECT_STREQ(ppdFindOption(ppd.get(), "LxHalfCut")->text, "Nur Tr\xe4gerfolie");
}

}  // namespace
}  // namespace cutline::test
