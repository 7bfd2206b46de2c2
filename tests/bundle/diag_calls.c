/* Calls the diagnostic functions as a C program or a debugger does, by what dlsym gave. */
#include "tests/bundle/diag_calls.h"

#include <stddef.h>

void callTraces(const struct Diagnostics* functions) {
  functions->log(NULL, "x=%d", 5);
  functions->prolog(NULL, "%s has %ld of %u choices, %.1f%%", "LxHalfCut", 3L, 4U, 75.0);
  functions->epilog(NULL, "%c%p", 'A', (void*)0x10);
  functions->log(NULL, "no conversion");
  functions->log(NULL, NULL);
}

void callTraceOf(const struct Diagnostics* functions, const void* object) {
  functions->log(object, "x=%d", 5);
}

void callWithEveryLength(const struct Diagnostics* functions) {
  functions->log(NULL, "%hhd %hd %d %ld %lld %jd %zd %td", 257, 65537, -1, -2L, -3LL, (intmax_t)-4,
                 (size_t)5, (ptrdiff_t)-6);
  functions->log(NULL, "%x %lx %llo %zu", 255U, 1L << 40, 8LL, (size_t)7);
  functions->log(NULL, "%g %Lg %e", 0.5, 0.25L, 1e3);
}

void callWithStars(const struct Diagnostics* functions) {
  functions->log(NULL, "[%*d] [%-*d] [%.*f] [%*.*s]", 4, 7, 4, 7, 2, 1.5, 5, 2, "text");
}

void callWithOddTexts(const struct Diagnostics* functions) {
  static const char unterminated[3] = {'a', 'b', 'c'};
  int count = 77;
  functions->log(NULL, "%.3s|%@|%s|%ls", unterminated, "object", (char*)NULL, L"wide");
  functions->log(NULL, "%s%n%d", "no count", &count, count);
  functions->log(NULL, "%y %d %", 1);
}

void callStreams(const struct Diagnostics* functions, int descriptor) {
  functions->debugLog(0, "x=%d", 5);
  functions->debugLog(1, "silent %s", (char*)1);
  functions->debugLog(0, NULL);
  functions->debugLogFd(0, descriptor, "%s=%lu", "y", 6UL);
  functions->debugLogFd(1, descriptor, "silent %s", (char*)1);
  functions->debugLogFd(0, descriptor, NULL);
}

void callDumps(const struct Diagnostics* functions, int descriptor) {
  static const unsigned char bytes[] = {0x01, 0xAB, 0xFF};
  functions->memoryCheck(0, bytes, 3);
  functions->memoryCheckFd(0, descriptor, bytes, 3);
}
