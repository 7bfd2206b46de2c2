#include "composition/HelperExchange.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

#include "base/Uninterrupted.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// More than the report of as many pages as a PDF may have.
constexpr std::size_t kMostText = 64U << 20U;

struct Ends {
  FileDescriptor ours;
  FileDescriptor helpers;
};

Error cannotTalk(const std::string& program) {
  return Sentence(Phrase("composition", "cannot start the program \"%1\": %2"),
                  {program, std::string(std::strerror(errno))});
}

// A socket rather than a pipe: to write to a program that has ended must not end this one.
std::optional<Ends> requestEnds() {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return std::nullopt;
  return Ends{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

std::optional<Ends> answerEnds() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  return Ends{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

// A program that does not take it all is noticed by its answer.
void send(const FileDescriptor& socket, std::string_view text, milliseconds patience) {
  const auto whole = std::chrono::duration_cast<std::chrono::seconds>(patience);
  const timeval time{whole.count(), std::chrono::microseconds(patience - whole).count()};
  ::setsockopt(socket.get(), SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
  while (!text.empty()) {
    const ssize_t count =
        uninterrupted([&] { return ::send(socket.get(), text.data(), text.size(), MSG_NOSIGNAL); });
    if (count <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

// Waits for something to read, or for the end. No when time is up.
bool waitForMore(int descriptor, steady_clock::time_point end) {
  for (;;) {
    const auto left = std::chrono::duration_cast<milliseconds>(end - steady_clock::now());
    if (left.count() <= 0) return false;
    pollfd wait{descriptor, POLLIN, 0};
    const int ready = ::poll(&wait, 1, static_cast<int>(left.count()));
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
  }
}

// No when time is up before the end.
bool readToEnd(int descriptor, steady_clock::time_point end, std::string& text) {
  std::array<char, 65536> block;
  while (text.size() <= kMostText) {
    if (!waitForMore(descriptor, end)) return false;
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor, block.data(), block.size()); });
    if (count <= 0) return true;
    text.append(block.data(), static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

Result<HelperExchange> HelperExchange::start(const std::string& program, std::vector<int> files) {
  auto request = requestEnds();
  auto answer = request ? answerEnds() : std::nullopt;
  if (!answer) return cannotTalk(program);
  auto helper = HelperProcess::start(
      {program, request->helpers.get(), answer->helpers.get(), std::move(files)});
  if (!helper) return helper.error();
  return HelperExchange(std::move(request->ours), std::move(answer->ours), std::move(*helper));
}

HelperAnswer HelperExchange::ask(std::string_view request, const std::stop_token& stop,
                                 milliseconds patience) {
  const auto end = steady_clock::now() + patience;
  HelperAnswer answer;
  {
    const std::stop_callback onStop(stop, [this] { mHelper.kill(); });
    send(mRequest, request, patience);
    mRequest = FileDescriptor();
    answer.isInTime = readToEnd(mAnswer.get(), end, answer.text);
    if (!answer.isInTime) mHelper.kill();
  }
  answer.status = mHelper.wait();
  return answer;
}

}  // namespace cutline
