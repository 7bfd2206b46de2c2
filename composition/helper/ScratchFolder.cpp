#include "composition/helper/ScratchFolder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <utility>

namespace cutline {
namespace {

// Alone with the pipe: nobody waits for other descriptors because of this process, and what ends
// the readers of documents, a signal to their group or at a terminal, passes it by.
[[noreturn]] void keep(const std::string& folder, int tie) {
  ::setsid();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) ::signal(signal, SIG_IGN);
  ::dup2(tie, STDIN_FILENO);
  ::close_range(STDIN_FILENO + 1, ~0U, 0);
  for (char byte = 0;;) {
    const ssize_t count = ::read(STDIN_FILENO, &byte, 1);
    if (count == 0 || (count < 0 && errno != EINTR)) break;
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  ::_exit(EXIT_SUCCESS);
}

Error noKeeper() {
  return Error{std::string("cannot keep temporary files: ") + std::strerror(errno)};
}

}  // namespace

Result<ScratchFolder> ScratchFolder::make() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return noKeeper();
  const FileDescriptor kept(ends[0]);
  FileDescriptor tie(ends[1]);
  Result<TemporaryFolder> folder = TemporaryFolder::make();
  if (!folder) return folder.error();
  const pid_t keeper = ::fork();
  if (keeper < 0) return noKeeper();
  if (keeper == 0) keep(folder->path(), kept.get());
  return ScratchFolder(std::move(*folder), std::move(tie), keeper);
}

ScratchFolder::ScratchFolder(TemporaryFolder folder, FileDescriptor tie, pid_t keeper) noexcept
    : mFolder(std::move(folder)), mTie(std::move(tie)), mKeeper(keeper) {}

ScratchFolder::~ScratchFolder() {
  if (!mTie) return;  // moved away
  mTie = FileDescriptor();
  while (::waitpid(mKeeper, nullptr, 0) < 0 && errno == EINTR) continue;
}

}  // namespace cutline
