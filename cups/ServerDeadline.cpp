#include "cups/ServerDeadline.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <condition_variable>
#include <mutex>

#include "base/FileDescriptor.h"

namespace cutline {

namespace {

// False when somebody asked to stop before.
bool hasPassed(std::chrono::milliseconds time, const std::stop_token& stop) {
  std::mutex mutex;
  std::condition_variable_any asked;
  std::unique_lock lock(mutex);
  asked.wait_for(lock, stop, time, [] { return false; });
  return !stop.stop_requested();
}

}  // namespace

ServerDeadline::ServerDeadline(int socket, std::chrono::milliseconds time,
                               std::atomic<bool>& isOver)
    : mThread([time, &isOver, own = FileDescriptor(fcntl(socket, F_DUPFD_CLOEXEC, 0))](
                  const std::stop_token& stop) {
        if (!hasPassed(time, stop)) return;
        isOver = true;
        ::shutdown(own.get(), SHUT_RDWR);
      }) {}

}  // namespace cutline
