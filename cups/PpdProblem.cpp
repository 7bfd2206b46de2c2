#include "cups/PpdProblem.h"

#include <cups/ppd.h>

#include <algorithm>
#include <utility>

namespace cutline {

namespace {

// Works around libcups 2.4.2: it refuses the whole PPD for a longer name, and the line that
// ppdLastError tells is often another one, so the name is looked for here.
constexpr std::size_t kLongestName = PPD_MAX_NAME - 1;

struct LongName {
  int line = 0;
  std::string_view name;  // empty: every name fits
};

// *MAIN OPTION/TEXT: VALUE - the longer one of the two names that is too long, or nothing.
std::string_view longNameIn(std::string_view line) {
  if (!line.starts_with('*') || line.starts_with("*%")) return {};
  line.remove_prefix(1);
  const auto mainEnd = std::min(line.find_first_of(" \t:"), line.size());
  if (mainEnd > kLongestName) return line.substr(0, mainEnd);
  line.remove_prefix(mainEnd);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  const auto optionEnd = std::min(line.find_first_of(":/\r\n"), line.size());
  return optionEnd > kLongestName ? line.substr(0, optionEnd) : std::string_view{};
}

LongName findLongName(std::string_view text) {
  for (int number = 1; !text.empty(); ++number) {
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    if (const auto name = longNameIn(text.substr(0, end)); !name.empty()) return {number, name};
    const bool isPair = text.substr(end).starts_with("\r\n");
    text.remove_prefix(std::min(end + (isPair ? 2 : 1), text.size()));
  }
  return {};
}

Error unusable(const Sentence& name, int line, Sentence why) {
  if (line <= 0) return Sentence(Phrase("cups", "cannot use %1: %2"), {name, std::move(why)});
  return Sentence(Phrase("cups", "cannot use %1: line %2: %3"),
                  {name, std::to_string(line), std::move(why)});
}

}  // namespace

Error ppdProblem(const Sentence& name, std::string_view text) {
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  if (const LongName tooLong = findLongName(text); !tooLong.name.empty()) {
    return unusable(
        name, tooLong.line,
        {Phrase("cups", "the name \"%1\" has %2 bytes, and a PPD's names have at most %3"),
         {std::string(tooLong.name), std::to_string(tooLong.name.size()),
          std::to_string(kLongestName)}});
  }
  return unusable(name, line, std::string(ppdErrorString(status)));
}

}  // namespace cutline
