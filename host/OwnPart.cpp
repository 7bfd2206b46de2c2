#include "host/OwnPart.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>

namespace cutline {
namespace {

// Cuts the last part of a path off. No where it has none.
bool goUp(char* path) noexcept {
  char* const last = std::strrchr(path, '/');
  if (last == nullptr) return false;
  *last = '\0';
  return true;
}

}  // namespace

bool findOwnPart(const char* name, char (&path)[PATH_MAX]) noexcept {
  const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path - 1);
  if (length <= 0) return false;
  path[length] = '\0';
  if (!goUp(path) || !goUp(path)) return false;
  const std::size_t used = std::strlen(path);
  const int added = std::snprintf(path + used, sizeof path - used, "/lib/cutline/%s", name);
  return added > 0 && static_cast<std::size_t>(added) < sizeof path - used;
}

}  // namespace cutline
