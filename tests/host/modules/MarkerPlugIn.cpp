// Code that must not run: it leaves a mark as soon as it is loaded. Otherwise both loaders would
// take it, as a plug-in and as a module of the program.
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/ports/PrintDialogPlugIn.h"

namespace {

__attribute__((constructor)) void leaveMark() {
  const char* const marks = std::getenv("CUTLINE_TEST_MARKS");
  if (marks == nullptr) return;
  const int file = ::open(marks, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  static_cast<void>(!::write(file, "x", 1));
  ::close(file);
}

#ifdef CUTLINE_TEST_OTHER_ABI
__attribute__((section("cutline_abi"), used, retain)) constexpr std::uint32_t kOtherAbi =
    cutline::kPlugInAbiVersion + 1;
#endif

}  // namespace

extern "C" {
__attribute__((visibility("default"))) const cutline::PrincipalClassEntry*
CutlinePrincipalClass_TestPlugIn() {
  static const cutline::PrincipalClassEntry entry{cutline::kPlugInAbiVersion, nullptr, nullptr};
  return &entry;
}
__attribute__((visibility("default"))) int TestModuleAnswer() noexcept { return 13; }
}
