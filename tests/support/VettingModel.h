// A second opinion on what a formatter refuses, for texts of ASCII and a few other characters. It
// walks through what was typed step by step and converts nothing but by its own table.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cutline::test {

struct VettingSettings {
  int style = 0;
  int maxLength = 0;
  std::optional<int> minValue, maxValue;
  std::vector<std::string> forbidden;
  std::string codeset = "UTF-8";  // the system's: that, "ISO-8859-1" or "Shift_JIS"
};

struct Refusal {
  std::string name;
  std::optional<std::string> character;  // what the notification is about, if not the formatter
};

// Nothing when the edit may stand. `from` and `to` are where the selections before and after it
// begin.
std::optional<Refusal> refusalOf(const VettingSettings& settings, const std::u16string& original,
                                 std::size_t from, const std::u16string& proposed, std::size_t to);

// The characters beyond ASCII that the model knows.
const std::vector<std::u16string>& charactersBeyondAscii();
// The ASCII characters that the style takes; nothing for a style that takes all of them.
std::optional<std::string> charactersOfStyle(int style);

// The number at the start of a text; 0 when there is none.
int leadingNumber(const std::u16string& text);

}  // namespace cutline::test
