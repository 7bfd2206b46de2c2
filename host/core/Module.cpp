#include "host/core/Module.h"

#include <dlfcn.h>

#include "host/core/DocumentRenderer.h"
#include "host/core/Installation.h"

namespace cutline {

namespace {

using AbiFunction = std::uint32_t (*)() noexcept;
using RendererFunction = DocumentRenderer* (*)() noexcept;

Error damaged(const std::string& path, const std::string& reason) {
  return Error{path + ": " + reason + "; install the program again"};
}

}  // namespace

Result<void*> loadModule(const std::string& path, const char* abiSymbol, std::uint32_t abi,
                         const char* symbol) {
  void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) return damaged(path, dlerror());
  const auto askAbi = reinterpret_cast<AbiFunction>(dlsym(module, abiSymbol));
  if (askAbi == nullptr) return damaged(path, std::string("has no ") + abiSymbol);
  if (askAbi() != abi) return damaged(path, "belongs to another version of the program");
  void* address = dlsym(module, symbol);
  if (address == nullptr) return damaged(path, std::string("has no ") + symbol);
  return address;
}

Result<DocumentRenderer*> loadDocumentRenderer(const Installation& installation) {
  const Result<void*> function =
      loadModule(installation.modulePath(kDocumentModuleName), kDocumentAbiSymbol,
                 kDocumentAbiVersion, kDocumentRendererSymbol);
  if (!function) return function.error();
  return reinterpret_cast<RendererFunction>(*function)();
}

}  // namespace cutline
