// Files of words, of any origin.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <random>

#include "host/core/CutWordsFiles.h"
#include "tests/support/Command.h"
#include "tests/support/OtherDrivers.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using test::TemporaryFolder;

std::vector<std::string> problemsOf(const CutWordsText& text) {
  std::vector<std::string> problems;
  for (const Sentence& problem : text.problems) problems.push_back(problem.english());
  return problems;
}

TEST(CutWordsFiles, NamesABrokenLineAndUsesTheRest) {
  const CutWordsText text = cutWordsIn(
      "# a remark\n"
      "\n"
      "A on cut=label   # another\r\n"
      "A off\n"
      "A\n"
      "A off cut=sometimes\n"
      "A off cut=never until B=on\n"
      "A off cut=never if B\n"
      "A off cut=never with\n"
      "A off cut=never every=0\n"
      "A off leader=-1\n"
      "A off half=ON\n"
      "A off cut=never",
      "file");
  EXPECT_EQ(text.words.size(), 2U);
  EXPECT_EQ(problemsOf(text),
            (std::vector<std::string>{
                "\"file\", line 4, is left out: it needs an option, a choice, and what comes of it",
                "\"file\", line 5, is left out: it needs an option, a choice, and what comes of it",
                "\"file\", line 6, is left out: \"cut=sometimes\" means nothing there",
                "\"file\", line 7, is left out: \"until\" means nothing there",
                "\"file\", line 8, is left out: \"B\" means nothing there",
                "\"file\", line 9, is left out: \"with\" means nothing there",
                "\"file\", line 10, is left out: \"every=0\" means nothing there",
                "\"file\", line 11, is left out: \"leader=-1\" means nothing there",
                "\"file\", line 12, is left out: \"half=ON\" means nothing there"}));
}

TEST(CutWordsFiles, NamesNotMoreThanAnybodyReads) {
  std::string text;
  for (int line = 0; line < 1000; ++line) text += "nonsense\n";
  EXPECT_EQ(cutWordsIn(text, "file").problems.size(), 20U);
}

TEST(CutWordsFiles, LaterFilesWin) {
  const TemporaryFolder folder;
  const std::string first = folder.write("first", "A on cut=label\n");
  const std::string second = folder.write("second", "A on cut=never\n");
  const CutWordsText text = readCutWords({first, folder / "missing", second});
  EXPECT_TRUE(text.problems.empty());
  const auto on = [](const std::string&) { return std::string("on"); };
  EXPECT_FALSE(settingsIn(text.words, on, {}).cutsAutomatically);
}

TEST(CutWordsFiles, LeavesOutWhatIsNoPlainTextOfASensibleSize) {
  const TemporaryFolder folder;
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path :
       {folder.write("large", std::string(300'000, '#')), folder.write("zero", {"A on\0", 5}),
        folder.write("escape", "A on cut=label \x1b[2J\n"), folder.path(), pipe}) {
    const CutWordsText text = readCutWords({path});
    EXPECT_TRUE(text.words.empty()) << path;
    EXPECT_EQ(problemsOf(text),
              (std::vector<std::string>{'"' + path +
                                        "\" is left out: it is no plain text of at most 256 kB"}));
  }
}

TEST(CutWordsFiles, AreFoundBesideTheProgramAndInTheSettings) {
  setenv("XDG_CONFIG_HOME", "/somewhere", 1);
  const std::vector<std::string> paths = cutWordsPaths();
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(paths, (std::vector<std::string>{test::built("share/cutline/cut-words.txt"),
                                             "/etc/cutline/cut-words.txt",
                                             "/somewhere/cutline/cut-words.txt"}));
}

TEST(CutWordsFiles, CountOnlyForPrintersWithoutThePanelsOptions) {
  EXPECT_FALSE(cutWordsFor(*test::ppdFor(test::modePrinter())).words.empty());
  EXPECT_TRUE(cutWordsFor(*test::ppdFor(test::fullTapePrinter())).words.empty());
}

TEST(CutWordsFiles, TheInstalledOneIsWithoutFault) {
  const CutWordsText text = readCutWords({test::built("share/cutline/cut-words.txt")});
  EXPECT_EQ(problemsOf(text), std::vector<std::string>());
  EXPECT_GT(text.words.size(), 20U);
}

// Bytes of any kind are read without harm, and each problem names its line.
TEST(CutWordsFiles, TakesAnyBytes) {
  constexpr std::string_view kPieces[] = {"A",    "on",    " ",        "\n", "=", "if",      "with",
                                          "cut=", "label", "every=",   "9",  "#", "NUMBER",  "\xff",
                                          "-",    "feed",  "=1e308\n", ".",  "B", "\xe2\x80"};
  std::mt19937 dice(7);
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    for (unsigned piece = dice() % 60; piece > 0; --piece)
      text += kPieces[dice() % std::size(kPieces)];
    const CutWordsText read = cutWordsIn(text, "f");
    for (const std::string& problem : problemsOf(read))
      EXPECT_TRUE(problem.starts_with("\"f\", line ")) << problem;
    for (const CutWord& word : read.words) EXPECT_FALSE(word.effects.empty());
  }
}

}  // namespace
}  // namespace cutline
