#include "cups/PpdStatements.h"

#include <algorithm>

#include "base/CharacterSet.h"
#include "cups/PpdLines.h"

namespace cutline {

namespace {

constexpr CharacterSet kBlankSigns(" \t\v\f\r\n");
constexpr CharacterSet kKeywordEnds(" \t\v\f\r\n:");
constexpr std::string_view kComment = "*%";
constexpr std::string_view kEnd = "End";  // behind a value of several lines
constexpr char kSign = '*';

std::string_view keywordOf(std::string_view line) {
  if (!line.starts_with(kSign) || line.starts_with(kComment)) return {};
  const std::string_view keyword = line.substr(1, kKeywordEnds.firstIn(line) - 1);
  return keyword == kEnd ? std::string_view() : keyword;
}

// Whether the value that a line begins, or goes on with, has an open quote at the line's end.
// Quotes count behind a colon alone, and never in comments.
bool isOpenBehind(std::string_view line, bool isOpen) {
  if (line.find('"') == line.npos) return isOpen;
  if (!isOpen) {
    if (line.starts_with(kComment)) return false;
    line.remove_prefix(std::min(line.find(':'), line.size()));
  }
  return isOpen != (std::ranges::count(line, '"') % 2 != 0);
}

}  // namespace

std::vector<PpdStatement> ppdStatements(std::string_view contents) {
  std::vector<PpdStatement> statements;
  constexpr std::size_t kShortLine = 16;
  statements.reserve(contents.size() / kShortLine);
  bool isOpen = false;
  forEachPpdLine(contents, [&](std::string_view line, std::string_view end) {
    if (isOpen) {
      statements.back().extendBy(line.size() + end.size());
    } else {
      statements.emplace_back(line, keywordOf(line).size());
      statements.back().extendBy(end.size());
    }
    isOpen = isOpenBehind(line, isOpen);
  });
  return statements;
}

std::string_view nameOf(const PpdStatement& statement) {
  const auto rest =
      statement.text().substr(std::min(statement.keyword().size() + 1,  // and its sign
                                       statement.text().size()));
  return kBlankSigns.trimmed(rest.substr(0, rest.find(':')));
}

bool hasValue(const PpdStatement& statement) {
  return statement.text().find(':') != statement.text().npos;
}

std::string_view valueOf(const PpdStatement& statement) {
  const auto colon = statement.text().find(':');
  return colon == statement.text().npos ? std::string_view()
                                        : kBlankSigns.trimmed(statement.text().substr(colon + 1));
}

std::string_view nextWord(std::string_view& value) {
  value.remove_prefix(kBlankSigns.firstNotIn(value));
  const std::string_view word = value.substr(0, kBlankSigns.firstIn(value));
  value.remove_prefix(word.size());
  return word;
}

}  // namespace cutline
