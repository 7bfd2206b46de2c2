#include "platform/lib/ResourceFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string_view>

namespace cutline {
namespace {

bool isResource(const struct stat& status, std::size_t limit) {
  return S_ISREG(status.st_mode) && static_cast<std::size_t>(status.st_size) <= limit;
}

}  // namespace

// The question of the kind is asked of the open file, since another can come into its place, and a
// pipe or a device would block or never end.
std::optional<std::string> readResource(const std::filesystem::path& path,
                                        std::size_t limit) noexcept {
  return readResource(FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)),
                      limit);
}

std::optional<std::string> readResource(const FileDescriptor& file, std::size_t limit) noexcept {
  struct stat status {};
  if (::fstat(file.get(), &status) != 0 || !isResource(status, limit)) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t got =
        ::pread(file.get(), bytes.data() + at, bytes.size() - at, static_cast<off_t>(at));
    if (got <= 0) return std::nullopt;
    at += static_cast<std::size_t>(got);
  }
  return bytes;
}

bool isResourceFile(const std::string& path, std::size_t limit) noexcept {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && isResource(status, limit);
}

bool isResourceName(const std::string& name) noexcept {
  constexpr std::string_view kForbidden("/\0", 2);
  if (name.empty() || name == "." || name == "..") return false;
  return name.find_first_of(kForbidden) == std::string::npos;
}

}  // namespace cutline
