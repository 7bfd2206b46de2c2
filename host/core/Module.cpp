#include "host/core/Module.h"

#include <dlfcn.h>

#include <string_view>

#include "host/core/BuildId.h"

namespace cutline {

namespace {

using BuildFunction = const char* (*)() noexcept;

Error damaged(const std::string& path, const std::string& reason) {
  return Error{path + ": " + reason + "; install the program again"};
}

}  // namespace

Result<void*> loadModule(const std::string& path, const char* buildSymbol, const char* symbol) {
  void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) return damaged(path, dlerror());
  const auto askBuild = reinterpret_cast<BuildFunction>(dlsym(module, buildSymbol));
  if (askBuild == nullptr) return damaged(path, std::string("has no ") + buildSymbol);
  if (askBuild() != std::string_view(buildId())) {
    return damaged(path, "belongs to another build of the program");
  }
  void* address = dlsym(module, symbol);
  if (address == nullptr) return damaged(path, std::string("has no ") + symbol);
  return address;
}

}  // namespace cutline
