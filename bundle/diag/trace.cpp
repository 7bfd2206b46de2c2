// Traces of entry and exit.
#include <string>

#include "bundle/diag/SafeFormat.h"
#include "bundle/diag/diagnostics.h"
#include "bundle/diag/quietly.h"
#include "bundle/diag/system_log.h"

namespace {

using cutline::Describable;
using cutline::FormatArguments;

std::string traceFormat(const char* marker, const Describable* object, const char* format) {
  if (!object) return cutline::safeFormat("%@ %@", {marker, format});
  return cutline::safeFormat("%@ self(%@) %@", {marker, object, format});
}

void trace(const char* marker, const Describable* object, const char* format,
           FormatArguments arguments) noexcept {
  cutline::quietly([&] { cutline::logMessage(traceFormat(marker, object, format), arguments); });
}

}  // namespace

void _PDEProlog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("BEGIN", object, format, arguments);
}

void _PDEEpilog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("END", object, format, arguments);
}

void _PDELog(const Describable* object, const char* format, FormatArguments arguments) noexcept {
  trace("LOG", object, format, arguments);
}
