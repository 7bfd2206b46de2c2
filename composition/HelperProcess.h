// A confined program beside the modules, run for one task.
#pragma once

#include <sys/types.h>

#include <string>
#include <utility>

#include "base/Result.h"

namespace cutline {

// Ended and waited for when this object goes.
class HelperProcess {
 public:
  // The program has `input` as its standard input, `output` as its standard output, `file` as its
  // descriptor 3, and no other; all are borrowed. The error names it and the system's reason.
  static Result<HelperProcess> start(const std::string& program, int input, int output, int file);
  // Of a program that was started; its process group is its own.
  explicit HelperProcess(pid_t process) noexcept : mProcess(process) {}
  HelperProcess(HelperProcess&& other) noexcept : mProcess(std::exchange(other.mProcess, 0)) {}
  HelperProcess& operator=(HelperProcess&& other) noexcept;
  ~HelperProcess();

  // Ends it at once, and whatever it started. May be called from any thread before wait().
  void kill() const noexcept;
  // Waits for its end. What waitpid says of it; negative when that is not known.
  int wait() noexcept;

 private:
  pid_t mProcess;  // 0 once it was waited for
};

// Why a program of that path did not start.
Error cannotStart(const std::string& program, int reason);

}  // namespace cutline
