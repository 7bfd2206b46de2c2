#include "bundle/format/printed_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace cutline {
namespace {

constexpr std::string_view kNoValue = "(null)";

// Whether the byte begins a character of UTF-8 text.
bool beginsCharacter(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

std::string inUpperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

// What fills the text up to the width.
std::string fill(const Conversion& conversion, std::string_view text, char with) {
  const auto characters = std::count_if(text.begin(), text.end(), beginsCharacter);
  const auto width = std::min(conversion.width, kMostColumns);
  return std::string(static_cast<std::size_t>(std::max<std::ptrdiff_t>(width - characters, 0)),
                     with);
}

std::string padded(const Conversion& conversion, std::string text) {
  const std::string blanks = fill(conversion, text, ' ');
  return conversion.leftAligned ? text + blanks : blanks + text;
}

// A number: zeros of the padding stand behind its sign or base.
std::string paddedNumber(const Conversion& conversion, const std::string& prefix,
                         const std::string& digits, bool mayHaveZeros) {
  const bool zeros = mayHaveZeros && conversion.zeroPadded && !conversion.leftAligned;
  if (!zeros) return padded(conversion, prefix + digits);
  return prefix + fill(conversion, prefix + digits, '0') + digits;
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

std::string sign(const Conversion& conversion, bool negative) {
  if (negative) return "-";
  if (conversion.signAlways) return "+";
  return conversion.signBlank ? " " : "";
}

std::string digitsOf(std::uint64_t value, int base, const Conversion& conversion) {
  std::array<char, std::numeric_limits<std::uint64_t>::digits> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, base).ptr;
  std::string digits(buffer.data(), end);
  const int least = std::min(conversion.precision.value_or(1), kMostColumns);
  if (value == 0) digits.clear();
  if (digits.size() < static_cast<std::size_t>(least)) digits.insert(0, least - digits.size(), '0');
  return digits;
}

// The value's lowest bits, as many as the conversion reads.
std::uint64_t truncated(std::uint64_t value, int bits) noexcept {
  return bits >= 64 ? value : value & ((std::uint64_t{1} << bits) - 1);
}

// Each printer answers nothing when the argument is of another kind than its conversion's.

std::optional<std::string> printSigned(const Conversion& conversion, const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  const std::uint64_t value = truncated(*integer, conversion.bits);
  const bool negative = value >> (conversion.bits - 1) != 0;
  const std::uint64_t magnitude = negative ? truncated(~value + 1, conversion.bits) : value;
  return paddedNumber(conversion, sign(conversion, negative), digitsOf(magnitude, 10, conversion),
                      !conversion.precision);
}

std::optional<std::string> printDecimal(const Conversion& conversion, const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  return paddedNumber(conversion, "",
                      digitsOf(truncated(*integer, conversion.bits), 10, conversion),
                      !conversion.precision);
}

std::optional<std::string> printOctal(const Conversion& conversion, const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  std::string digits = digitsOf(truncated(*integer, conversion.bits), 8, conversion);
  if (conversion.alternative && !digits.starts_with('0')) digits.insert(0, 1, '0');
  return paddedNumber(conversion, "", digits, !conversion.precision);
}

std::optional<std::string> printHexadecimal(const Conversion& conversion,
                                            const FormatArgument& from) {
  const auto integer = from.integer();
  if (!integer) return std::nullopt;
  const std::uint64_t value = truncated(*integer, conversion.bits);
  const std::string text =
      paddedNumber(conversion, conversion.alternative && value != 0 ? "0x" : "",
                   digitsOf(value, 16, conversion), !conversion.precision);
  return conversion.type == 'X' ? inUpperCase(text) : text;
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

std::string toChars(double value, std::chars_format format, int precision) {
  constexpr int kMostBeforeThePoint = std::numeric_limits<double>::max_exponent10 + 1;
  constexpr int kPointAndExponent = 8;
  std::string text(static_cast<std::size_t>(kMostBeforeThePoint + kPointAndExponent + precision),
                   '\0');
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, format, precision).ptr;
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

// Gives digits without a point one, before their exponent.
std::string withPoint(std::string digits) {
  if (digits.find('.') != digits.npos) return digits;
  return digits.insert(std::min(digits.find('e'), digits.size()), 1, '.');
}

// "%#g": the shorter of both notations with every digit that the precision asks for.
std::string allDigits(double value, int precision) {
  const int digits = std::max(precision, 1);
  const std::string scientific = toChars(value, std::chars_format::scientific, digits - 1);
  int exponent = 0;
  const char* number = scientific.data() + scientific.find('e') + 1;
  std::from_chars(number + (*number == '+'), scientific.data() + scientific.size(), exponent);
  if (exponent < -4 || exponent >= digits) return scientific;
  return toChars(value, std::chars_format::fixed, digits - 1 - exponent);
}

std::string digitsOf(double value, const Conversion& conversion) {
  constexpr int kUsualPrecision = 6;
  const int precision = std::min(conversion.precision.value_or(kUsualPrecision), kMostColumns);
  const bool general = conversion.type == 'g' || conversion.type == 'G';
  if (general && conversion.alternative) return withPoint(allDigits(value, precision));
  if (general) return toChars(value, std::chars_format::general, precision);
  const bool fixed = conversion.type == 'f' || conversion.type == 'F';
  const auto format = fixed ? std::chars_format::fixed : std::chars_format::scientific;
  const std::string digits = toChars(value, format, precision);
  return conversion.alternative ? withPoint(digits) : digits;
}

std::optional<std::string> printReal(const Conversion& conversion, const FormatArgument& from) {
  const auto real = from.real();
  if (!real) return std::nullopt;
  const bool finite = std::isfinite(*real);
  const double magnitude = std::fabs(*real);
  const char* const name = std::isnan(*real) ? "nan" : "inf";
  const std::string text = paddedNumber(conversion, sign(conversion, std::signbit(*real)),
                                        finite ? digitsOf(magnitude, conversion) : name, finite);
  const bool isUpper = conversion.type >= 'A' && conversion.type <= 'Z';
  return isUpper ? inUpperCase(text) : text;
}

std::optional<std::string> printPointer(const Conversion& conversion, const FormatArgument& from) {
  const auto address = from.address();
  if (!address) return std::nullopt;
  const auto value = reinterpret_cast<std::uintptr_t>(*address);
  return paddedNumber(conversion, "0x", digitsOf(value, 16, Conversion{}), true);
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
    {"@", printDescription}, {"s", printText},      {"di", printSigned},
    {"u", printDecimal},     {"o", printOctal},     {"xX", printHexadecimal},
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
