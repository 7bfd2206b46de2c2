#include "cups/SavedLines.h"

#include <strings.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "cups/CupsOptions.h"
#include "cups/SavedOptions.h"

namespace cutline {

namespace {

constexpr std::string_view kBlanks = " \t\f\v\r";
constexpr std::string_view kToQuote = " \"'\\";
constexpr std::string_view kToEscape = "\"\\";

std::string valueText(const std::string& value) {
  if (value.find_first_of(kToQuote) == std::string::npos) return value;
  std::string text = "\"";
  for (const char letter : value) {
    if (kToEscape.find(letter) != std::string_view::npos) text += '\\';
    text += letter;
  }
  return text + '"';
}

// Takes the first word off the line.
std::string takeWord(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  const auto size = std::min(line.find_first_of(kBlanks), line.size());
  std::string word(line.substr(0, size));
  line.remove_prefix(size);
  return word;
}

// A comment begins anywhere, but not behind a backslash.
std::string_view withoutComment(std::string_view line) {
  for (std::size_t at = line.find('#'); at != line.npos; at = line.find('#', at + 1))
    if (at == 0 || line[at - 1] != '\\') return line.substr(0, at);
  return line;
}

struct Head {
  DestinationName name;
  bool isDefault;
};

// Nothing for a line that is no entry: a comment, a blank line, or what only others know.
std::optional<Head> headOf(std::string_view line) {
  line = withoutComment(line);
  const std::string keyword = takeWord(line);
  const std::string name = takeWord(line);
  const bool isDefault = strcasecmp(keyword.c_str(), "default") == 0;
  if (name.empty() || (!isDefault && strcasecmp(keyword.c_str(), "dest") != 0)) return std::nullopt;
  return Head{DestinationName::parse(name), isDefault};
}

// The text with what `replacement` answers in place of the lines of this name, their ends included.
std::string edited(std::string_view text, const DestinationName& name,
                   const std::function<std::string(const Head&)>& replacement) {
  std::string result;
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end == text.npos ? text.size() : end + 1);
    const auto head = headOf(line.substr(0, line.find('\n')));
    if (head && isSame(head->name, name))
      result += replacement(*head);
    else
      result += line;
    text.remove_prefix(line.size());
  }
  return result;
}

bool isDefaultIn(std::string_view text, const DestinationName& name) {
  bool isDefault = false;
  edited(text, name, [&](const Head& head) {
    isDefault |= head.isDefault;
    return std::string();
  });
  return isDefault;
}

}  // namespace

// The words of libcups, which reads them: an option without a value is one alone.
std::string savedLine(const DestinationName& name, bool isDefault, const OptionList& options) {
  std::string line = (isDefault ? "Default " : "Dest ") + name.text();
  for (const auto& [keyword, value] : CupsOptions(options).list()) {
    line += ' ' + keyword;
    if (!value.empty()) line += '=' + valueText(value);
  }
  return line;
}

std::string withEntry(const std::string& text, const DestinationName& name,
                      const OptionList& options) {
  const std::string line = savedLine(name, isDefaultIn(text, name), options) + '\n';
  bool isPlaced = false;
  std::string result = edited(text, name, [&](const Head&) {
    return std::exchange(isPlaced, true) ? std::string() : line;
  });
  if (isPlaced) return result;
  if (!result.empty() && !result.ends_with('\n')) result += '\n';
  return result + line;
}

std::string withoutEntry(const std::string& text, const DestinationName& name) {
  return edited(text, name, [](const Head&) { return std::string(); });
}

}  // namespace cutline
