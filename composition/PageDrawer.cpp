#include "composition/PageDrawer.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <mutex>
#include <optional>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Uninterrupted.h"
#include "composition/DrawerMessages.h"
#include "composition/HelperProcess.h"

namespace cutline {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

Error cannotDraw(Sentence reason) {
  return Sentence(Phrase("composition", "the pages cannot be drawn: %1"), {std::move(reason)});
}

enum class Got { all, tooLate, ended };

struct StateText {
  DrawnState state;
  Phrase text;
};
constexpr std::array kStateTexts = std::to_array<StateText>({
    {DrawnState::noPage, Phrase("composition", "there is no such page")},
    {DrawnState::tooLarge, Phrase("composition", "its picture would be too large")},
    {DrawnState::failed, Phrase("composition", "its reader failed")},
});

Sentence reasonOf(DrawnState state) {
  for (const StateText& row : kStateTexts)
    if (row.state == state) return row.text;
  return Phrase("composition", "its reader failed");
}

Sentence reasonOf(Got got) {
  if (got == Got::tooLate) return Phrase("composition", "it takes too long");
  return Phrase("composition", "its reader failed");
}

// A drawer and the socket to it.
struct Connection {
  FileDescriptor socket;
  HelperProcess helper;

  Got receive(void* bytes, std::size_t size, steady_clock::time_point end) const;

  // No when nobody is there any more. A request is smaller than what a socket takes at once.
  bool send(const DrawRequest& request) const {
    return ::send(socket.get(), &request, sizeof request, MSG_NOSIGNAL) == sizeof request;
  }
};

Got Connection::receive(void* bytes, std::size_t size, steady_clock::time_point end) const {
  auto* to = static_cast<char*>(bytes);
  while (size > 0) {
    const auto left = std::chrono::duration_cast<milliseconds>(end - steady_clock::now());
    if (left.count() <= 0) return Got::tooLate;
    pollfd wait{socket.get(), POLLIN, 0};
    if (::poll(&wait, 1, static_cast<int>(left.count())) <= 0) continue;
    const ssize_t count = uninterrupted([&] { return ::recv(socket.get(), to, size, 0); });
    if (count <= 0) return Got::ended;
    to += count;
    size -= static_cast<std::size_t>(count);
  }
  return Got::all;
}

// The drawer gets the file for reading only: what it shows is what is sent.
Result<Connection> connected(const std::string& program, const TemporaryFile& document) {
  const FileDescriptor pdf(::open(document.path().c_str(), O_RDONLY | O_CLOEXEC));
  int ends[2];
  if (!pdf || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
    return cannotDraw(std::string(std::strerror(errno)));
  FileDescriptor socket(ends[0]);
  const FileDescriptor far(ends[1]);
  Result<HelperProcess> helper = HelperProcess::start(program, far.get(), far.get(), pdf.get());
  if (!helper) return helper.error();
  return Connection{std::move(socket), std::move(*helper)};
}

// The answer's pixels, where it has them and as many as one picture may have.
Result<PageImage> imageOf(const Connection& connection, const DrawAnswer& answer,
                          steady_clock::time_point end) {
  const bool fits = answer.width > 0 && answer.height > 0 &&
                    static_cast<double>(answer.width) * answer.height <= kMostPixels;
  if (!fits) return Error{reasonOf(DrawnState::failed)};
  PageImage image{answer.width, answer.height, {}};
  image.pixels.resize(static_cast<std::size_t>(answer.width) *
                      static_cast<std::size_t>(answer.height));
  const Got got =
      connection.receive(image.pixels.data(), image.pixels.size() * sizeof(std::uint32_t), end);
  if (got != Got::all) return Error{reasonOf(got)};
  return image;
}

}  // namespace

struct PageDrawer::State {
  std::string program;
  std::shared_ptr<const TemporaryFile> pdf;
  milliseconds patience;
  std::mutex mutex = {};                                // held by who asks the drawer
  std::optional<Connection> connection = std::nullopt;  // none when the last one died

  // The number of pages that a new drawer has read.
  Result<int> connect();
  // An error that is a reason alone.
  Result<PageImage> ask(const DrawRequest& request);
};

Result<int> PageDrawer::State::connect() {
  Result<Connection> made = connected(program, *pdf);
  if (!made) return made.error();
  DrawerGreeting greeting;
  const Got got = made->receive(&greeting, sizeof greeting, steady_clock::now() + patience);
  if (got != Got::all) return cannotDraw(reasonOf(got));
  if (greeting.pages < 1) return cannotDraw(reasonOf(DrawnState::failed));
  connection.emplace(std::move(*made));
  return static_cast<int>(greeting.pages);
}

Result<PageImage> PageDrawer::State::ask(const DrawRequest& request) {
  // One that died since the last page is no fault of this one's.
  if (!connection || !connection->send(request)) {
    connection.reset();
    const Result<int> pages = connect();
    if (!pages) return pages.error();
    if (!connection->send(request)) return Error{reasonOf(Got::ended)};
  }
  const auto end = steady_clock::now() + patience;
  DrawAnswer answer;
  const Got got = connection->receive(&answer, sizeof answer, end);
  if (got == Got::all && answer.state != DrawnState::fine) return Error{reasonOf(answer.state)};
  Result<PageImage> image =
      got == Got::all ? imageOf(*connection, answer, end) : Result<PageImage>(Error{reasonOf(got)});
  if (!image) connection.reset();
  return image;
}

PageDrawer::PageDrawer(std::unique_ptr<State> state) : mState(std::move(state)) {}
PageDrawer::~PageDrawer() = default;

Result<std::shared_ptr<PageDrawer>> PageDrawer::open(const std::string& helperDirectory,
                                                     std::shared_ptr<const TemporaryFile> pdf,
                                                     milliseconds patience) {
  const std::shared_ptr<PageDrawer> drawer(new PageDrawer(std::unique_ptr<State>(
      new State{helperDirectory + "/" + kDrawerName, std::move(pdf), patience})));
  const Result<int> pages = drawer->mState->connect();
  if (!pages) return pages.error();
  drawer->mPageCount = *pages;
  return drawer;
}

Result<PageImage> PageDrawer::draw(int page, double scale) {
  const std::lock_guard lock(mState->mutex);
  Result<PageImage> image = mState->ask({scale, page});
  if (image) return image;
  return Error{Sentence(Phrase("composition", "page %1 cannot be drawn: %2"),
                        {std::to_string(page + 1), image.error().sentence})};
}

}  // namespace cutline
