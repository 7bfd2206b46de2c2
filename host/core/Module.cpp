#include "host/core/Module.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <utility>

#include "host/core/BuildId.h"
#include "host/core/CodeFacts.h"
#include "host/core/ElfFile.h"
#include "host/core/TrustedFile.h"

namespace cutline {

namespace {

Error damaged(const std::string& path, const std::string& reason) {
  return Error{path + ": " + reason + "; install the program again"};
}

Result<FileDescriptor> openModule(const std::string& path) {
  const std::filesystem::path file = path;
  const std::string folder = file.parent_path();
  const Result<FileDescriptor> directory = openTrustedFolder(folder);
  if (!directory) return directory.error();
  return openTrustedIn(*directory, file.filename().string(), FileKind::regular, folder);
}

// Why the module is not loaded; empty when it is.
std::string reasonAgainstModule(const FileDescriptor& code, const char* symbol) {
  std::string reason = reasonAgainstCode(code);
  if (!reason.empty()) return reason;
  const std::string build = buildId();
  if (codeSection(code, kBuildIdSection) != build + '\0')
    return "belongs to another build of the program";
  return offersSymbol(code, symbol) ? std::string() : std::string("has no ") + symbol;
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

Result<void*> loadModule(const std::string& path, const char* symbol) {
  Result<FileDescriptor> code = openModule(path);
  if (!code) return code.error();
  const std::string reason = reasonAgainstModule(*code, symbol);
  if (!reason.empty()) return damaged(path, reason);
  const Result<void*> module = loadCode(std::move(*code), bindingOrder());
  if (!module) return damaged(path, module.error().message);
  return dlsym(*module, symbol);
}

}  // namespace cutline
