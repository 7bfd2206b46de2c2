#include "host/core/Module.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "host/core/BuildId.h"
#include "host/core/ElfFile.h"
#include "host/core/TrustedFile.h"

namespace cutline {

namespace {

using BuildFunction = const char* (*)() noexcept;

Error damaged(const std::string& path, const std::string& reason) {
  return Error{path + ": " + reason + "; install the program again"};
}

// A module is loaded by its name, so that it finds its libraries beside it; so the folder that it
// is in must be nobody else's, too.
Result<Done> check(const std::string& path) {
  const Result<FileDescriptor> code = openTrusted(path, FileKind::regular);
  if (!code) return code.error();
  const std::string folder = std::filesystem::path(path).parent_path();
  Result<FileDescriptor> directory = openTrusted(folder, FileKind::directory);
  if (directory) directory = belowTrustedFolders(std::move(*directory), folder);
  if (!directory) return directory.error();
  const std::string reason = reasonAgainstCode(*code);
  return reason.empty() ? Result<Done>(Done{}) : damaged(path, reason);
}

// Whether this process takes libc's functions as they are: no sanitizer, no allocator, nothing else
// that was loaded to stand before them.
bool hasPlainLibc() {
  const char* const preloaded = std::getenv("LD_PRELOAD");
  if (preloaded != nullptr && *preloaded != '\0') return false;
  Dl_info allocator{};
  Dl_info libc{};
  return dladdr(dlsym(RTLD_DEFAULT, "malloc"), &allocator) != 0 &&
         dladdr(dlsym(RTLD_DEFAULT, "gnu_get_libc_version"), &libc) != 0 &&
         allocator.dli_fbase == libc.dli_fbase;
}

// A module and the libraries that it brings along find nearly all names among themselves; looked
// for there first, they take half the time. Elsewhere memory of one allocator could come to
// another.
int bindingOrder() { return hasPlainLibc() ? RTLD_DEEPBIND : 0; }

}  // namespace

Result<void*> loadModule(const std::string& path, const char* buildSymbol, const char* symbol) {
  if (Result<Done> checked = check(path); !checked) return checked.error();
  void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | bindingOrder());
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
