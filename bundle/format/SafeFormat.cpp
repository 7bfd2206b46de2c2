#include "bundle/format/SafeFormat.h"

#include <algorithm>

#include "bundle/format/Conversion.h"
#include "bundle/format/printed_value.h"

namespace cutline {
namespace {

std::string printed(const Conversion& conversion, ArgumentReader& arguments) {
  if (conversion.type == '%') return "%";
  if (printsArgument(conversion.type)) return printedValue(conversion, arguments.next());
  if (conversion.type != 'n') return std::string(conversion.spelling);
  arguments.next();
  return {};
}

}  // namespace

std::string safeFormat(std::string_view format, FormatArguments arguments) {
  ArgumentReader reader(arguments);
  std::string text;
  while (!format.empty()) {
    const auto plain = std::min(format.find('%'), format.size());
    text.append(format.substr(0, plain));
    format.remove_prefix(plain);
    if (!format.empty()) text += printed(readConversion(format, reader), reader);
  }
  return text;
}

}  // namespace cutline
