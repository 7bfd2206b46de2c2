#include "composition/helper/SystemCalls.h"

#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "composition/helper/CallFilters.h"

namespace cutline {
namespace {

// The kernel copies it.
bool enforce(std::span<sock_filter> filter) {
  const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
  return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) == 0;
}

}  // namespace

bool allowReadingCalls() noexcept {
  return enforce(readingFilterOf(static_cast<std::uint32_t>(::getpid())));
}

bool refuseReachingOut() noexcept { return enforce(reachingOutFilter()); }

}  // namespace cutline
