// The diagnostic functions as a debugger finds them: by name in the staged module.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "bundle/diag/diagnostics.h"
#include "tests/bundle/DiagOutput.h"

namespace cutline::test {

// As in diagnostic<decltype(debugLog)>("debugLog"); null, and a failure, where the module has none.
template <typename Function>
Function* diagnostic(const char* name) {
  static void* const module = dlopen(CUTLINE_MODULE, RTLD_NOW | RTLD_LOCAL);
  void* const found = module ? dlsym(module, name) : nullptr;
  EXPECT_TRUE(found) << dlerror();
  return reinterpret_cast<Function*>(found);
}

}  // namespace cutline::test
