// What is guarded against is noticed, and named by its number.
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <set>
#include <vector>

#include "tests/fuzz/Guarded.h"
#include "tests/fuzz/Mutator.h"

namespace cutline::fuzz {
namespace {

constexpr unsigned kHarmful = 3;

std::string endOf(const std::function<void()>& harm, const Bounds& bounds = {}) {
  const auto casualty = doGuarded(
      5,
      [&](unsigned number) {
        if (number == kHarmful) harm();
      },
      bounds);
  if (!casualty) return "";
  EXPECT_EQ(casualty->number, kHarmful);
  return casualty->how;
}

TEST(Guarded, ComesToItsEnd) {
  EXPECT_EQ(endOf([] {}), "");
}

TEST(Guarded, NamesWhatEndsTheProcess) {
  EXPECT_EQ(endOf([] { std::raise(SIGKILL); }), "signal 9");
  EXPECT_EQ(endOf([] { std::_Exit(7); }), "status 7");
}

TEST(Guarded, NamesWhatHangs) {
  const std::string how = endOf(
      [] {
        std::atomic<unsigned> spins = 0;
        while (spins != 1) spins += 2;
      },
      {.seconds = 1});
  EXPECT_EQ(how.find("took more than "), 0U) << how;
}

#ifndef __SANITIZE_ADDRESS__
// To fill it, too, can take a slow machine longer than the guard is patient.
TEST(Guarded, NamesWhatEatsMemory) {
  EXPECT_EQ(endOf([] {
              std::vector<std::vector<char>> eaten;
              while (true) eaten.emplace_back().reserve(std::size_t{64} << 20U);
            }),
            "signal 6");
}
#endif

TEST(Mutator, MakesTheSameOfASeed) {
  const std::vector<std::string> inputs = {"one 1\ntwo 2\nthree 3\n", "", "\n"};
  std::set<std::string> mutants;
  Mutator mutator({"word"});
  Mutator other({"word"});
  for (unsigned seed = 0; seed < 200; ++seed) {
    const std::string mutant = mutator.mutant(inputs, seed);
    EXPECT_EQ(other.mutant(inputs, seed), mutant);
    mutants.insert(mutant);
  }
  EXPECT_GT(mutants.size(), 100U);
}

}  // namespace
}  // namespace cutline::fuzz
