// What holds for every plan, on settings and jobs at random.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>
#include <utility>
#include <vector>

#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : mEngine(seed) {}
  unsigned upTo(unsigned most) { return std::uniform_int_distribution<unsigned>(0, most)(mEngine); }
  bool coin() { return upTo(1) == 1; }
  std::optional<double> lengthOrNone() {
    if (upTo(3) == 0) return std::nullopt;
    return upTo(40) / 4.0;
  }

 private:
  std::mt19937 mEngine;
};

CutSettings anySettings(Dice& dice) {
  CutSettings settings;
  for (bool CutSettings::*flag :
       {&CutSettings::cutsAutomatically, &CutSettings::cutsAtEnd, &CutSettings::halfCuts,
        &CutSettings::chains, &CutSettings::printsCutMarks, &CutSettings::removesBlankSpace,
        &CutSettings::mirrors, &CutSettings::isRoll})
    settings.*flag = dice.coin();
  settings.isSpecialTape = dice.upTo(3) == 0;
  settings.labelsPerCut = dice.upTo(7);
  settings.leader = dice.lengthOrNone();
  settings.feed = dice.lengthOrNone();
  return settings;
}

LabelRun anyRun(Dice& dice) {
  LabelRun run = runOf(1 + dice.upTo(20), dice.lengthOrNone());
  run.copies = 1 + dice.upTo(3);
  run.isCollated = dice.coin();
  return run;
}

std::vector<StripEvent> eventsOf(const CutPlan& plan) {
  std::vector<StripEvent> events;
  plan.forEachEvent([&](const StripEvent& event) { events.push_back(event); });
  return events;
}

std::uint64_t countOf(const std::vector<StripEvent>& events, StripEventKind kind) {
  return static_cast<std::uint64_t>(std::count_if(
      events.begin(), events.end(), [kind](const StripEvent& e) { return e.kind == kind; }));
}

class EachPlan : public testing::Test {
 protected:
  template <typename Check>
  void forMany(Check check) {
    const int rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 100'000 : 3'000;
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
      SCOPED_TRACE(round);
      Dice dice(static_cast<unsigned>(round));
      const CutSettings settings = anySettings(dice);
      check(CutPlan(settings, anyRun(dice)), settings);
    }
  }
};

TEST_F(EachPlan, HasTheEventsThatItCounts) {
  forMany([](const CutPlan& plan, const CutSettings&) {
    const auto events = eventsOf(plan);
    EXPECT_EQ(countOf(events, StripEventKind::Label), plan.labels());
    EXPECT_EQ(countOf(events, StripEventKind::FullCut), plan.fullCuts());
    EXPECT_EQ(countOf(events, StripEventKind::HalfCut), plan.halfCuts());
    EXPECT_EQ(countOf(events, StripEventKind::CutMark), plan.cutMarks());
  });
}

TEST_F(EachPlan, LiesEndToEndAndAddsUp) {
  forMany([](const CutPlan& plan, const CutSettings&) {
    double end = 0;
    for (const StripEvent& event : eventsOf(plan)) {
      EXPECT_NEAR(event.position, end, 1e-6);
      end = event.position + event.length;
      if (event.kind != StripEventKind::Label) continue;
      EXPECT_NEAR(event.position, plan.positionOf(event.label), 1e-6);
    }
    if (!plan.mostTape()) return;
    EXPECT_NEAR(*plan.mostTape(), end, 1e-6);
    if (!plan.tape()) return;
    EXPECT_EQ(plan.tape(), plan.mostTape());
    EXPECT_NEAR(*plan.tape() - *plan.waste(),
                static_cast<double>(plan.labels()) * *plan.run().labelLength, 1e-6);
  });
}

