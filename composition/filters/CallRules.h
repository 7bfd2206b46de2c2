// Which calls of the system a confined program may make, as filters of the kernel (seccomp(2)).
#pragma once

#include <linux/filter.h>

#include <cstdint>
#include <vector>

namespace cutline {

// Of this machine's kind; empty where the library that makes them refuses.
using CallFilter = std::vector<sock_filter>;

// What stands in a filter for the number of the process that it is for.
inline constexpr std::uint32_t kOwnProcess = 0x7ea7c0de;

// What computing, reading files and writing to open ones needs. Whatever is not known here is
// answered as by a system that lacks it, so that libraries take the older way.
CallFilter readingFilter();

// Everything but sockets, signals to other processes and looking into them.
CallFilter reachingOutFilter();

}  // namespace cutline
