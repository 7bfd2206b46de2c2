#include "lean/LeanParts.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/FileDescriptor.h"
#include "lean/LeanOrigins.h"

namespace cutline {
namespace {

// The linker puts the note right behind the file's headers.
constexpr std::size_t kReach = 4096;

bool isInstalled(const LeanOrigin& origin) noexcept {
  const FileDescriptor file(::open(origin.library, O_RDONLY | O_CLOEXEC));
  if (!file) return false;
  char start[kReach];
  const ssize_t count = ::pread(file.get(), start, sizeof start, 0);
  if (count <= 0) return false;
  const std::string_view bytes(start, static_cast<std::size_t>(count));
  return bytes.find(origin.buildId) != std::string_view::npos;
}

// Whether the dynamic loader would take a library of that name from a folder that the environment
// names.
bool isNamedElsewhere(const LeanOrigin& origin) noexcept {
  const char* folder = std::getenv("LD_LIBRARY_PATH");
  if (folder == nullptr) return false;
  const char* const name = std::strrchr(origin.library, '/');
  for (;; ++folder) {
    const std::size_t length = std::strcspn(folder, ":;");
    char path[PATH_MAX];
    // What has no name is the current folder.
    std::snprintf(path, sizeof path, "%s%.*s%s", length == 0 ? "." : "", static_cast<int>(length),
                  folder, name);
    if (::access(path, F_OK) == 0) return true;
    folder += length;
    if (*folder == '\0') return false;
  }
}

}  // namespace

bool areInstalled(std::span<const LeanOrigin> origins) noexcept {
  return !origins.empty() && std::ranges::all_of(origins, isInstalled);
}

bool isTheOneInUse(const LeanOrigin& origin) noexcept {
  return isInstalled(origin) && !isNamedElsewhere(origin);
}

bool mayBeLean(LeanPart part) noexcept {
  const std::span<const LeanOrigin> origins = originsOf(part);
  return areInstalled(origins) && std::ranges::none_of(origins, isNamedElsewhere);
}

}  // namespace cutline
