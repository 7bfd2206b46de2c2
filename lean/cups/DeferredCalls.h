// The functions that wait for their library, in the order of their slots.
#pragma once

#include <span>

namespace cutline {

struct DeferredCall {
  const char* name;
  const char* library;
};

std::span<const DeferredCall> deferredCalls() noexcept;

}  // namespace cutline
