#include "cups/ServerDeadline.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <condition_variable>
#include <mutex>
#include <string>

#include "base/FileDescriptor.h"

namespace cutline {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{100};

// False when somebody asked to stop before.
bool hasPassed(std::chrono::milliseconds time, const std::stop_token& stop) {
  std::mutex mutex;
  std::condition_variable_any asked;
  std::unique_lock lock(mutex);
  asked.wait_for(lock, stop, time, [] { return false; });
  return !stop.stop_requested();
}

// A descriptor of its own, as the connection's may be closed, and its number be another file's, by
// the time that it is used.
FileDescriptor copyOf(int socket) {
  return FileDescriptor(socket < 0 ? -1 : ::fcntl(socket, F_DUPFD_CLOEXEC, 0));
}

// The address of who is at the other end; empty where that is nobody.
std::string peerOf(const FileDescriptor& socket) {
  sockaddr_storage address{};
  socklen_t size = sizeof address;
  auto* const at = reinterpret_cast<sockaddr*>(&address);
  if (!socket || ::getpeername(socket.get(), at, &size) != 0) return {};
  return {reinterpret_cast<const char*>(at), size};
}

void hangUp(const FileDescriptor& socket) { ::shutdown(socket.get(), SHUT_RDWR); }

}  // namespace

ServerDeadline::ServerDeadline(http_t* http, std::chrono::milliseconds time,
                               std::atomic<bool>& isOver)
    : mThread([http, time, &isOver, first = copyOf(httpGetFd(http))](const std::stop_token& stop) {
        const std::string peer = peerOf(first);
        if (!hasPassed(time, stop)) return;
        isOver = true;
        hangUp(first);
        while (hasPassed(kBetweenLooks, stop)) {
          const FileDescriptor now = copyOf(httpGetFd(http));
          if (!peer.empty() && peerOf(now) == peer) hangUp(now);
        }
      }) {}

}  // namespace cutline
