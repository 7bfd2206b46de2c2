// Messages and hex dumps to standard error and to file descriptors.
#include <unistd.h>

#include <algorithm>
#include <cstdarg>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileDescriptor.h"
#include "bundle/diag/CArguments.h"
#include "bundle/diag/diagnostics.h"
#include "bundle/diag/messages.h"
#include "bundle/format/SafeFormat.h"

namespace {

using cutline::FormatArguments;
using cutline::quietly;
using cutline::safeFormat;

constexpr std::size_t kBytesPerLine = 16;

void writeText(int descriptor, std::string_view text) noexcept {
  cutline::writeAll(descriptor, text.data(), text.size());
}

bool isSilent(int level) noexcept { return level >= 1; }

// The arguments of a call that prints something.
std::vector<cutline::FormatArgument> listOf(int level, const char* format, va_list list) {
  if (isSilent(level) || !format) return {};
  return cutline::argumentsOf(format, list);
}

std::span<const unsigned char> dumpedBytes(const void* bytes, int count) noexcept {
  if (!bytes || count <= 0) return {};
  return {static_cast<const unsigned char*>(bytes), static_cast<std::size_t>(count)};
}

// Calls print(digits) for each 16 bytes and for what is left.
template <typename Print>
void dumpLines(std::span<const unsigned char> bytes, const Print& print) {
  while (!bytes.empty()) {
    const auto line = bytes.first(std::min(bytes.size(), kBytesPerLine));
    std::string digits;
    for (const unsigned char byte : line) digits += safeFormat("%02hhx", {byte});
    print(digits);
    bytes = bytes.subspan(line.size());
  }
}

void printDump(const std::string& digits) {
  writeText(STDERR_FILENO, safeFormat("DEBUG:%s", {digits}));
}

}  // namespace

namespace cutline {

void debugLog(int level, const char* format, FormatArguments arguments) noexcept {
  if (isSilent(level)) return;
  writeText(STDERR_FILENO, "DEBUG: ");
  if (!format) return;
  // The line is printed as a NUL-terminated string.
  quietly([&] {
    writeText(STDERR_FILENO, formattedMessage(format, arguments).c_str() + std::string("\n"));
  });
}

void debugLogFd(int level, int descriptor, const char* format, FormatArguments arguments) noexcept {
  if (isSilent(level) || !format) return;
  quietly([&] {
    writeText(descriptor, formattedMessage(format, arguments));
    writeText(descriptor, "\n");
  });
}

}  // namespace cutline

void debugLog(int level, const char* format, ...) noexcept {
  va_list list;
  va_start(list, format);
  quietly([&] {
    cutline::debugLog(level, format,
                      std::span<const cutline::FormatArgument>(listOf(level, format, list)));
  });
  va_end(list);
}

void debugLogFd(int level, int descriptor, const char* format, ...) noexcept {
  va_list list;
  va_start(list, format);
  quietly([&] {
    cutline::debugLogFd(level, descriptor, format,
                        std::span<const cutline::FormatArgument>(listOf(level, format, list)));
  });
  va_end(list);
}

void memoryCheck(int level, const void* bytes, int count) noexcept {
  if (isSilent(level)) return;
  const auto dumped = dumpedBytes(bytes, count);
  quietly([&] {
    dumpLines(dumped, printDump);
    // What is left behind the last line is printed even when it is nothing.
    if (!dumped.empty() && dumped.size() % kBytesPerLine == 0) printDump("");
  });
}

void memoryCheckFd(int level, int descriptor, const void* bytes, int count) noexcept {
  if (isSilent(level)) return;
  quietly([&] {
    dumpLines(dumpedBytes(bytes, count),
              [&](const std::string& digits) { writeText(descriptor, digits + "\n"); });
  });
}
