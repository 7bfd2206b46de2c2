// What a panel wants to know of the print session: the tape's length and paper name, the tape
// state, the page range; and the units that go with them.
#pragma once

#include <cups/ppd.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/Printing.h"
#include "platform/ports/System.h"

namespace cutline {

// The length of a tape that cannot be determined, in millimetres.
inline constexpr double kDefaultTapeLength = 100.0;
inline constexpr double kInchesPerMillimetre = 0.0393701;
inline constexpr double kPointsPerInch = 72.0;

// The key of the private settings ticket, a property list in XML form, and its entry with the
// paper's name.
inline constexpr char kPrintSettingsTicketKey[] = "org.cutline.print.PrintSettingsTicket.KmR3";
inline constexpr char kTicketPaperNameKey[] = "KmPaperName2";

struct TapeInfo {
  double tapeLength = kDefaultTapeLength;  // in millimetres
  std::int32_t tapeState = 0;  // 1 on one of the PPD's sizes named "DC…" or "AV…", else 0
  std::optional<std::string> paperName;  // nothing when unknown
};

struct PageRange {
  std::int32_t firstPage = 0;
  std::int32_t lastPage = 0;
};

// Rounded half away from zero. The value must fit a long.
long RoundDouble(double value) noexcept;
double MiriToInch(double millimetres) noexcept;
double InchToMiri(double inches) noexcept;

// Fills `info` from the page format's paper, or the name from the ticket when the paper has none.
// Answers the status of the platform call that failed; `info` then keeps its defaults, though a
// name may be set already.
OSStatus GetTapeInfo(PMPrintSession session, PMPrintSettings settings, PMPageFormat format,
                     ppd_file_t* ppd, TapeInfo* info) noexcept;

// Sets only the paper name, from the ticket in the settings. The first argument is ignored; the
// answer is always 0.
OSStatus GetTapeInfo2(PMPrintSession session, PMPrintSettings settings, TapeInfo* info) noexcept;

// Reads a number of the session. kPMInvalidTicket when there is none; `number` is then left alone.
OSStatus GetTicketFromSession(PMPrintSession session, const std::string& key,
                              std::int32_t* number) noexcept;

// Reads the page range and writes each bound back as it is, which normalises the range in the
// settings. Only the last page's statuses count.
OSStatus GetTapeInfo3(PMPrintSettings settings, PageRange* range) noexcept;

// The PPD name of the page format's paper; empty when it cannot be read, has none, or is longer
// than 255 bytes.
std::string paperNameOfPageFormat(PMPageFormat format) noexcept;

// Media whose names begin so have a length of their own: no blank space can be removed from them.
constexpr bool beginsWithDCOrAV(std::string_view paperName) noexcept {
  return paperName.starts_with("DC") || paperName.starts_with("AV");
}

// On media whose name begins so tape must not be cut automatically.
constexpr bool beginsWithHS(std::string_view paperName) noexcept {
  return paperName.starts_with("HS");
}

}  // namespace cutline
