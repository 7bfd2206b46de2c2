// The end of an exchange with a print server that goes on for too long.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace cutline {

// Hangs up on whoever is at the other end of a socket when the time is over, and notes that, so
// that the thread that waits there goes on. It knows the socket by a descriptor of its own: the
// first one may be closed, and its number be another file's, by then.
class ServerDeadline {
 public:
  // `isOver` is borrowed and outlives this.
  ServerDeadline(int socket, std::chrono::milliseconds time, std::atomic<bool>& isOver);

  // From now on it may take as long as it takes.
  void lift() noexcept { mThread.request_stop(); }

 private:
  std::jthread mThread;
};

}  // namespace cutline
