#include "tests/composition/Children.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

std::vector<pid_t> childrenOfThisProcess() {
  std::vector<pid_t> children;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream list(thread.path() / "children");
    for (pid_t child = 0; list >> child;) children.push_back(child);
  }
  return children;
}

// An orphan that ended is there until the system's first process looks for it.
bool isRunning(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  std::string facts;
  std::getline(file, facts);
  const std::size_t name = facts.rfind(')');
  return name != std::string::npos && facts.substr(name + 2, 1) != "Z";
}

std::vector<std::string> programsWithVariable(const std::string& text) {
  std::vector<std::string> names;
  std::error_code ignored;
  for (const auto& process : std::filesystem::directory_iterator("/proc", ignored)) {
    if (contentsOf(process.path() / "environ").find(text) == std::string::npos) continue;
    std::string& name = names.emplace_back(contentsOf(process.path() / "comm"));
    name.resize(name.find('\n') == std::string::npos ? name.size() : name.find('\n'));
  }
  return names;
}

}  // namespace cutline::test
