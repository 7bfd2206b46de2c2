// A second opinion on what a formatter refuses, for texts of ASCII and the characters é, あ and
// 🙂. It walks through the typed text and converts nothing.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cutline {

struct VettingSettings {
  int style = 0;
  int maxLength = 0;
  std::optional<int> minValue;
  std::optional<int> maxValue;
  std::vector<std::u16string> forbidden;
};

struct Refusal {
  std::string name;
  std::optional<std::string> character;  // what the notification is about, if not the formatter
};

// Nothing when the edit may stand. `from` and `to` are where the selections before and after it
// begin.
std::optional<Refusal> refusalOf(const VettingSettings& settings, const std::u16string& original,
                                 std::size_t from, const std::u16string& proposed, std::size_t to);

// The number at the start of a text; 0 when there is none.
int leadingNumber(const std::u16string& text);

}  // namespace cutline
