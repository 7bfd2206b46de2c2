#include "host/core/PageRanges.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace cutline {

namespace {

constexpr int kLastPage = std::numeric_limits<int>::max();

struct Range {
  int first;
  int last;  // kLastPage for an open end
};

std::optional<int> pageNumber(std::string_view text) {
  int page = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), page);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && page > 0 ? std::optional<int>(page) : std::nullopt;
}

std::optional<Range> parseRange(std::string_view text) {
  const std::size_t dash = text.find('-');
  const std::optional<int> first = pageNumber(text.substr(0, dash));
  if (!first) return std::nullopt;
  if (dash == std::string_view::npos) return Range{*first, *first};
  if (dash + 1 == text.size()) return Range{*first, kLastPage};
  const std::optional<int> last = pageNumber(text.substr(dash + 1));
  if (!last || *last < *first) return std::nullopt;
  return Range{*first, *last};
}

Error badRanges(const std::string& text, Sentence why) {
  return Sentence(Phrase("host", "page range \"%1\": %2; write pages like 1-4,7"),
                  {text, std::move(why)});
}

}  // namespace

Result<std::string> normalizedPageRanges(const std::string& text) {
  std::string compact = text;
  compact.erase(std::remove_if(compact.begin(), compact.end(),
                               [](unsigned char c) { return std::isspace(c) != 0; }),
                compact.end());
  if (compact.empty()) return compact;
  int previous = 0;
  std::size_t start = 0;
  while (start <= compact.size()) {
    const std::size_t end = std::min(compact.find(',', start), compact.size());
    const std::string part = compact.substr(start, end - start);
    const std::optional<Range> range = parseRange(part);
    if (!range)
      return badRanges(text, {Phrase("host", "\"%1\" is no page or range of pages"), {part}});
    if (range->first <= previous)
      return badRanges(text, Phrase("host", "pages must be in ascending order"));
    previous = range->last;
    start = end + 1;
  }
  return compact;
}

}  // namespace cutline
