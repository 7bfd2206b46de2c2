// The end of an exchange with a print server that goes on for too long.
#pragma once

#include <cups/http.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace cutline {

// Hangs up on whoever is at the other end of a connection when the time is over, and notes that, so
// that the thread that waits there goes on. libcups may connect anew by itself and wait there: then
// it is hung up on again.
class ServerDeadline {
 public:
  // Both are borrowed and outlive this.
  ServerDeadline(http_t* http, std::chrono::milliseconds time, std::atomic<bool>& isOver);

  // From now on it may take as long as it takes.
  void lift() noexcept { mThread.request_stop(); }

 private:
  std::jthread mThread;
};

}  // namespace cutline
