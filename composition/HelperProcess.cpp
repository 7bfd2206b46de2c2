#include "composition/HelperProcess.h"

#include <sys/wait.h>

#include <csignal>
#include <cstring>

#include "base/Uninterrupted.h"
#include "composition/HelperSpawn.h"

namespace cutline {

Error cannotStart(const std::string& program, int reason) {
  return Sentence(Phrase("composition", "cannot start the program \"%1\": %2"),
                  {program, std::string(std::strerror(reason))});
}

Result<HelperProcess> HelperProcess::start(const std::string& program, int input, int output,
                                           int file) {
  pid_t process = 0;
  const int problem = spawnHelper({program.c_str(), input, output, file}, process);
  if (problem != 0) return cannotStart(program, problem);
  return HelperProcess(process);
}

HelperProcess& HelperProcess::operator=(HelperProcess&& other) noexcept {
  std::swap(mProcess, other.mProcess);
  return *this;
}

HelperProcess::~HelperProcess() {
  if (mProcess == 0) return;
  kill();
  wait();
}

void HelperProcess::kill() const noexcept {
  if (mProcess > 0) ::kill(-mProcess, SIGKILL);
}

int HelperProcess::wait() noexcept {
  int status = -1;
  uninterrupted([&] { return ::waitpid(mProcess, &status, 0); });
  mProcess = 0;
  return status;
}

}  // namespace cutline
