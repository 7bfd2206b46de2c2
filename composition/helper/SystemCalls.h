// Which calls of the system a confined program may make.
#pragma once

namespace cutline {

// From here on what readingFilter of composition/filters/CallRules.h allows; no where the kernel
// does not take it. The process must have given up new rights before (PR_SET_NO_NEW_PRIVS).
bool allowReadingCalls() noexcept;

// The same with reachingOutFilter. May be called between fork and exec, and lasts through exec.
bool refuseReachingOut() noexcept;

}  // namespace cutline
