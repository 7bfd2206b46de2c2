#include "tests/support/Command.h"

#include <sys/wait.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

// For what waits for a print server.
constexpr int kLongPatience = 300;

int statusOf(int waited) {
  return WIFEXITED(waited) ? WEXITSTATUS(waited) : 128 + WTERMSIG(waited);
}

}  // namespace

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char letter : text) result += letter == '\'' ? "'\\''" : std::string(1, letter);
  return result + '\'';
}

CommandResult run(const std::string& commandLine, int seconds) {
  const TemporaryFolder folder;
  const std::string whole = "timeout " + std::to_string(seconds) + " bash -c " +
                            quoted(commandLine) + " >" + folder / "output" + " 2>" +
                            folder / "errors" + " </dev/null";
  const int status = statusOf(std::system(whole.c_str()));
  return {status, contentsOf(folder / "output"), contentsOf(folder / "errors")};
}

std::string outputOf(const std::string& commandLine) {
  const CommandResult result = run("exec 2>&1; " + commandLine, kLongPatience);
  if (result.status != 0) throw std::runtime_error(commandLine + ": " + result.output);
  return result.output;
}

std::string built(const std::string& path) { return std::string(CUTLINE_BUILD_DIR "/") + path; }
std::string source(const std::string& path) { return std::string(CUTLINE_SOURCE_DIR "/") + path; }

}  // namespace cutline::test
