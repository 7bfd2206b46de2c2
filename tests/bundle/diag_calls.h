/* Calls of the diagnostic functions out of C. */
#pragma once

#include <stdint.h>

#include "bundle/diag/diagnostics.h"

#ifdef __cplusplus
extern "C" {
#endif

struct Diagnostics {
  void (*prolog)(const void* object, const char* format, ...);
  void (*epilog)(const void* object, const char* format, ...);
  void (*log)(const void* object, const char* format, ...);
  void (*debugLog)(int level, const char* format, ...);
  void (*debugLogFd)(int level, int descriptor, const char* format, ...);
  void (*memoryCheck)(int level, const void* bytes, int count);
  void (*memoryCheckFd)(int level, int descriptor, const void* bytes, int count);
};

void callTraces(const struct Diagnostics* functions);
void callTraceOf(const struct Diagnostics* functions, const void* object);
void callWithEveryLength(const struct Diagnostics* functions);
void callWithStars(const struct Diagnostics* functions);
void callWithOddTexts(const struct Diagnostics* functions);
void callStreams(const struct Diagnostics* functions, int descriptor);
void callDumps(const struct Diagnostics* functions, int descriptor);

#ifdef __cplusplus
}
#endif
