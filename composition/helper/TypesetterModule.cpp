#include "composition/helper/TypesetterModule.h"

#include <dlfcn.h>

#include <filesystem>

#include "composition/typeset/Typesetter.h"

namespace cutline {

Typesetter* loadedTypesetter() {
  std::error_code problem;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", problem);
  if (problem) return nullptr;
  const std::filesystem::path path = program.parent_path() / kTypesetModuleName;
  void* module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* function = module ? ::dlsym(module, kTypesetterSymbol) : nullptr;
  return function ? reinterpret_cast<Typesetter* (*)()>(function)() : nullptr;
}

}  // namespace cutline
