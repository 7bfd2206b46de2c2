// A module of a program, and no plug-in.
#include <cstdint>

extern "C" {
__attribute__((visibility("default"))) std::uint32_t TestModuleAbi() noexcept { return 7; }
__attribute__((visibility("default"))) int TestModuleAnswer() noexcept { return 42; }
}
