#include <malloc.h>
#include <unistd.h>

#include <new>
#include <string_view>

#include "host/core/CommandLine.h"
#include "host/core/Program.h"

namespace {

// Nothing that could be done about it works without memory, but to say so.
[[noreturn]] void endWithoutMemory() {
  constexpr std::string_view kWords = "cutline: there is no memory left\n";
  static_cast<void>(!::write(STDERR_FILENO, kWords.data(), kWords.size()));
  ::_exit(cutline::kExitError);
}

}  // namespace

int main(int argc, char** argv) {
  std::set_new_handler(endWithoutMemory);
  // A thread beside the dialog lives for a moment; what it needs comes and goes with the rest.
  ::mallopt(M_ARENA_MAX, 1);
  return cutline::runProgram(argc, argv);
}
