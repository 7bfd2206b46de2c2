// What the plan says is what the virtual printer does: the driver's commands, event by event, and
// what the printer lists of the strip that came out.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <random>

#include "samples/printer/Choices.h"
#include "samples/printer/LabelJob.h"
#include "samples/printer/StripJob.h"
#include "strip/CutPlan.h"
#include "tests/support/Command.h"
#include "tests/support/Facts.h"
#include "tests/support/Pages.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace printer;

constexpr Resolution kDots = {25, 25};  // a dot is about a millimetre
constexpr std::uint32_t kWidth = 12;
constexpr std::uint32_t kLength = 30;
constexpr double kDotLength = 25.4 / 25;

using Dice = std::mt19937;
unsigned upTo(Dice& dice, unsigned most) {
  return std::uniform_int_distribution<unsigned>(0, most)(dice);
}

// As the driver gets them: of one of the sample printers, with its defaults below.
Choices anyChoices(Dice& dice) {
  static const char* const kPpds[] = {"tape-a", "tape-b", "roll"};
  static const char* const kSizes[] = {"W24H50", "DC24H50", "AV24H60", "HS24H50"};
  std::string options = "LxCutLabel=" + std::to_string(1 + upTo(dice, 6));
  for (const char* keyword : {"LxCutAtEnd", "LxMirror", "LxAutoTapeCut", "LxHalfCut",
                              "LxChainPrint", "LxRemoveBlkSpace", "LxCutMark"})
    options += std::string(" ") + keyword + (upTo(dice, 1) == 1 ? "=ON" : "=OFF");
  options += std::string(" LxSpecialTape=") + (upTo(dice, 4) == 0 ? "ON" : "OFF");
  options += std::string(" PageSize=") + kSizes[upTo(dice, 3)];
  return *choicesOf(source("samples/ppd/") + kPpds[upTo(dice, 2)] + ".ppd", options);
}

// With print from end to end, so that no blank space can be removed.
Bitmap labelPage() {
  Bitmap dots(kWidth, kLength);
  for (std::uint32_t y = 0; y < kLength; ++y) dots.ink(kWidth / 2, y);
  return dots;
}

class PlanAgreement : public testing::Test {
 protected:
  PlanAgreement() : mPath(mFolder / "commands") {}

  void drive(const Choices& choices, unsigned labels) {
    const int out = ::open(mPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    CommandWriter writer(out);
    writer.begin();
    LabelJob job(cutSettingsOf(choices), writer);
    for (unsigned label = 0; label < labels; ++label) ASSERT_TRUE(job.add(labelPage(), kDots));
    ASSERT_TRUE(job.end());
    ::close(out);
  }

  // "f8 L30 | f4": what the printer is told, with lengths in dots.
  std::string told() {
    const int in = ::open(mPath.c_str(), O_RDONLY);
    CommandReader reader(in);
    reader.begin();
    std::string outline;
    while (const auto command = reader.next()) outline += wordOf(*command);
    ::close(in);
    return outline;
  }

  Facts printed() {
    const int in = ::open(mPath.c_str(), O_RDONLY);
    CommandReader reader(in);
    StripJob job({}, 0);
    const volatile int cancelled = 0;
    EXPECT_TRUE(job.read(reader, cancelled));
    ::close(in);
    EXPECT_TRUE(job.store(mFolder / "job", cancelled));
    return factsOf(mFolder / "job.txt");
  }

 private:
  static std::string wordOf(const Command& command) {
    if (const auto* feed = std::get_if<Feed>(&command)) return "f" + std::to_string(feed->dots);
    if (const auto* label = std::get_if<Bitmap>(&command))
      return "L" + std::to_string(label->height());
    if (const auto* cut = std::get_if<Cut>(&command)) return *cut == Cut::Full ? "|" : ":";
    return "";
  }

  TemporaryFolder mFolder;
  std::string mPath;
};

std::string dots(double millimetres) {
  return std::to_string(std::lround(millimetres / kDotLength));
}

// The plan in the same words. Marks are part of a label's bitmap.
std::string plannedOutline(const CutPlan& plan) {
  std::string outline;
  plan.forEachEvent([&](const StripEvent& event) {
    switch (event.kind) {
      case StripEventKind::Leader:
      case StripEventKind::Feed:
        outline += "f" + dots(event.length);
        break;
      case StripEventKind::Label:
        outline += "L" + dots(event.length);
        break;
      case StripEventKind::FullCut:
        outline += '|';
        break;
      case StripEventKind::HalfCut:
        outline += ':';
        break;
      case StripEventKind::CutMark:
        break;
    }
  });
  return outline;
}

CutPlan planOf(const Choices& choices, unsigned labels) {
  LabelRun run;
  run.pages = test::pagesUpTo(labels);
  run.labelLength = kLength * kDotLength;
  return {cutSettingsOf(choices), run};
}

TEST_F(PlanAgreement, HoldsForSettingsAtRandom) {
  const unsigned rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 10'000 : 400;
  for (unsigned round = 0; round < rounds && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    Dice dice(round);
    const Choices choices = anyChoices(dice);
    const unsigned labels = 1 + upTo(dice, 15);
    const CutPlan plan = planOf(choices, labels);
    drive(choices, labels);
    EXPECT_EQ(told(), plannedOutline(plan));
    Facts facts = printed();
    EXPECT_EQ(facts["labels"], std::to_string(plan.labels()));
    EXPECT_EQ(facts["pieces"], std::to_string(plan.pieces()));
    EXPECT_EQ(facts["full-cuts"], std::to_string(plan.fullCuts()));
    EXPECT_EQ(facts["half-cuts"], std::to_string(plan.halfCuts()));
    EXPECT_EQ(facts["cut-marks"], std::to_string(plan.cutMarks()));
  }
}

}  // namespace
}  // namespace cutline::test
