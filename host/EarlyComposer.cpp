#include "host/EarlyComposer.h"

#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "composition/ComposerName.h"

namespace cutline {
namespace {

constexpr std::string_view kComposing[] = {"--print", "--dry-run"};
// An option of the job that has the document sent as it is, alone or among others, begins so.
constexpr std::string_view kRaw[] = {"raw", "-oraw"};
constexpr std::string_view kRawAmongOthers = " raw";

bool composes(std::string_view argument) noexcept {
  for (const std::string_view command : kComposing)
    if (argument.starts_with(command)) return true;
  return false;
}

bool isRaw(std::string_view argument) noexcept {
  for (const std::string_view start : kRaw)
    if (argument.starts_with(start)) return true;
  return argument.find(kRawAmongOthers) != std::string_view::npos;
}

bool isAnyComposed(int argc, const char* const* argv) noexcept {
  bool isAny = false;
  for (int at = 1; at < argc; ++at) {
    const std::string_view argument(argv[at]);
    if (isRaw(argument)) return false;
    isAny |= composes(argument);
  }
  return isAny;
}

// Cuts the last part of a path off. No where it has none.
bool goUp(char* path) noexcept {
  char* const last = std::strrchr(path, '/');
  if (last == nullptr) return false;
  *last = '\0';
  return true;
}

// PREFIX/bin/PROGRAM gives PREFIX/lib/cutline/COMPOSER, as Installation says it, which is in a
// library that is not there yet.
bool findComposer(char (&path)[PATH_MAX]) noexcept {
  const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path - 1);
  if (length <= 0) return false;
  path[length] = '\0';
  if (!goUp(path) || !goUp(path)) return false;
  const std::size_t used = std::strlen(path);
  const int added =
      std::snprintf(path + used, sizeof path - used, "/lib/cutline/%s", kComposerName);
  return added > 0 && static_cast<std::size_t>(added) < sizeof path - used;
}

}  // namespace

bool startEarlyComposer(int argc, const char* const* argv, WaitingHelper& composer) noexcept {
  char path[PATH_MAX];
  return isAnyComposed(argc, argv) && findComposer(path) && spawnWaitingHelper(path, composer) == 0;
}

}  // namespace cutline