TEST_F(EachPlan, PrintsEachPageOnceACopyInOrder) {
  forMany([](const CutPlan& plan, const CutSettings&) {
    std::map<unsigned, unsigned> printed;
    std::uint64_t last = 0;
    for (const StripEvent& event : eventsOf(plan)) {
      if (event.kind != StripEventKind::Label) continue;
      EXPECT_EQ(event.label, ++last);
      ++printed[plan.run().pageOf(event.label)];
    }
    EXPECT_EQ(printed.size(), plan.run().pages.size());
    for (const auto& [page, times] : printed) EXPECT_EQ(times, plan.run().copies) << page;
  });
}

// What parts two labels, told without the rules' own words: nothing else cuts there.
TEST_F(EachPlan, CutsBetweenLabelsWhereTheRulesSay) {
  forMany([](const CutPlan& plan, const CutSettings& asked) {
    std::map<std::uint64_t, StripEventKind> cutBehind;
    for (const StripEvent& event : eventsOf(plan))
      if (event.kind == StripEventKind::FullCut || event.kind == StripEventKind::HalfCut)
        cutBehind[event.label] = event.kind;
    const bool cuts = asked.cutsAutomatically && !asked.isSpecialTape;
    const bool halfCuts = asked.halfCuts && !asked.isSpecialTape;
    const unsigned every = std::max(1U, asked.labelsPerCut);
    for (std::uint64_t label = 1; label < plan.labels(); ++label) {
      const bool isFull = cuts && label % every == 0 && (every > 1 || !halfCuts);
      ASSERT_EQ(cutBehind.contains(label), isFull || halfCuts) << label;
      EXPECT_EQ(cutBehind.contains(label) && cutBehind[label] == StripEventKind::FullCut, isFull)
          << label;
    }
    const bool cutsLast = (cuts || (asked.cutsAtEnd && !asked.isSpecialTape)) && !asked.chains;
    const auto last = cutBehind.find(plan.labels());
    EXPECT_EQ(last != cutBehind.end() && last->second == StripEventKind::FullCut, cutsLast);
  });
}

TEST_F(EachPlan, KnowsHowManyCutsLieBeforeALabel) {
  forMany([](const CutPlan& plan, const CutSettings&) {
    std::uint64_t cuts = 0;
    for (const StripEvent& event : eventsOf(plan)) {
      if (event.kind == StripEventKind::FullCut && event.label > 0) ++cuts;
      if (event.kind != StripEventKind::Label) continue;
      EXPECT_EQ(plan.rules().fullCutsBefore(event.label), cuts) << event.label;
    }
    EXPECT_EQ(plan.labels() == 0, plan.pieceRuns().empty());
    if (plan.labels() == 0) return;
    EXPECT_EQ(plan.end(), plan.pieceRuns().back().end);
  });
}

TEST_F(EachPlan, NeverLetsTheKnifeMeetSpecialTape) {
  forMany([](const CutPlan& plan, const CutSettings& asked) {
    if (!asked.isSpecialTape) return;
    EXPECT_EQ(plan.fullCuts() + plan.halfCuts() + plan.cutMarks(), 0U);
    EXPECT_EQ(plan.pieces(), 1U);
  });
}

TEST_F(EachPlan, IsTheSumOfItsRunsOfPieces) {
  forMany([](const CutPlan& plan, const CutSettings&) {
    std::uint64_t labels = 0;
    std::uint64_t pieces = 0;
    for (const PieceRun& run : plan.pieceRuns()) {
      labels += run.pieces * run.labels;
      pieces += run.pieces;
    }
    EXPECT_EQ(labels, plan.labels());
    EXPECT_EQ(pieces, plan.pieces());
    // Pieces, counted on the strip: what full cuts part and has a label.
    std::uint64_t found = 0;
    bool hasLabel = false;
    for (const StripEvent& event : eventsOf(plan)) {
      if (event.kind == StripEventKind::FullCut) hasLabel = false;
      if (event.kind == StripEventKind::Label && !std::exchange(hasLabel, true)) ++found;
    }
    EXPECT_EQ(found, plan.pieces());
  });
}

}  // namespace
}  // namespace cutline::test
