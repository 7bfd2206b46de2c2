#include "base/UserLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace cutline {

namespace {

constexpr mode_t kFileMode = 0600;

// What lives as long as the user's session where there is one.
std::string folder() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && *runtime == '/') return std::string(runtime) + "/cutline";
  const char* home = std::getenv("HOME");
  return std::string(home != nullptr ? home : "") + "/.cache/cutline";
}

Error cannotLock(const std::string& path) { return {Sentence(path + ": " + std::strerror(errno))}; }

}  // namespace

Result<FileDescriptor> takeUserLock(const std::string& name) {
  const std::string place = folder();
  std::error_code ignored;
  std::filesystem::create_directories(place, ignored);
  ::chmod(place.c_str(), S_IRWXU);
  const std::string path = place + '/' + name + ".lock";
  FileDescriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kFileMode));
  if (!file) return cannotLock(path);
  if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0) return file;
  return errno == EWOULDBLOCK ? Result<FileDescriptor>(FileDescriptor()) : cannotLock(path);
}

}  // namespace cutline
