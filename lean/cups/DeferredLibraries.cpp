// The libraries that the print library seldom needs, each loaded when a function of it is called
// first: what encrypts connections, what Kerberos asks for, what finds printers on the network.
#include <dlfcn.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include "lean/cups/DeferredCalls.h"
#include "lean/cups/ServiceName.h"

extern "C" {

// Where each function goes; one number for both.
extern void* cutlineDeferredSlots[];
void* cutlineDeferredCall(std::size_t number) noexcept;
int gnutls_global_init();
extern const cutline::ObjectIdentifier* const GSS_C_NT_HOSTBASED_SERVICE;

// What is called for the first time; the process ends without it, as it would not have begun if
// the library had been linked. Threads may ask at once, and get the same.
void* cutlineDeferredCall(std::size_t number) noexcept {
  const cutline::DeferredCall& call = cutline::deferredCalls().data()[number];
  void* const library = ::dlopen(call.library, RTLD_NOW | RTLD_LOCAL);
  void* const function = library != nullptr ? ::dlsym(library, call.name) : nullptr;
  if (function == nullptr) {
    std::fprintf(stderr, "%s\n", ::dlerror());
    std::abort();
  }
  __atomic_store_n(&cutlineDeferredSlots[number], function, __ATOMIC_RELEASE);
  return function;
}

// Called for every connection, encrypted or not; the library begins by itself once it is loaded.
int gnutls_global_init() { return 0; }

const cutline::ObjectIdentifier* const GSS_C_NT_HOSTBASED_SERVICE = &cutline::kServiceName;

}  // extern "C"
