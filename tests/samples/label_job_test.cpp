#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "samples/printer/Choices.h"
#include "samples/printer/LabelJob.h"
#include "tests/samples/Dots.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace printer;

// One dot is a millimetre, so that lengths can be read.
constexpr Resolution kMillimetres = {25, 25};

const Bitmap& page() {
  static const Bitmap dots = bitmapOf(
      {"........", "........", "..#.....", "...##...", "........", "........", "........"});
  return dots;
}

class LabelJobTest : public ::testing::Test {
 protected:
  // What a job of that many pages makes of the choices.
  std::vector<Command> commandsOf(const Choices& choices, int pages = 1) {
    print(choices, pages);
    const int in = ::open((mFolder / "job").c_str(), O_RDONLY);
    CommandReader reader(in);
    std::vector<Command> commands;
    while (auto command = reader.next()) commands.push_back(std::move(*command));
    ::close(in);
    return commands;
  }
  std::vector<std::string> labelOf(const Choices& choices) {
    for (const Command& command : commandsOf(choices)) {
      if (const auto* label = std::get_if<Bitmap>(&command)) return rowsOf(*label);
    }
    return {};
  }

 private:
  void print(const Choices& choices, int pages) {
    const int out = ::open((mFolder / "job").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    CommandWriter writer(out);
    LabelJob job(cutSettingsOf(choices), writer);
    for (int at = 0; at < pages; ++at) EXPECT_TRUE(job.add(page(), kMillimetres));
    EXPECT_TRUE(job.end());
    EXPECT_EQ(job.labels(), static_cast<unsigned>(pages));
    ::close(out);
  }

  TemporaryFolder mFolder;
};

// One letter a command.
std::string outlineOf(const std::vector<Command>& commands) {
  static constexpr std::string_view kLetters = "srfL?e";
  std::string outline;
  for (const Command& command : commands) {
    const auto* cut = std::get_if<Cut>(&command);
    outline += cut == nullptr ? kLetters[command.index()] : *cut == Cut::Full ? '|' : ':';
  }
  return outline;
}

TEST_F(LabelJobTest, FeedsBeforeAndBehindTheLabels) {
  const auto commands = commandsOf({{"LxCutAtEnd", "ON"}}, 2);
  EXPECT_EQ(outlineOf(commands), "rfLLf|e");
  EXPECT_EQ(std::get<Feed>(commands[1]).dots, 8U);
  EXPECT_EQ(std::get<Feed>(commands[4]).dots, 4U);
}

TEST_F(LabelJobTest, LeavesTheLastLabelOfAChainInThePrinter) {
  EXPECT_EQ(outlineOf(commandsOf({{"LxChainPrint", "ON"}, {"LxAutoTapeCut", "ON"}}, 2)), "rL|Le");
}

// The leader and the tape that follows are parted from the labels as these are from each other.
TEST_F(LabelJobTest, CutsBetweenLabelsAndBesideThem) {
  EXPECT_EQ(outlineOf(commandsOf({{"LxHalfCut", "ON"}}, 3)), "rf:L:L:L:fe");
  EXPECT_EQ(outlineOf(commandsOf({{"LxAutoTapeCut", "ON"}}, 2)), "rf|L|Lf|e");
}

TEST_F(LabelJobTest, FeedsNoLeaderFromARoll) {
  EXPECT_EQ(outlineOf(commandsOf({{"LxAutoTapeCut", "ON"}, {"LxTapeType", "WN"}}, 2)), "rL|Lf|e");
}

TEST_F(LabelJobTest, PrintsThePageAsItIs) { EXPECT_EQ(labelOf({}), rowsOf(page())); }

TEST_F(LabelJobTest, MirrorsAlongATapeAndAcrossARoll) {
  EXPECT_EQ(labelOf({{"LxMirror", "ON"}}), rowsOf(page().mirroredAlong()));
  EXPECT_EQ(labelOf({{"LxMirror", "ON"}, {"LxTapeType", "WN"}}), rowsOf(page().mirroredAcross()));
}

TEST_F(LabelJobTest, RemovesBlankSpaceButForAMillimetre) {
  EXPECT_EQ(labelOf({{"LxRemoveBlkSpace", "ON"}}),
            (std::vector<std::string>{"........", "..#.....", "...##...", "........"}));
}

TEST_F(LabelJobTest, MarksTheCorners) {
  const auto rows = labelOf({{"LxCutMark", "ON"}});
  EXPECT_EQ(rows.front(), "#......#");
  EXPECT_EQ(rows.back(), "#......#");
  EXPECT_EQ(rows[1], "........");
}

TEST(LabelJobWithoutPrinter, SaysThatNothingIsTaken) {
  const int full = ::open("/dev/full", O_WRONLY);
  CommandWriter writer(full);
  LabelJob job({}, writer);
  EXPECT_FALSE(job.add(page(), kMillimetres));
  EXPECT_FALSE(job.end());
  ::close(full);
}

TEST_F(LabelJobTest, KeepsABlankLabelWhole) {
  TemporaryFolder folder;
  const int out = ::open((folder / "job").c_str(), O_WRONLY | O_CREAT, 0600);
  CommandWriter writer(out);
  LabelJob job(cutSettingsOf({{"LxRemoveBlkSpace", "ON"}}), writer);
  EXPECT_TRUE(job.add(Bitmap(8, 5), kMillimetres));
  ::close(out);
  EXPECT_NE(contentsOf(folder / "job").find("label 8 5\n"), std::string::npos);
}

}  // namespace
}  // namespace cutline::test
