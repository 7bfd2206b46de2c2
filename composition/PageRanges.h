// Which pages of a document are printed: page ranges as people type them and as IPP wants them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"

namespace cutline {

class PageRanges {
 public:
  // Every page.
  PageRanges() = default;
  // "2", "1-4,7", "5-" in ascending order, with blanks anywhere; every page for a text without any.
  // An error says what is wrong.
  static Result<PageRanges> parse(const std::string& text);

  // The ranges without blanks; empty for every page.
  const std::string& text() const noexcept { return mText; }
  // Pages count from 0.
  bool contains(int page) const noexcept;
  // How many of the first `pageCount` pages are picked.
  int countOf(int pageCount) const noexcept;
  // An error that names the first page that a document of `pageCount` pages lacks.
  Result<Done> checkWithin(int pageCount) const;

  friend bool operator==(const PageRanges& one, const PageRanges& other) noexcept {
    return one.mText == other.mText;
  }

 private:
  struct Range {
    int first;  // counted from 1
    int last;   // the largest number for an open end
  };
  static std::optional<Sentence> parseRange(const std::string& text, Range& range);

  std::string mText;
  std::vector<Range> mRanges;
};

}  // namespace cutline
