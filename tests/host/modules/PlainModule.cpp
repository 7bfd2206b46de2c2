// A module of the program, and no plug-in.
extern "C" __attribute__((visibility("default"))) int TestModuleAnswer() noexcept { return 42; }
