#include "tests/composition/Children.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace cutline::test {

std::vector<pid_t> childrenOfThisProcess() {
  std::vector<pid_t> children;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream list(thread.path() / "children");
    for (pid_t child = 0; list >> child;) children.push_back(child);
  }
  return children;
}

}  // namespace cutline::test
