// Each fuzzer's target on its kept inputs, and on mutants of them that are the same in each run.
// The fuzzers themselves, which look for new inputs, are built and run by scripts/fuzz.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/fuzz/Mutator.h"
#include "tests/fuzz/Targets.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::fuzz {
namespace {

bool isLong() {
  const char* value = std::getenv("CUTLINE_LONG_TESTS");
  return value != nullptr && std::string(value) == "1";
}

#ifdef __SANITIZE_ADDRESS__
constexpr unsigned kSanitizersPart = 10;
#else
constexpr unsigned kSanitizersPart = 1;
#endif

unsigned mutantsOf(const Target& target) {
  return (isLong() ? target.longMutants : target.quickMutants) / kSanitizersPart;
}

// Where an input lies that did harm.
std::string keep(const Target& target, const Casualty& casualty, const std::string& input) {
  const std::string path = CUTLINE_BUILD_DIR "/fuzz-findings-" + std::string(target.name) + "-" +
                           std::to_string(casualty.number);
  test::writeFile(path, input);
  return casualty.how + "; the input is " + path;
}

class Fuzz : public testing::TestWithParam<Target> {
 protected:
  Fuzz() { mInputs = corpusOf(GetParam()); }

  std::string mutant(unsigned number) { return mMutator.mutant(mInputs, number); }

  std::vector<std::string> mInputs;
  Mutator mMutator{wordsOf(GetParam())};
};

TEST_P(Fuzz, BearsTheKeptInputs) {
  const auto count = static_cast<unsigned>(mInputs.size());
  ASSERT_GT(count, 0U);
  const auto casualty = doGuarded(
      count, [&](unsigned number) { GetParam().take(mInputs[number]); }, GetParam().bounds);
  if (casualty) FAIL() << keep(GetParam(), *casualty, mInputs[casualty->number]);
}

TEST_P(Fuzz, BearsMutants) {
  const auto casualty = doGuarded(
      mutantsOf(GetParam()), [&](unsigned number) { GetParam().take(mutant(number)); },
      GetParam().bounds);
  if (casualty) FAIL() << keep(GetParam(), *casualty, mutant(casualty->number));
}

TEST(FuzzWords, AreReadAsAFuzzerReadsThem) {
  const Target target{.name = "cut_words", .run = nullptr, .words = "cut_words"};
  const std::vector<std::string> words = wordsOf(target);
  EXPECT_NE(std::ranges::find(words, " cut=label"), words.end());
  EXPECT_NE(std::ranges::find(words, "\x1b[2J"), words.end());
}

INSTANTIATE_TEST_SUITE_P(Targets, Fuzz, testing::ValuesIn(targets()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace cutline::fuzz
