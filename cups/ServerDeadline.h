// The end of an exchange with a print server that goes on for too long.
#pragma once

#include <cups/http.h>

#include <atomic>
#include <chrono>
#include <memory>

namespace cutline {

// Hangs up on whoever is at the other end of a connection when the time is over, and notes that, so
// that the thread that waits there goes on. libcups may connect anew by itself and wait there: then
// it is hung up on again.
class ServerDeadline {
 public:
  // Both are borrowed and outlive this.
  ServerDeadline(http_t* http, std::chrono::milliseconds time, std::atomic<bool>& isOver);

  ~ServerDeadline();
  ServerDeadline(const ServerDeadline&) = delete;
  ServerDeadline& operator=(const ServerDeadline&) = delete;

  // From now on it may take as long as it takes.
  void lift() noexcept;

 private:
  struct Watch;
  std::shared_ptr<Watch> mWatch;
};

}  // namespace cutline
