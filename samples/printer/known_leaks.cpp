// Of the driver under sanitizers: libcups 2.4.2 loses the presets that it makes of a PPD when
// print-quality or media is marked.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() { return "leak:libcups.so\n"; }
