// The dump of a PPD option, called in the staged module.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "tests/bundle/DiagModule.h"
#include "tests/support/PpdText.h"

namespace cutline::test {
namespace {

using Messages = std::vector<std::string>;

const std::string kStart = "+-+-+-+-+-+-+-+-+-+- start is ";
const std::string kEnd = "+-+-+-+-+-+-+-+-+-+- end is ";

class OptionDump : public testing::Test {
 protected:
  // The messages of one dump.
  Messages dump(ppd_file_t* ppd, const char* keyword) {
    const auto before = platform.messages().size();
    function(ppd, keyword);
    return {platform.messages().begin() + static_cast<std::ptrdiff_t>(before),
            platform.messages().end()};
  }

  LoggingPlatform platform;
  decltype(_PDELog_ppd_option_t)* function =
      diagnostic<decltype(_PDELog_ppd_option_t)>("_PDELog_ppd_option_t");
  PpdText text = PpdText().option("LxHalfCut", {{"OFF", "No half cut"}, {"ON", "Half cut"}}, "ON",
                                  "Cut through the tape");
};

TEST_F(OptionDump, AMissingPpdIsSaidEvenWhenTheKeywordIsMissingToo) {
  EXPECT_EQ(dump(nullptr, nullptr), Messages{"PPD file is not loaded!!"});
  EXPECT_EQ(dump(nullptr, "LxHalfCut"), Messages{"PPD file is not loaded!!"});
}

TEST_F(OptionDump, AMissingKeywordIsSaid) {
  EXPECT_EQ(dump(text.open().get(), nullptr), Messages{"ppdOptionName is NULL!!"});
}

TEST_F(OptionDump, LogsEachFieldAndTheFirstChoice) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  option->ui = PPD_UI_PICKONE;
  option->section = PPD_ORDER_PAGE;
  option->order = 12.5F;
  EXPECT_EQ(dump(ppd.get(), "LxHalfCut"),
            (Messages{kStart + "LxHalfCut", "***** conflicted | ", "***** keyword | LxHalfCut",
                      "***** defchoice | ON", "***** text | Cut through the tape", "***** ui == 1",
                      "***** section == 4", "***** order == 12.500000", "***** num_choices == 2",
                      "***** choices->marked | ", "***** choices->choice | OFF",
                      "***** choices->text | No half cut", kEnd + "LxHalfCut"}));
}

TEST_F(OptionDump, AFlagIsTheBytesThatBeginAtIt) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  option->conflicted = 1;
  option->choices[0].marked = 1;
  const Messages messages = dump(ppd.get(), "LxHalfCut");
  ASSERT_EQ(messages.size(), 13U);
  EXPECT_EQ(messages[1], "***** conflicted | \x01LxHalfCut");
  EXPECT_EQ(messages[9], "***** choices->marked | \x01OFF");
}

TEST_F(OptionDump, NothingIsReadBeyondARecordThatHasNoNul) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  ppd_choice_t* const kept = std::exchange(option->choices, nullptr);
  std::vector<ppd_choice_t> damaged(1);
  std::memset(static_cast<void*>(damaged.data()), 'x', sizeof(ppd_choice_t));
  option->choices = damaged.data();
  const Messages messages = dump(ppd.get(), "LxHalfCut");
  option->choices = kept;
  ASSERT_EQ(messages.size(), 13U);
  EXPECT_EQ(messages[9], "***** choices->marked | " + std::string(sizeof(ppd_choice_t), 'x'));
  EXPECT_EQ(messages[10], "***** choices->choice | " + std::string(PPD_MAX_NAME, 'x'));
  EXPECT_EQ(messages[11], "***** choices->text | " + std::string(PPD_MAX_TEXT, 'x'));
}

TEST_F(OptionDump, AnAbsentOptionHasNoFields) {
  EXPECT_EQ(dump(text.open().get(), "LxMirror"),
            (Messages{kStart + "LxMirror", kEnd + "LxMirror"}));
}

TEST_F(OptionDump, AnOptionWithoutChoicesHasNoLinesOnThem) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  const ppd_option_t kept = *option;
  option->choices = nullptr;
  option->num_choices = 0;
  const Messages messages = dump(ppd.get(), "LxHalfCut");
  *option = kept;
  ASSERT_EQ(messages.size(), 10U);
  EXPECT_EQ(messages[8], "***** num_choices == 0");
  EXPECT_EQ(messages[9], kEnd + "LxHalfCut");
}

TEST_F(OptionDump, TextIsReadInTheSystemsEncoding) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  std::strcpy(option->text,
              "d\xE9"
              "coupe");
  EXPECT_EQ(dump(ppd.get(), "LxHalfCut")[4], "***** text | (null)");
  const LoggingPlatform latin("ISO-8859-1");
  function(ppd.get(), "LxHalfCut");
  ASSERT_EQ(latin.messages().size(), 13U);
  EXPECT_EQ(latin.messages()[4],
            "***** text | d\xC3\xA9"
            "coupe");
}

TEST_F(OptionDump, APercentInAFieldIsText) {
  const OpenPpd ppd = text.open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  std::strcpy(option->text, "100%n %s");
  EXPECT_EQ(dump(ppd.get(), "LxHalfCut")[4], "***** text | 100%n %s");
}

TEST_F(OptionDump, WithoutASystemLogNothingHappens) {
  platform.dropLog();
  EXPECT_TRUE(dump(text.open().get(), "LxHalfCut").empty());
  EXPECT_TRUE(dump(nullptr, nullptr).empty());
}

}  // namespace
}  // namespace cutline::test
