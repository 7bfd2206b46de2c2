#include "composition/PageRanges.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <optional>
#include <utility>

#include "base/Lists.h"
#include "base/Numbers.h"

namespace cutline {

namespace {

constexpr int kLastPage = std::numeric_limits<int>::max();

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
  return text;
}

int pageNumber(const std::string& text) { return std::max(0, numberIn<int>(text).value_or(0)); }

Error badRanges(const std::string& text, Sentence why) {
  return Sentence(Phrase("host", "page range \"%1\": %2; write pages like 1-4,7"),
                  {text, std::move(why)});
}

}  // namespace

bool PageRanges::parseRange(const std::string& text, Range& range) {
  const std::size_t dash = text.find('-');
  range.first = pageNumber(text.substr(0, dash));
  range.last = range.first;
  if (dash != std::string::npos)
    range.last = dash + 1 == text.size() ? kLastPage : pageNumber(text.substr(dash + 1));
  return range.first > 0 && range.last >= range.first;
}

Result<PageRanges> PageRanges::parse(const std::string& text) {
  PageRanges ranges;
  ranges.mText = withoutBlanks(text);
  if (ranges.mText.empty()) return ranges;
  int previous = 0;
  for (const std::string& part : partsBetweenCommas(ranges.mText)) {
    Range range{};
    if (!parseRange(part, range))
      return badRanges(text, {Phrase("host", "\"%1\" is no page or range of pages"), {part}});
    if (range.first <= previous)
      return badRanges(text, Phrase("host", "pages must be in ascending order"));
    previous = range.last;
    ranges.mRanges.push_back(range);
  }
  return ranges;
}

bool PageRanges::contains(int page) const noexcept {
  if (mRanges.empty()) return true;
  return std::any_of(mRanges.begin(), mRanges.end(), [page](const Range& range) {
    return page + 1 >= range.first && page + 1 <= range.last;
  });
}

int PageRanges::countOf(int pageCount) const noexcept {
  int count = 0;
  for (int page = 0; page < pageCount; ++page) count += contains(page) ? 1 : 0;
  return count;
}

// An open end asks for no certain page.
Result<Done> PageRanges::checkWithin(int pageCount) const {
  for (const Range& range : mRanges) {
    const int last = range.last == kLastPage ? range.first : range.last;
    if (last <= pageCount) continue;
    return Error{Sentence(
        Phrase("host",
               "page range \"%1\": the document has no page %2, its last "
               "is page %3"),
        {mText, std::to_string(std::max(range.first, pageCount + 1)), std::to_string(pageCount)})};
  }
  return Done{};
}

}  // namespace cutline
