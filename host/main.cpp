// The program is a library, which stands on some forty others. This loads it, and has a composer
// started first, so that both load at the same time. It needs the C library alone.
#include <dlfcn.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>

#include "host/EarlyComposer.h"
#include "host/OwnPart.h"
#include "host/core/Program.h"
#include "lean/LeanParts.h"

namespace {

using ProgramFunction = decltype(&CutlineRunProgram);

// By its path, since nobody may put another in its place. As if it had been linked: each library is
// bound as it says itself, and modules and bundles find what the program has.
void* loadProgram() {
  // Of the names that a library looks up most are this one's own: it is bound while few are loaded.
  ::dlopen("libstdc++.so.6", RTLD_LAZY | RTLD_GLOBAL);
  char path[PATH_MAX];
  // The program takes the one of that name which is there.
  if (cutline::mayBeLean(cutline::LeanPart::printLibrary) &&
      cutline::findOwnPart(cutline::kLeanPrintLibrary, path))
    ::dlopen(path, RTLD_LAZY | RTLD_GLOBAL);
  if (!cutline::findOwnPart(cutline::kProgramLibrary, path)) return nullptr;
  return ::dlopen(path, RTLD_LAZY | RTLD_GLOBAL);
}

int cannotLoad() {
  const char* const reason = ::dlerror();
  std::fprintf(stderr, "cutline: a part of the program cannot be loaded: %s\n",
               reason != nullptr ? reason : "no reason is known");
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  // Threads beside the dialog live for a moment, and share what they need; this one must not wait
  // for them with each piece of memory.
  ::mallopt(M_ARENA_MAX, 2);
  cutline::WaitingHelper composer;
  const bool isEarly = cutline::startEarlyComposer(argc, argv, composer);
  void* const library = loadProgram();
  if (library == nullptr) return cannotLoad();
  void* const run = ::dlsym(library, cutline::kProgramRunSymbol);
  if (run == nullptr) return cannotLoad();
  return reinterpret_cast<ProgramFunction>(run)(argc, argv, isEarly ? &composer : nullptr);
}
