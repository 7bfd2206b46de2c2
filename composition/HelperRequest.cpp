#include "composition/HelperRequest.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "base/Uninterrupted.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;

// Files go with bytes: each message of them has one, which says whether it is the last.
constexpr char kMoreFiles = '+';
constexpr char kLastFiles = '.';
constexpr std::size_t kMostFilesAtOnce = 253;  // of one message (SCM_MAX_FD)
constexpr std::size_t kControlSize = CMSG_SPACE(kMostFilesAtOnce * sizeof(int));

// A message of one block of bytes, and room for files beside it.
struct Message {
  Message(const char* bytes, std::size_t size) : block{const_cast<char*>(bytes), size} {
    header.msg_iov = &block;
    header.msg_iovlen = 1;
  }
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;

  void giveRoom(std::size_t size) {
    header.msg_control = control;
    header.msg_controllen = size;
  }
  void add(std::span<const int> files) {
    if (files.empty()) return;
    giveRoom(CMSG_SPACE(files.size_bytes()));
    cmsghdr* const part = CMSG_FIRSTHDR(&header);
    part->cmsg_level = SOL_SOCKET;
    part->cmsg_type = SCM_RIGHTS;
    part->cmsg_len = CMSG_LEN(files.size_bytes());
    std::memcpy(CMSG_DATA(part), files.data(), files.size_bytes());
  }

  iovec block;
  msghdr header{};
  alignas(cmsghdr) char control[kControlSize] = {};
};

void setPatience(int socket, milliseconds patience) {
  const auto whole = std::chrono::duration_cast<std::chrono::seconds>(patience);
  const timeval time{whole.count(), std::chrono::microseconds(patience - whole).count()};
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
}

void takeFiles(msghdr& header, std::vector<FileDescriptor>& files) {
  for (cmsghdr* part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) continue;
    const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (std::size_t at = 0; at < count; ++at) {
      int file = -1;
      std::memcpy(&file, CMSG_DATA(part) + at * sizeof file, sizeof file);
      files.emplace_back(file);
    }
  }
}

}  // namespace

void sendFiles(int socket, std::span<const int> files) {
  do {
    const auto now = files.first(std::min(files.size(), kMostFilesAtOnce));
    files = files.subspan(now.size());
    Message message(files.empty() ? &kLastFiles : &kMoreFiles, 1);
    message.add(now);
    const ssize_t count =
        uninterrupted([&] { return ::sendmsg(socket, &message.header, MSG_NOSIGNAL); });
    if (count <= 0) return;
  } while (!files.empty());
}

void sendText(int socket, std::string_view text, milliseconds patience) {
  setPatience(socket, patience);
  while (!text.empty()) {
    const ssize_t count =
        uninterrupted([&] { return ::send(socket, text.data(), text.size(), MSG_NOSIGNAL); });
    if (count <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::optional<std::vector<FileDescriptor>> receiveFiles(int socket) {
  std::vector<FileDescriptor> files;
  for (;;) {
    char mark = 0;
    Message message(&mark, 1);
    message.giveRoom(kControlSize);
    const ssize_t count =
        uninterrupted([&] { return ::recvmsg(socket, &message.header, MSG_CMSG_CLOEXEC); });
    takeFiles(message.header, files);
    if (count <= 0 || (message.header.msg_flags & MSG_CTRUNC) != 0) return std::nullopt;
    if (mark == kLastFiles) return files;
  }
}

bool isTextSent(int socket) {
  pollfd wait{socket, POLLIN, 0};
  return ::poll(&wait, 1, 0) > 0;
}

std::optional<std::string> receiveText(int socket) {
  std::string text;
  std::array<char, 4096> block;
  for (;;) {
    const ssize_t count = uninterrupted([&] { return ::read(socket, block.data(), block.size()); });
    if (count < 0) return std::nullopt;
    if (count == 0) return text;
    text.append(block.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace cutline
