// A PPD's statements, as libcups reads them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cutline {

// One statement: a line, or all the lines that its quoted value goes over. Small, since a PPD has
// ten thousands of them.
class PpdStatement {
 public:
  // Of its first line; the keyword follows the sign that begins it.
  PpdStatement(std::string_view line, std::size_t keywordSize)
      : mText(line.data()), mSize(size(line.size())), mKeywordSize(size(keywordSize)) {}

  void extendBy(std::size_t characters) { mSize += size(characters); }

  // With what ends its lines.
  std::string_view text() const noexcept { return {mText, mSize}; }
  // Its first word without the sign; empty where libcups skips the line.
  std::string_view keyword() const noexcept {
    return mKeywordSize == 0 ? std::string_view() : std::string_view(mText + 1, mKeywordSize);
  }

 private:
  // Contents have much less than four gigabytes (kLargestPpd).
  static std::uint32_t size(std::size_t characters) {
    return static_cast<std::uint32_t>(characters);
  }

  const char* mText;
  std::uint32_t mSize;
  std::uint32_t mKeywordSize;
};

// The statements of a PPD's contents, which they point into. Together they have all of its text.
std::vector<PpdStatement> ppdStatements(std::string_view contents);

// What stands between the keyword and the colon, such as "*Duplex/Two sides" behind OpenUI.
std::string_view nameOf(const PpdStatement& statement);

// Whether there is a colon: libcups skips statements without.
bool hasValue(const PpdStatement& statement);

// What stands behind the colon, without blanks around it; quotes stay. Empty where there is none.
std::string_view valueOf(const PpdStatement& statement);

// The next word of a value, without blanks around it, which is taken from the value.
std::string_view nextWord(std::string_view& value);

}  // namespace cutline
