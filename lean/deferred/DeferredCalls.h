// The functions that wait for their library: the first call of each loads it.
#pragma once

#include <cstddef>
#include <cstring>

namespace cutline {

// A name and its library's for each, in the order of their slots, and a null character behind every
// one of them: pointers would have to be filled in wherever the library is loaded, called or not.
extern const char kDeferredCalls[];
extern const std::size_t kDeferredCallCount;

struct DeferredCall {
  const char* name;
  const char* library;
};

// `number` is below the count.
inline DeferredCall deferredCall(std::size_t number) noexcept {
  const char* name = kDeferredCalls;
  for (std::size_t word = 0; word < 2 * number; ++word) name += std::strlen(name) + 1;
  return {name, name + std::strlen(name) + 1};
}

}  // namespace cutline
