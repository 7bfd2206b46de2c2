#include "lean/LeanParts.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

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

}  // namespace

bool areInstalled(std::span<const LeanOrigin> origins) noexcept {
  return !origins.empty() && std::ranges::all_of(origins, isInstalled);
}

bool mayBeLean(LeanPart part) noexcept {
  // Whoever names libraries in the place of the installed ones means them for all parts.
  if (std::getenv("LD_LIBRARY_PATH") != nullptr) return false;
  return areInstalled(originsOf(part));
}

}  // namespace cutline
