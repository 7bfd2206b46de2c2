// Of the driver under sanitizers: libcups 2.4.2 loses a few bytes when it marks print-quality or
// media.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() { return "leak:libcups.so\n"; }
