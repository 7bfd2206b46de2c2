#include "tests/samples/Command.h"

#include <sys/wait.h>

#include <cstdlib>

#include "tests/samples/Folder.h"

namespace cutline::tests {
namespace {

int statusOf(int waited) {
  return WIFEXITED(waited) ? WEXITSTATUS(waited) : 128 + WTERMSIG(waited);
}

}  // namespace

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char letter : text) result += letter == '\'' ? "'\\''" : std::string(1, letter);
  return result + '\'';
}

Result run(const std::string& commandLine, int seconds) {
  const Folder folder;
  const std::string whole = "timeout " + std::to_string(seconds) + " bash -c " +
                            quoted(commandLine) + " >" + folder / "output" + " 2>" +
                            folder / "errors" + " </dev/null";
  const int status = statusOf(std::system(whole.c_str()));
  return {status, contentsOf(folder / "output"), contentsOf(folder / "errors")};
}

std::string built(const std::string& path) { return std::string(CUTLINE_BUILD_DIR "/") + path; }
std::string source(const std::string& path) { return std::string(CUTLINE_SOURCE_DIR "/") + path; }

}  // namespace cutline::tests
