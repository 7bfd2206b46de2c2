#include "composition/helper/ScratchFolder.h"

#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "base/TemporaryFile.h"
#include "base/Uninterrupted.h"

namespace cutline {
namespace {

constexpr char kEnd = '\0';

std::string notKept(const std::string& reason) { return "cannot keep temporary files: " + reason; }

Error noKeeper() { return Error{notKept(std::strerror(errno))}; }

// The folder's path, or the reason why there is none, which begins with no slash.
std::string answerOf(const Result<TemporaryFolder>& folder) {
  return (folder ? folder->path() : notKept(folder.error().message)) + kEnd;
}

void awaitEnd(int tie) {
  char byte = 0;
  while (uninterrupted([&] { return ::read(tie, &byte, 1); }) > 0) continue;
}

// Alone with the tie: nobody waits for other descriptors because of this process, and what ends
// the readers of documents, a signal to their group or at a terminal, passes it by. The folder is
// made only then, so that nothing can end in between.
[[noreturn]] void keep(int tie) {
  ::setsid();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) ::signal(signal, SIG_IGN);
  ::dup2(tie, STDIN_FILENO);
  ::close_range(STDIN_FILENO + 1, ~0U, 0);
  {
    const Result<TemporaryFolder> folder = TemporaryFolder::make();
    const std::string answer = answerOf(folder);
    if (::write(STDIN_FILENO, answer.data(), answer.size()) > 0) awaitEnd(STDIN_FILENO);
  }
  ::_exit(EXIT_SUCCESS);
}

// What the keeper says, without its end; nothing where it ended before.
std::string answerFrom(int tie) {
  std::string answer;
  std::array<char, 512> block{};
  while (!answer.ends_with(kEnd)) {
    const ssize_t count = uninterrupted([&] { return ::read(tie, block.data(), block.size()); });
    if (count <= 0) return {};
    answer.append(block.data(), static_cast<std::size_t>(count));
  }
  answer.pop_back();
  return answer;
}

}  // namespace

Result<ScratchFolder> ScratchFolder::make() {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return noKeeper();
  FileDescriptor kept(ends[0]);
  FileDescriptor tie(ends[1]);
  const pid_t keeper = ::fork();
  if (keeper < 0) return noKeeper();
  if (keeper == 0) keep(kept.get());
  kept = FileDescriptor();
  std::string answer = answerFrom(tie.get());
  ScratchFolder folder(std::move(answer), std::move(tie), keeper);
  if (folder.path().starts_with('/')) return folder;
  if (folder.path().empty())
    return Error{"cannot keep temporary files: who would remove them ended"};
  return Error{folder.path()};
}

ScratchFolder::ScratchFolder(std::string path, FileDescriptor tie, pid_t keeper) noexcept
    : mPath(std::move(path)), mTie(std::move(tie)), mKeeper(keeper) {}

ScratchFolder::~ScratchFolder() {
  if (!mTie) return;  // moved away
  mTie = FileDescriptor();
  uninterrupted([&] { return ::waitpid(mKeeper, nullptr, 0); });
}

}  // namespace cutline
