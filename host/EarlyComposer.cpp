#include "host/EarlyComposer.h"

#include <string_view>

#include "composition/ComposerName.h"
#include "host/OwnPart.h"
#include "lean/LeanParts.h"

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

bool started(const char* name, WaitingHelper& composer) noexcept {
  char path[PATH_MAX];
  return findOwnPart(name, path) && spawnWaitingHelper(path, composer) == 0;
}

}  // namespace

bool startEarlyComposer(int argc, const char* const* argv, WaitingHelper& composer) noexcept {
  if (!isAnyComposed(argc, argv)) return false;
  return (mayBeLean(LeanPart::composer) && started(kLeanComposer, composer)) ||
         started(kComposerName, composer);
}

}  // namespace cutline
