// Status codes of the platform's calls: 0 is success, everything else an error.
#pragma once

#include <cstdint>

namespace cutline {

using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kPMGeneralError = -30870;
inline constexpr OSStatus kPMNoSuchEntry = -30874;
inline constexpr OSStatus kPMInvalidPrintSettings = -30875;
inline constexpr OSStatus kPMInvalidPageFormat = -30876;
inline constexpr OSStatus kPMValueOutOfRange = -30877;
inline constexpr OSStatus kPMInvalidPrintSession = -30879;
inline constexpr OSStatus kPMInvalidPrinter = -30880;
inline constexpr OSStatus kPMInvalidTicket = -30891;
inline constexpr OSStatus kPMInvalidPaper = -30897;
inline constexpr OSStatus gestaltUndefSelectorErr = -5551;

}  // namespace cutline
