#include "cups/ServerDeadline.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

#include "base/FileDescriptor.h"

namespace cutline {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{100};

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

struct ServerDeadline::Watch {
  http_t* http;
  std::atomic<bool>& isOver;
  FileDescriptor first;
  std::mutex mutex = {};
  std::condition_variable lifted = {};
  bool isLifted = false;

  // False when it was lifted before.
  bool hasPassed(std::unique_lock<std::mutex>& lock, std::chrono::milliseconds time) {
    return !lifted.wait_for(lock, time, [this] { return isLifted; });
  }

  // What is borrowed is touched under the lock alone, and no more once the deadline is lifted.
  void run(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex);
    const std::string peer = peerOf(first);
    if (!hasPassed(lock, time)) return;
    isOver = true;
    hangUp(first);
    while (hasPassed(lock, kBetweenLooks)) {
      const FileDescriptor now = copyOf(httpGetFd(http));
      if (!peer.empty() && peerOf(now) == peer) hangUp(now);
    }
  }
};

// Nobody waits for the thread's end: to sleep and be woken takes longer than all that it does.
ServerDeadline::ServerDeadline(http_t* http, std::chrono::milliseconds time,
                               std::atomic<bool>& isOver)
    : mWatch(new Watch{http, isOver, copyOf(httpGetFd(http))}) {
  std::thread([watch = mWatch, time] { watch->run(time); }).detach();
}

ServerDeadline::~ServerDeadline() { lift(); }

void ServerDeadline::lift() noexcept {
  const std::scoped_lock lock(mWatch->mutex);
  mWatch->isLifted = true;
  mWatch->first = FileDescriptor();
  mWatch->lifted.notify_one();
}

}  // namespace cutline
