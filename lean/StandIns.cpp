#include "lean/StandIns.h"

#include <dlfcn.h>

#include <climits>
#include <cstdio>
#include <cstring>

#include "lean/LeanOrigins.h"

namespace cutline {

void loadStandIns(const char* folder) noexcept {
  for (const LeanOrigin& origin : standInOrigins()) {
    if (!isTheOneInUse(origin)) continue;
    char path[PATH_MAX];
    std::snprintf(path, sizeof path, "%s/lean%s", folder, std::strrchr(origin.library, '/'));
    ::dlopen(path, RTLD_LAZY | RTLD_LOCAL);
  }
}

}  // namespace cutline
