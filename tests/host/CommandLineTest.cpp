#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "host/core/CommandLine.h"

namespace cutline {
namespace {

Result<CommandLine> parse(std::vector<const char*> words) {
  words.insert(words.begin(), "cutline");
  words.push_back(nullptr);
  return parseCommandLine(static_cast<int>(words.size()) - 1, words.data());
}

TEST(CommandLineTest, NothingAsksForTheDialog) {
  const auto line = parse({});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->command, Command::dialog);
  EXPECT_TRUE(line->files.empty());
  EXPECT_FALSE(line->destination);
  EXPECT_FALSE(line->asked.copies);
}

TEST(CommandLineTest, ReadsWhatLpReads) {
  const auto line = parse({"-d", "tape24/half", "-n", "3", "-P", "1-2", "-t", "My labels", "-h",
                           "server:8631", "-E", "-U", "ann", "labels.pdf"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->destination->printer, "tape24");
  EXPECT_EQ(line->destination->instance, "half");
  EXPECT_EQ(line->asked.copies, 3);
  EXPECT_EQ(line->asked.pageRanges, "1-2");
  EXPECT_EQ(line->title, "My labels");
  EXPECT_EQ(line->server.server, "server:8631");
  EXPECT_TRUE(line->server.encrypt);
  EXPECT_EQ(line->server.user, "ann");
  EXPECT_EQ(line->files, std::vector<std::string>{"labels.pdf"});
}

TEST(CommandLineTest, OptionsMayStandAfterTheFileAndBeGivenAgain) {
  const auto line = parse({"labels.pdf", "-o", "LxHalfCut=ON", "-o", "LxHalfCut=OFF"});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->files, std::vector<std::string>{"labels.pdf"});
  EXPECT_EQ(line->asked.options.back(), (std::pair<std::string, std::string>("LxHalfCut", "OFF")));
}

TEST(CommandLineTest, OneWordHoldsSeveralOptionsAndQuotes) {
  const auto line = parse({"-o", "a=b c='d e' landscape nocollate"});
  ASSERT_TRUE(line);
  OptionList options = line->asked.options;
  std::sort(options.begin(), options.end());
  const OptionList expected = {
      {"a", "b"}, {"c", "d e"}, {"collate", "false"}, {"landscape", "true"}};
  EXPECT_EQ(options, expected);
}

TEST(CommandLineTest, MediaNamesThePageSize) {
  EXPECT_EQ(parse({"-o", "media=W24"})->asked.options, (OptionList{{"PageSize", "W24"}}));
  EXPECT_EQ(parse({"-o", "media=W24,Roll"})->asked.options, (OptionList{{"media", "W24,Roll"}}));
}

TEST(CommandLineTest, CopiesAndPagesAmongTheOptionsTakeTheirOwnPlaces) {
  const auto line = parse({"-o", "copies=4 page-ranges=2-3"});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->asked.copies, 4);
  EXPECT_EQ(line->asked.pageRanges, "2-3");
  EXPECT_TRUE(line->asked.options.empty());
}

