// A module of a program, and no plug-in.
#include "host/core/BuildId.h"

extern "C" {
__attribute__((visibility("default"))) const char* TestModuleBuild() noexcept {
  return cutline::buildId();
}
__attribute__((visibility("default"))) const char* TestModuleOtherBuild() noexcept {
  return "0123456789abcdef";
}
__attribute__((visibility("default"))) int TestModuleAnswer() noexcept { return 42; }
}
