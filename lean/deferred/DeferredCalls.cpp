#include "lean/deferred/DeferredCalls.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

extern "C" {

// Where each function goes, null at first; one number for both.
extern void* cutlineDeferredSlots[];
void* cutlineDeferredCall(std::size_t number) noexcept;

// What is called for the first time; the process ends without it, as it would not have begun if
// the library had been linked. Threads may ask at once, and get the same.
void* cutlineDeferredCall(std::size_t number) noexcept {
  const cutline::DeferredCall call = cutline::deferredCall(number);
  void* const library = ::dlopen(call.library, RTLD_NOW | RTLD_LOCAL);
  void* const function = library != nullptr ? ::dlsym(library, call.name) : nullptr;
  if (function == nullptr) {
    std::fprintf(stderr, "%s\n", ::dlerror());
    std::abort();
  }
  __atomic_store_n(&cutlineDeferredSlots[number], function, __ATOMIC_RELEASE);
  return function;
}

}  // extern "C"