TEST(CommandLineTest, CapitalsDoNotCountInTheNamesOfOptions) {
  const auto line = parse({"-o", "COPIES=4 Page-Ranges=2-3 MEDIA=W24"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->asked.copies, 4);
  EXPECT_EQ(line->asked.pageRanges, "2-3");
  EXPECT_EQ(line->asked.options, (OptionList{{"PageSize", "W24"}}));
}

TEST(CommandLineTest, EachCommandHasItsOption) {
  EXPECT_EQ(parse({"--print", "f"})->command, Command::print);
  EXPECT_EQ(parse({"--summary"})->command, Command::summary);
  EXPECT_EQ(parse({"--options"})->command, Command::options);
  EXPECT_EQ(parse({"--list"})->command, Command::list);
  EXPECT_EQ(parse({"--help"})->command, Command::help);
  EXPECT_EQ(parse({"--version"})->command, Command::version);
  EXPECT_FALSE(parse({"--print", "f"})->waits);
  EXPECT_TRUE(parse({"--wait", "--print", "f"})->waits);
  EXPECT_FALSE(parse({"--print", "f", "g"})->isEach);
  EXPECT_TRUE(parse({"--print", "--each", "f", "g"})->isEach);
  const auto snapshot = parse({"--snapshot", "a.png", "--scale", "2", "--dark", "--marks"});
  ASSERT_TRUE(snapshot);
  EXPECT_EQ(snapshot->command, Command::snapshot);
  EXPECT_EQ(snapshot->snapshotPath, "a.png");
  EXPECT_EQ(snapshot->scale, 2);
  EXPECT_TRUE(snapshot->dark);
  EXPECT_TRUE(snapshot->marks);
}

TEST(CommandLineTest, WrongUsageIsNamed) {
  const std::vector<std::vector<const char*>> wrong = {{"--foo"},
                                                       {"-x"},
                                                       {"-n"},
                                                       {"-n", "0"},
                                                       {"-n", "many"},
                                                       {"-n", "10000"},
                                                       {"-P", "4-1"},
                                                       {"-o", ""},
                                                       {"-d", ""},
                                                       {"--scale", "3"},
                                                       {"-", "a", "-"},
                                                       {"-o", "raw", "a"},
                                                       {"--dry-run"},
                                                       {"--dry-run", "a.pdf", "--print", "f"},
                                                       {"--print", "--summary"},
                                                       {"--wait"},
                                                       {"--wait", "--options"},
                                                       {"--each", "a"},
                                                       {"--each", "--dry-run", "a.pdf", "a"},
                                                       {"--each", "--print"},
                                                       {"--each", "--print", "a", "-"},
                                                       {"--json"},
                                                       {"--once", "--print"},
                                                       {"--choose", "--plan"},
                                                       {"--choose", "labels.pdf"},
                                                       {"--choose", "--once"},
                                                       {"--parent", "x11:1", "--list"},
                                                       {"--window-title", "a", "--options"},
                                                       {"--json", "--options"},
                                                       {"--plan", "--choices"},
                                                       {"--ppd"},
                                                       {"--ppd", "a.ppd", "--print"},
                                                       {"-o", "copies=x"},
                                                       {"--ppd", "a.ppd", "-d", "tape"},
                                                       {"--ppd", "a.ppd", "--list"}};
  for (const auto& words : wrong) {
    const auto line = parse(words);
    ASSERT_FALSE(line) << words.front();
    EXPECT_FALSE(line.error().message.empty());
    EXPECT_EQ(line.error().message.find('\n'), std::string::npos);
  }
  EXPECT_NE(parse({"-n"}).error().message.find("-n"), std::string::npos);
  EXPECT_NE(parse({"--foo"}).error().message.find("--foo"), std::string::npos);
}

// A server writes it into its logs, and a filter gets it in one line.
TEST(CommandLineTest, NothingWithControlCharactersIsSent) {
  for (const char* option : {"-d", "-t", "-o", "-h", "-U"})
    for (const char* end : {"\n", "\x1b[31m", "\x7f", "\xc2\x9b", "\xff"}) {
      const std::string text = std::string("job-billing=a") + end;
      const auto line = parse({option, text.c_str()});
      ASSERT_FALSE(line) << option;
      EXPECT_NE(line.error().message.find("control characters"), std::string::npos);
    }
  EXPECT_TRUE(parse({"-t", "Étiquettes"}));
}

TEST(CommandLineTest, SeveralDocumentsAreTakenInOrder) {
  const auto line = parse({"--print", "a.pdf", "-", "b.png"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->files, (std::vector<std::string>{"a.pdf", "-", "b.png"}));
}

TEST(CommandLineTest, ADryRunNamesItsFile) {
  const auto line = parse({"--dry-run", "out.pdf", "a.pdf", "--ppd", "tape.ppd"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->command, Command::dryRun);
  EXPECT_EQ(line->dryRunPath, "out.pdf");
  EXPECT_TRUE(parse({"--print", "-o", "raw", "a"}));
}

TEST(CommandLineTest, AMinusStandsForStandardInput) {
  EXPECT_EQ(parse({"-"})->files, std::vector<std::string>{"-"});
}

TEST(CommandLineTest, TheHelpNamesEveryOption) {
  for (const char* option :
       {"-d",        "-n",           "-P",      "-t",        "-o",         "-h",        "-E",
        "-U",        "--ppd",        "--print", "--wait",    "--each",     "--dry-run", "--summary",
        "--options", "--plan",       "--json",  "--choices", "--snapshot", "--scale",   "--dark",
        "--list",    "--plugin-dir", "--help",  "--version", "-q"})
    EXPECT_NE(helpText().find(option), std::string::npos) << option;
}

TEST(CommandLineTest, ProgramsThatOpenTheDialogHaveOptionsOfTheirOwn) {
  EXPECT_FALSE(parse({"labels.pdf"})->isOnce);
  EXPECT_TRUE(parse({"--once", "labels.pdf"})->isOnce);
  const auto line = parse({"--choose", "--parent", "x11:2a", "--window-title", "Print"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_TRUE(line->isChoosing);
  EXPECT_EQ(line->parentWindow, "x11:2a");
  EXPECT_EQ(line->windowTitle, "Print");
  for (const char* option : {"--once", "--choose", "--parent", "--window-title"})
    EXPECT_EQ(helpText().find(option), std::string::npos) << option;
}

TEST(CommandLineTest, QuietIsALetter) {
  const char* words[] = {"cutline", "--print", "-q"};
  const auto line = parseCommandLine(3, words);
  ASSERT_TRUE(line);
  EXPECT_TRUE(line->isQuiet);
}

TEST(CommandLineTest, AsksForAQueueByItsPrinter) {
  const auto line = parse({"--ask-queue", "add", "tape24"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->command, Command::askQueue);
  EXPECT_EQ(line->askQueueVerb, "add");
  EXPECT_EQ(line->files, std::vector<std::string>{"tape24"});
  EXPECT_TRUE(parse({"--ask-queue", "list"}));
  EXPECT_FALSE(parse({"--ask-queue", "list", "tape24"}));
  EXPECT_FALSE(parse({"--ask-queue", "add"}));
  EXPECT_FALSE(parse({"--ask-queue", "remove", "one", "two"}));
  EXPECT_FALSE(parse({"--ask-queue", "rename", "tape24"}));
}

TEST(CommandLineTest, TakesAJobInTheDialogAlone) {
  const auto line = parse({"--held-job", "12"});
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->command, Command::dialog);
  EXPECT_EQ(line->heldJobId, 12);
  for (const char* wrong : {"0", "-1", "twelve", "12a", ""})
    EXPECT_FALSE(parse({"--held-job", wrong})) << wrong;
  EXPECT_FALSE(parse({"--held-job", "12", "labels.pdf"}));
  EXPECT_FALSE(parse({"--held-job", "12", "-d", "tape24"}));
  EXPECT_FALSE(parse({"--held-job", "12", "--print"}));
}

}  // namespace
}  // namespace cutline
