// A printer, and what a user does with it, as a sequence of numbers. After each step, all that is
// shown, marked and sent is as the model of a user's wishes says.
#include <gtest/gtest.h>

#include "tests/fuzz/Input.h"
#include "tests/fuzz/Insist.h"
#include "tests/host/RandomUser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cutline;
  constexpr int kMostSteps = 60;
  fuzz::Input input(data, size);
  RandomUser user([&](std::size_t limit) { return static_cast<unsigned>(input.below(limit)); });
  user.usePrinter(static_cast<unsigned>(input.below(kUsersPrinters)));
  user.check();
  for (int step = 0; step < kMostSteps && !input.isEmpty(); ++step) {
    user.act();
    user.check();
    fuzz::insist(!testing::Test::HasFailure(), user.story());
  }
  return 0;
}
