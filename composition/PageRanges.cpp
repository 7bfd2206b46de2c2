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
  return Sentence(Phrase("host", "page range \"%1\": %2"), {text, std::move(why)});
}

Sentence notAPage(const std::string& part) {
  return {Phrase("host", "\"%1\" is no page; write pages such as 1-3,5"), {part}};
}

bool isNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

bool isZero(const std::string& text) {
  return isNumber(text) && text.find_first_not_of('0') == std::string::npos;
}

}  // namespace

// What is wrong with one part between commas; nothing where it is a page or a range of pages.
std::optional<Sentence> PageRanges::parseRange(const std::string& text, Range& range) {
  if (text.empty())
    return Sentence(Phrase("host", "a page is missing beside a comma; write pages such as 1-3,5"));
  const std::size_t dash = text.find('-');
  const std::string first = text.substr(0, dash);
  const std::string last = dash == std::string::npos ? first : text.substr(dash + 1);
  const bool isOpen = dash != std::string::npos && last.empty();
  if (first.empty() && isNumber(last))
    return Sentence(Phrase("host", "%1 has no first page: write 1%1"), {text});
  if (isZero(first) || isZero(last)) return Sentence(Phrase("host", "pages are counted from 1"));
  range.first = pageNumber(first);
  range.last = isOpen ? kLastPage : pageNumber(last);
  if (range.first == 0 || range.last == 0) return notAPage(text);
  if (range.last >= range.first) return std::nullopt;
  return Sentence(Phrase("host", "%1 runs backwards: write %2"), {text, last + '-' + first});
}

Result<PageRanges> PageRanges::parse(const std::string& text) {
  PageRanges ranges;
  ranges.mText = withoutBlanks(text);
  if (ranges.mText.empty()) return ranges;
  int previous = 0;
  for (const std::string& part : partsBetweenCommas(ranges.mText)) {
    Range range{};
    if (const auto problem = parseRange(part, range)) return badRanges(text, *problem);
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
    const std::string missing = std::to_string(std::max(range.first, pageCount + 1));
    if (pageCount == 1) return badRanges(mText, Phrase("host", "the document has 1 page only"));
    return badRanges(mText, {Phrase("host", "the document has %1 pages, and no page %2"),
                             {std::to_string(pageCount), missing}});
  }
  return Done{};
}

}  // namespace cutline
