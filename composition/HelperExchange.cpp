#include "composition/HelperExchange.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "base/Uninterrupted.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// More than the report of as many pages as a PDF may have.
constexpr std::size_t kMostText = 64U << 20U;

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

// No when time is up before the answer or the program has ended.
bool readAnswer(int descriptor, steady_clock::time_point end, std::string& text) {
  std::array<char, 16384> block;
  while (text.size() <= kMostText && !text.ends_with(kAnswerEnd)) {
    if (!waitForMore(descriptor, end)) return false;
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor, block.data(), block.size()); });
    if (count <= 0) return true;
    text.append(block.data(), static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

Result<HelperExchange> HelperExchange::start(const std::string& program) {
  WaitingHelper helper;
  const int problem = spawnWaitingHelper(program.c_str(), helper);
  if (problem != 0) return cannotStart(program, problem);
  return HelperExchange(helper);
}

HelperAnswer HelperExchange::ask(std::string_view request, const std::stop_token& stop,
                                 milliseconds patience) {
  const auto end = steady_clock::now() + patience;
  HelperAnswer answer;
  {
    const std::stop_callback onStop(stop, [this] { mHelper.kill(); });
    sendText(mRequest.get(), request, patience);
    mRequest = FileDescriptor();
    answer.isInTime = readAnswer(mAnswer.get(), end, answer.text);
  }
  const bool isWhole = answer.isInTime && answer.text.ends_with(kAnswerEnd);
  // Once it has said all it changes nothing any more, and nobody waits until it has let go of all.
  if (isWhole || !answer.isInTime) mHelper.kill();
  if (isWhole)
    answer.text.pop_back();
  else
    answer.status = mHelper.wait();
  return answer;
}

}  // namespace cutline
