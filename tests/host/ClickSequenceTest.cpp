// A user at work: random clicks, counts, presets of the pop-up, other options, papers, and presets
// kept and chosen, undo, on printers of every make-up, always with the same seeds. After each the
// dialog holds together.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "tests/host/RandomUser.h"

namespace cutline {
namespace {

constexpr unsigned kActionsEach = 60;
constexpr unsigned kQuickSeeds = 100;

bool isLong() {
  const char* value = std::getenv("CUTLINE_LONG_TESTS");
  return value != nullptr && std::string(value) == "1";
}

// Walking by a step that has no common divisor with the printers' number meets each of them once,
// the unlike ones early.
constexpr unsigned kStep = 2999;
// The long form meets every printer.
constexpr unsigned kLongSeeds = kUsersPrinters;

RandomUser::Dice diceOf(unsigned seed) {
  return [random = std::mt19937(seed)](std::size_t limit) mutable {
    return static_cast<unsigned>(random() % limit);
  };
}

TEST(ClickSequence, HoldsTogetherWhateverTheUserDoes) {
  const unsigned seeds = isLong() ? kLongSeeds : kQuickSeeds;
  for (unsigned seed = 0; seed < seeds; ++seed) {
    RandomUser user(diceOf(seed));
    user.usePrinter(seed * kStep % kUsersPrinters);
    user.check();
    for (unsigned i = 0; i < kActionsEach && !testing::Test::HasFailure(); ++i) {
      user.act();
      user.check();
    }
    ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", " << user.story();
  }
}

// Which of the panel's options are left without a control that reaches each choice.
TEST(ClickSequence, EachChoiceOfEveryPrinterCanBeReached) {
  for (unsigned number = 0; number < kUsersPrinters; number += 41) {
    RandomUser user(diceOf(number));
    user.usePrinter(number);
    user.expectAllReachable();
    ASSERT_FALSE(testing::Test::HasFailure()) << user.story();
  }
}

}  // namespace
}  // namespace cutline
