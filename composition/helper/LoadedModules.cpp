#include "composition/helper/LoadedModules.h"

#include <dlfcn.h>

#include <filesystem>

#include "composition/reader/PictureReader.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {
namespace {

// What the module's one function answers.
template <typename Made>
Made* loaded(const char* name, const char* symbol) {
  std::error_code problem;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", problem);
  if (problem) return nullptr;
  const std::filesystem::path path = program.parent_path() / name;
  void* module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* function = module ? ::dlsym(module, symbol) : nullptr;
  return function ? reinterpret_cast<Made* (*)()>(function)() : nullptr;
}

}  // namespace

void loadModule(DocumentKind kind, ReaderModules& modules) {
  if (!modules.typesetter && needsTypesetter(kind))
    modules.typesetter = loaded<Typesetter>(kTypesetModuleName, kTypesetterSymbol);
  if (!modules.pictures && needsPictureReader(kind))
    modules.pictures = loaded<PictureReader>(kPictureReaderModuleName, kPictureReaderSymbol);
}

}  // namespace cutline
