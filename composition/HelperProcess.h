// A confined program beside the modules, run for one task.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "base/Result.h"

namespace cutline {

struct HelperStart {
  std::string program;          // its path
  int input = -1;               // becomes its standard input; borrowed, as the others are
  int output = -1;              // becomes its standard output
  std::vector<int> files = {};  // become its descriptors 3, 4, ...; it gets no other
};

// Ended and waited for when this object goes.
class HelperProcess {
 public:
  // The error names the program and the system's reason.
  static Result<HelperProcess> start(const HelperStart& start);
  HelperProcess(HelperProcess&& other) noexcept;
  HelperProcess& operator=(HelperProcess&& other) noexcept;
  ~HelperProcess();

  // Ends it at once, and whatever it started. May be called from any thread before wait().
  void kill() const noexcept;
  // Waits for its end. What waitpid says of it; negative when that is not known.
  int wait() noexcept;

 private:
  explicit HelperProcess(pid_t process) noexcept : mProcess(process) {}
  pid_t mProcess;  // 0 once it was waited for
};

}  // namespace cutline
