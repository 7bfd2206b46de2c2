// The filters of calls (composition/filters/CallRules.h), as they were made when this was built.
#pragma once

#include <linux/filter.h>

#include <cstdint>
#include <span>

namespace cutline {

// For the process of that number. Valid until it is asked for again.
std::span<sock_filter> readingFilterOf(std::uint32_t process) noexcept;

std::span<sock_filter> reachingOutFilter() noexcept;

}  // namespace cutline
