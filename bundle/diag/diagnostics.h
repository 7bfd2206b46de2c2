// The diagnostic functions: for use while the plug-in is developed, exported by the bundle under
// their own names, called by none of its code. None reports an error, throws or keeps state; the
// system log is the platform's, and without one nothing is logged.
//
// Text is UTF-8 with a NUL at its end. Where a function takes a format, `arguments` are the
// format's: a typed list, in C++ written as in
//
//     _PDELog(nullptr, "%@ has %d choices", {"LxHalfCut", option->num_choices});
//
// Formats are those of SafeFormat.h: no format and no argument can make a call read or write memory
// that it shouldn't. Characters that are no UTF-8 come out as "?".
//
// Names that begin with an underscore and a capital are reserved to the compiler. Five of the
// functions have had such names from the start and are looked up by them.
#pragma once

#include <cups/ppd.h>

#include "bundle/diag/Describable.h"
#include "bundle/diag/FormatArguments.h"
#include "platform/ports/Printing.h"

#define CUTLINE_DIAGNOSTIC __attribute__((visibility("default")))

extern "C" {

// Traces to the system log: "BEGIN", "END" or "LOG", then "self(DESCRIPTION)" where there is an
// object, then the message. The description becomes a part of the format: a "%" in it is read as a
// conversion. A null format is the format "(null)".
CUTLINE_DIAGNOSTIC void _PDEProlog(const cutline::Describable* object, const char* format,
                                   cutline::FormatArguments arguments) noexcept;
CUTLINE_DIAGNOSTIC void _PDEEpilog(const cutline::Describable* object, const char* format,
                                   cutline::FormatArguments arguments) noexcept;
CUTLINE_DIAGNOSTIC void _PDELog(const cutline::Describable* object, const char* format,
                                cutline::FormatArguments arguments) noexcept;

// Logs an option of the open PPD and its first choice, one message a field. Byte strings are read
// in the system's encoding; one that isn't valid in it is "(null)". The flags "conflicted" and
// "choices->marked" are shown as the bytes that begin at the flag and end at a NUL (a flag of 0
// shows nothing, one of 1 the byte 1 and the keyword behind it), never beyond their record. Of an
// option that the PPD lacks only the first and the last line are logged, of one without choices no
// line on a choice.
CUTLINE_DIAGNOSTIC void _PDELog_ppd_option_t(ppd_file_t* ppd, const char* ppdOptionName) noexcept;

// Writes the settings as an XML property list to the file "/LxPDE_NAME.plist", as settings_file.h
// says. Does nothing where an argument or the data is missing.
CUTLINE_DIAGNOSTIC void _PDELog_PMPrintSettings_WriteToFile(cutline::PMPrintSettings settings,
                                                            const char* name) noexcept;

// The functions below write where `level` is 0 or less. They write with plain writes, until all is
// written or one fails.

// "DEBUG: ", the message up to its first NUL, and a line feed, to standard error. A null format has
// no message and no line feed.
CUTLINE_DIAGNOSTIC void debugLog(int level, const char* format,
                                 cutline::FormatArguments arguments) noexcept;
// The message and a line feed, in two writes; nothing for a null format.
CUTLINE_DIAGNOSTIC void debugLogFd(int level, int descriptor, const char* format,
                                   cutline::FormatArguments arguments) noexcept;

// A hex dump to standard error: "DEBUG:" and up to 32 digits for each 16 bytes, without line feeds.
// A count that is a multiple of 16 ends in one more "DEBUG:" without digits.
CUTLINE_DIAGNOSTIC void memoryCheck(int level, const void* bytes, int count) noexcept;
// A hex dump to the descriptor: lines of up to 32 digits, each with a line feed.
CUTLINE_DIAGNOSTIC void memoryCheckFd(int level, int descriptor, const void* bytes,
                                      int count) noexcept;

}  // extern "C"
