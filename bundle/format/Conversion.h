// The conversions of a format, and what hands them their arguments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "bundle/format/FormatArguments.h"

namespace cutline {

// Hands out the arguments of a format one after the other.
class ArgumentReader {
 public:
  explicit ArgumentReader(FormatArguments arguments) noexcept : mArguments(arguments) {}

  // Null when none is left.
  const FormatArgument* next() noexcept { return mArguments.at(mNext++); }

  // The next argument as the number that a "*" stands for; nothing when it is no integer.
  std::optional<int> nextNumber() noexcept {
    const FormatArgument* argument = next();
    const auto integer = argument ? argument->integer() : std::nullopt;
    if (!integer) return std::nullopt;
    return static_cast<int>(static_cast<std::uint32_t>(*integer));
  }

 private:
  FormatArguments mArguments;
  std::size_t mNext = 0;
};

// One conversion of a format, as in "%-08.3lx", taken apart.
struct Conversion {
  bool leftAligned = false;  // "-"
  bool signAlways = false;   // "+"
  bool signBlank = false;    // " "
  bool alternative = false;  // "#"
  bool zeroPadded = false;   // "0"
  int width = 0;             // in characters
  std::optional<int> precision;
  int bits = 32;              // of an integer, by its length modifier
  char type = '\0';           // the letter; NUL where the format ends before it
  std::string_view spelling;  // as it stands in the format
};

// The flags that change what is printed.
struct ConversionFlag {
  char letter;
  bool Conversion::*field;
};
inline constexpr ConversionFlag kConversionFlags[] = {{'-', &Conversion::leftAligned},
                                                      {'+', &Conversion::signAlways},
                                                      {' ', &Conversion::signBlank},
                                                      {'#', &Conversion::alternative},
                                                      {'0', &Conversion::zeroPadded}};

// Takes the conversion at the start of the format, which is a "%", off the format. The arguments
// are asked for a width or precision of "*"; one that is no integer counts as not given.
Conversion readConversion(std::string_view& format, ArgumentReader& arguments) noexcept;

}  // namespace cutline
