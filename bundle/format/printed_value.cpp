#include "bundle/format/printed_value.h"

#include <locale.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace cutline {
namespace {

constexpr std::string_view kNoValue = "(null)";
constexpr int kNoPrecision = -1;  // as the C library takes it for "*"
constexpr int kBits = 64;         // of an argument

// Whether the byte begins a character of UTF-8 text.
bool beginsCharacter(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

std::string padded(const Conversion& conversion, std::string text) {
  const auto characters = std::count_if(text.begin(), text.end(), beginsCharacter);
  const auto missing = std::min(conversion.width, kMostColumns) - characters;
  const std::string blanks(static_cast<std::size_t>(std::max<std::ptrdiff_t>(missing, 0)), ' ');
  return conversion.leftAligned ? text + blanks : blanks + text;
}

// The first characters of the text, as many as the precision says.
std::string_view cut(const Conversion& conversion, std::string_view text) noexcept {
  if (!conversion.precision) return text;
  int left = *conversion.precision;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (beginsCharacter(text[i]) && left-- == 0) return text.substr(0, i);
  }
  return text;
}

// Numbers look the same whatever language the process speaks.
class NeutralLocale {
 public:
  NeutralLocale() noexcept : mBefore(uselocale(neutral())) {}
  ~NeutralLocale() { uselocale(mBefore); }
  NeutralLocale(const NeutralLocale&) = delete;
  NeutralLocale& operator=(const NeutralLocale&) = delete;

 private:
  // Made once, for as long as the process lives.
  static locale_t neutral() noexcept {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
  }
  locale_t mBefore;
};

// What the C library defines for a kind of number: elsewhere a flag may do anything.
constexpr std::string_view kFlagsOfSigned = "-+ 0";
constexpr std::string_view kFlagsOfDecimal = "-0";
constexpr std::string_view kFlagsOfBits = "-#0";
constexpr std::string_view kFlagsOfReal = "-+ #0";

// The format is made here, of flags from a table and a type that goes with the value.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
// The number as the C library prints it by the conversion's defined flags, its width and its
// precision. `lengthAndType` are those of Number.
template <typename Number>
std::string printed(const Conversion& conversion, std::string_view definedFlags,
                    std::string_view lengthAndType, Number value) {
  std::string format = "%";
  for (const ConversionFlag& flag : kConversionFlags) {
    if (conversion.*flag.field && definedFlags.find(flag.letter) != definedFlags.npos)
      format += flag.letter;
  }
  format.append("*.*").append(lengthAndType);
  const NeutralLocale neutral;
  const int width = std::min(conversion.width, kMostColumns);
  const int precision = std::min(conversion.precision.value_or(kNoPrecision), kMostColumns);
  const int size = std::snprintf(nullptr, 0, format.c_str(), width, precision, value);
  std::string text(static_cast<std::size_t>(std::max(size, 0)), '\0');
  // The place behind a string's last character is there for a NUL.
  std::snprintf(text.data(), text.size() + 1, format.c_str(), width, precision, value);
  return text;
}
#pragma GCC diagnostic pop

// Each printer answers nothing when the argument is of another kind than its conversion's.

// Of an integer, the lowest bits, as many as the conversion reads.
std::optional<std::string> printSigned(const Conversion& conversion, const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  const int unread = kBits - conversion.bits;
  const std::intmax_t value = static_cast<std::int64_t>(*integer << unread) >> unread;
  return printed(conversion, kFlagsOfSigned, "jd", value);
}

std::optional<std::string> printUnsigned(const Conversion& conversion, const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  const int unread = kBits - conversion.bits;
  const std::uintmax_t value = (*integer << unread) >> unread;
  const auto flags = conversion.type == 'u' ? kFlagsOfDecimal : kFlagsOfBits;
  return printed(conversion, flags, std::string("j") + conversion.type, value);
}

// The character of a code point below 256; others have no place in a byte.
std::optional<std::string> printCharacter(const Conversion& conversion,
                                          const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  const auto code = static_cast<unsigned char>(*integer);
  if (code < 0x80) return padded(conversion, std::string(1, static_cast<char>(code)));
  return padded(conversion, {static_cast<char>(0xC0U | (code >> 6U)),
                             static_cast<char>(0x80U | (code & 0x3FU))});
}

// The value with as many digits as a general conversion shows. The C library's "%#g" drops the
// zeros of one that it rounds up to a power of ten; it does not of one that is a power of ten.
double roundedForGeneral(const Conversion& conversion, double value) {
  constexpr int kUsualDigits = 6;
  Conversion scientific;
  scientific.precision = std::max(conversion.precision.value_or(kUsualDigits), 1) - 1;
  const std::string text = printed(scientific, "", "e", value);
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

std::optional<std::string> printReal(const Conversion& conversion, const FormatArgument& from) {
  const auto real = from.real();
  if (!real) return std::nullopt;
  const bool general = conversion.type == 'g' || conversion.type == 'G';
  const bool allZeros = general && conversion.alternative;
  const double value = allZeros ? roundedForGeneral(conversion, *real) : *real;
  return printed(conversion, kFlagsOfReal, std::string_view(&conversion.type, 1), value);
}

// In hexadecimal digits behind "0x", null too.
std::optional<std::string> printPointer(const Conversion& conversion, const FormatArgument& from) {
  const auto address = from.address();
  if (!address) return std::nullopt;
  if (!*address) return padded(conversion, "0x0");
  Conversion digits = conversion;
  digits.alternative = true;
  digits.precision.reset();
  const auto value = static_cast<std::uintmax_t>(reinterpret_cast<std::uintptr_t>(*address));
  return printed(digits, kFlagsOfBits, "jx", value);
}

std::optional<std::string> printText(const Conversion& conversion, const FormatArgument& from) {
  const auto text = from.text();
  if (!text) return std::nullopt;
  return padded(conversion, std::string(cut(conversion, *text)));
}

// An object, or a text as the object that it is.
std::optional<std::string> printDescription(const Conversion& conversion,
                                            const FormatArgument& from) {
  const Describable* object = from.object();
  if (!object) return printText(conversion, from);
  return padded(conversion, std::string(cut(conversion, object->description())));
}

using Printer = std::optional<std::string> (*)(const Conversion&, const FormatArgument&);

struct PrinterOfTypes {
  std::string_view types;
  Printer print;
};
constexpr PrinterOfTypes kPrinters[] = {
    {"@", printDescription}, {"s", printText},      {"di", printSigned}, {"uoxX", printUnsigned},
    {"c", printCharacter},   {"fFeEgG", printReal}, {"p", printPointer},
};

Printer printerOf(char type) noexcept {
  for (const PrinterOfTypes& row : kPrinters) {
    if (row.types.find(type) != row.types.npos) return row.print;
  }
  return nullptr;
}

}  // namespace

bool printsArgument(char type) noexcept { return printerOf(type) != nullptr; }

std::string printedValue(const Conversion& conversion, const FormatArgument* argument) {
  const Printer print = printerOf(conversion.type);
  const auto text = print && argument ? print(conversion, *argument) : std::nullopt;
  return text ? *text : padded(conversion, std::string(kNoValue));
}

}  // namespace cutline
