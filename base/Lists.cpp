#include "base/Lists.h"

#include <algorithm>

namespace cutline {

std::vector<std::string> partsBetweenCommas(std::string_view text) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t comma = std::min(text.find(','), text.size());
    parts.emplace_back(text.substr(0, comma));
    if (comma == text.size()) return parts;
    text.remove_prefix(comma + 1);
  }
}

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

}  // namespace cutline
