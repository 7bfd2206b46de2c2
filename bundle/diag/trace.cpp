// Traces of entry and exit.
#include <cstdarg>
#include <span>
#include <string>

#include "bundle/diag/CArguments.h"
#include "bundle/diag/diagnostics.h"
#include "bundle/diag/messages.h"
#include "bundle/format/SafeFormat.h"

namespace {

using cutline::Describable;
using cutline::FormatArgument;
using cutline::FormatArguments;

std::string traceFormat(const char* marker, const Describable* object, const char* format) {
  if (!object) return cutline::safeFormat("%@ %@", {marker, format});
  return cutline::safeFormat("%@ self(%@) %@", {marker, object, format});
}

void trace(const char* marker, const Describable* object, const char* format,
           FormatArguments arguments) noexcept {
  cutline::quietly([&] { cutline::logMessage(traceFormat(marker, object, format), arguments); });
}

// Only the caller's own format says what is on the list: what a description asks for besides may
// not be there. So its conversions use up the caller's arguments, and those without one are
// "(null)".
void traceList(const char* marker, const void* object, const char* format, va_list list) noexcept {
  cutline::quietly([&] {
    const std::string whole = traceFormat(marker, static_cast<const Describable*>(object), format);
    const auto taken = cutline::argumentsOf(format ? format : "", list);
    cutline::logMessage(whole, std::span<const FormatArgument>(taken));
  });
}

}  // namespace

namespace cutline {

void PDEProlog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("BEGIN", object, format, arguments);
}

void PDEEpilog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("END", object, format, arguments);
}

void PDELog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("LOG", object, format, arguments);
}

}  // namespace cutline

void _PDEProlog(const void* object, const char* format, ...) noexcept {
  va_list list;
  va_start(list, format);
  traceList("BEGIN", object, format, list);
  va_end(list);
}

void _PDEEpilog(const void* object, const char* format, ...) noexcept {
  va_list list;
  va_start(list, format);
  traceList("END", object, format, list);
  va_end(list);
}

void _PDELog(const void* object, const char* format, ...) noexcept {
  va_list list;
  va_start(list, format);
  traceList("LOG", object, format, list);
  va_end(list);
}
