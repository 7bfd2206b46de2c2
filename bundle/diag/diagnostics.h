/* The diagnostic functions: for use while the plug-in is developed, exported by the bundle under
 * their own names, called by none of its code. They can be called from C, from a debugger, as in
 *
 *     call (void)debugLog(0, "x=%d", 5)
 *
 * and from C++, where each that takes a format has a typed form in the namespace, too. None reports
 * an error, throws or keeps state; the system log is the platform's, and without one nothing is
 * logged.
 *
 * Text is UTF-8 with a NUL at its end. Formats are those of SafeFormat.h; nothing in them writes
 * memory. As everywhere in C, the arguments must be those that the format names: of a conversion
 * "%@" in C it is a text, as of "%s". An object of the bundle is the first argument of a trace: a
 * pointer to cutline::Describable, into which a debugger that knows its type turns a panel, a
 * choice, a preview or another of the bundle's objects. Characters that are no UTF-8 come out as
 * "?".
 *
 * Names that begin with an underscore and a capital are reserved to the compiler. Five of the
 * functions have had such names from the start and are looked up by them. */
#pragma once

#include <cups/ppd.h>

#ifdef __cplusplus
#include "bundle/format/Describable.h"
#include "bundle/format/FormatArguments.h"
#include "platform/ports/Printing.h"
#define CUTLINE_NOEXCEPT noexcept
extern "C" {
#else
#define CUTLINE_NOEXCEPT
#endif

#define CUTLINE_DIAGNOSTIC __attribute__((visibility("default")))

/* Traces to the system log: "BEGIN", "END" or "LOG", then "self(DESCRIPTION)" where there is an
 * object, then the message. The description becomes a part of the format: a "%" in it is read as a
 * conversion. The arguments are those that the format of the call names; the description's
 * conversions use them up from the first, and a conversion that none is left for is "(null)". A
 * null format is the format "(null)". */
CUTLINE_DIAGNOSTIC void _PDEProlog(const void* object, const char* format, ...) CUTLINE_NOEXCEPT;
CUTLINE_DIAGNOSTIC void _PDEEpilog(const void* object, const char* format, ...) CUTLINE_NOEXCEPT;
CUTLINE_DIAGNOSTIC void _PDELog(const void* object, const char* format, ...) CUTLINE_NOEXCEPT;

/* Logs an option of the open PPD and its first choice, one message a field. Byte strings are read
 * in the system's encoding; one that isn't valid in it is "(null)". The flags "conflicted" and
 * "choices->marked" are shown as the bytes that begin at the flag and end at a NUL (a flag of 0
 * shows nothing, one of 1 the byte 1 and the keyword behind it), never beyond their record. Of an
 * option that the PPD lacks only the first and the last line are logged, of one without choices no
 * line on a choice. */
CUTLINE_DIAGNOSTIC void _PDELog_ppd_option_t(ppd_file_t* ppd,
                                             const char* ppdOptionName) CUTLINE_NOEXCEPT;

#ifdef __cplusplus
/* Writes the settings as an XML property list to the file "/LxPDE_NAME.plist", as settings_dump.h
 * says. Does nothing where an argument or the data is missing. */
CUTLINE_DIAGNOSTIC void _PDELog_PMPrintSettings_WriteToFile(cutline::PMPrintSettings settings,
                                                            const char* name) noexcept;
#endif

/* The functions below write where `level` is 0 or less. They write with plain writes, until all is
 * written or one fails. */

/* "DEBUG: ", the message up to its first NUL, and a line feed, to standard error. A null format has
 * no message and no line feed. */
CUTLINE_DIAGNOSTIC void debugLog(int level, const char* format, ...) CUTLINE_NOEXCEPT;
/* The message and a line feed, in two writes; nothing for a null format. */
CUTLINE_DIAGNOSTIC void debugLogFd(int level, int descriptor, const char* format,
                                   ...) CUTLINE_NOEXCEPT;

/* A hex dump to standard error: "DEBUG:" and up to 32 digits for each 16 bytes, without line feeds.
 * A count that is a multiple of 16 ends in one more "DEBUG:" without digits. */
CUTLINE_DIAGNOSTIC void memoryCheck(int level, const void* bytes, int count) CUTLINE_NOEXCEPT;
/* A hex dump to the descriptor: lines of up to 32 digits, each with a line feed. */
CUTLINE_DIAGNOSTIC void memoryCheckFd(int level, int descriptor, const void* bytes,
                                      int count) CUTLINE_NOEXCEPT;

#ifdef __cplusplus
}  // extern "C"

namespace cutline {

// The same with a typed list of arguments, of which a format reads none that isn't there and each
// as what it is, written as in
//
//     PDELog(this, "%@ has %d choices", {*choice, option->num_choices});
//
// A "%@" prints an object's description, or a text.
void PDEProlog(const Describable* object, const char* format, FormatArguments arguments) noexcept;
void PDEEpilog(const Describable* object, const char* format, FormatArguments arguments) noexcept;
void PDELog(const Describable* object, const char* format, FormatArguments arguments) noexcept;
void debugLog(int level, const char* format, FormatArguments arguments) noexcept;
void debugLogFd(int level, int descriptor, const char* format, FormatArguments arguments) noexcept;

}  // namespace cutline
#endif
