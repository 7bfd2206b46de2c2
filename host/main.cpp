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
  return cutline::runProgram(argc, argv);
}
