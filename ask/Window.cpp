#include "ask/Window.h"

#include <spawn.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>

namespace cutline {

std::string dialogProgram() {
  std::error_code problem;
  const auto own = std::filesystem::read_symlink("/proc/self/exe", problem);
  return own.parent_path().parent_path().parent_path() / "bin/cutline";
}

// The service takes its signals one by one; the dialog takes them as any program does.
Result<pid_t> openWindow(const std::string& program, int job) {
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
  std::string name = program;
  std::string option = "--held-job";
  std::string number = std::to_string(job);
  char* const words[] = {name.data(), option.data(), number.data(), nullptr};
  pid_t process = 0;
  const int failed = posix_spawn(&process, program.c_str(), nullptr, &attributes, words, environ);
  posix_spawnattr_destroy(&attributes);
  if (failed == 0) return process;
  return Error{program + ": cannot be started: " + std::strerror(failed)};
}

}  // namespace cutline
