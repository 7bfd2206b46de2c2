#include "bundle/diag/CArguments.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "bundle/format/Conversion.h"

namespace cutline {
namespace {

constexpr int kBitsOfInt = 32;

// A va_list that can be handed on: where it is an array, a parameter of its type is a pointer.
struct Taken {
  va_list list;
};

FormatArgument takeSigned(const Conversion& conversion, Taken& from) {
  if (conversion.bits > kBitsOfInt) return va_arg(from.list, long long);
  return va_arg(from.list, int);
}

FormatArgument takeUnsigned(const Conversion& conversion, Taken& from) {
  if (conversion.bits > kBitsOfInt) return va_arg(from.list, unsigned long long);
  return va_arg(from.list, unsigned);
}

FormatArgument takeReal(const Conversion& conversion, Taken& from) {
  if (conversion.spelling.find('L') != conversion.spelling.npos) {
    return va_arg(from.list, long double);
  }
  return va_arg(from.list, double);
}

FormatArgument takePointer(const Conversion& /*conversion*/, Taken& from) {
  return static_cast<const void*>(va_arg(from.list, void*));
}

// Within a precision a text need not end in a NUL.
FormatArgument takeText(const Conversion& conversion, Taken& from) {
  const char* text = va_arg(from.list, const char*);
  if (!text || conversion.spelling.find('l') != conversion.spelling.npos) return nullptr;
  if (!conversion.precision) return text;
  return std::string_view(text, strnlen(text, static_cast<std::size_t>(*conversion.precision)));
}

struct TakerOfTypes {
  std::string_view types;
  FormatArgument (*take)(const Conversion&, Taken&);
};
constexpr TakerOfTypes kTakers[] = {
    {"di", takeSigned},  {"uoxXc", takeUnsigned}, {"fFeEgG", takeReal},
    {"pn", takePointer}, {"s@", takeText},
};

// The numbers that stand for the stars of the conversion at the start of the format, then its
// argument.
void takeConversion(std::string_view& format, Taken& from, std::vector<FormatArgument>& taken) {
  const std::size_t first = taken.size();
  std::string_view rest = format;
  ArgumentReader none{FormatArguments()};
  const auto stars = std::ranges::count(readConversion(rest, none).spelling, '*');
  for (auto left = stars; left > 0; --left) taken.emplace_back(va_arg(from.list, int));
  ArgumentReader reader{FormatArguments(std::span<const FormatArgument>(taken).subspan(first))};
  const Conversion conversion = readConversion(format, reader);
  for (const TakerOfTypes& row : kTakers) {
    if (conversion.type == '\0' || row.types.find(conversion.type) == row.types.npos) continue;
    taken.push_back(row.take(conversion, from));
  }
}

}  // namespace

std::vector<FormatArgument> argumentsOf(std::string_view format, va_list list) {
  std::vector<FormatArgument> taken;
  Taken from;
  va_copy(from.list, list);
  for (auto at = format.find('%'); at != format.npos; at = format.find('%')) {
    format.remove_prefix(at);
    takeConversion(format, from, taken);
  }
  va_end(from.list);
  return taken;
}

}  // namespace cutline
