#include "composition/typeset/TextLabels.h"

#include <algorithm>

namespace cutline {
namespace {

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::size_t kMostLabels = 20'000;
constexpr std::size_t kMostCharacters = 10'000;
constexpr std::string_view kBlankLine = "\n\n";

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

void endLine(std::string& text) {
  while (text.ends_with(' ') || text.ends_with('\t')) text.pop_back();
  text += '\n';
}

std::size_t charactersIn(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xc0U) != 0x80;
  return count;
}

// Takes what is before the separator off the text, and the separator, too.
std::string_view takePart(std::string_view& text, std::string_view separator) {
  const std::string_view part = text.substr(0, text.find(separator));
  text.remove_prefix(std::min(text.size(), part.size() + separator.size()));
  return part;
}

}  // namespace

std::string plainText(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    const bool isFirstOfTwo = c == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    if (isFirstOfTwo) continue;
    if (c == '\n' || c == '\r') {
      endLine(plain);
    } else if (c == '\f') {
      endLine(plain);
      plain += '\n';
    } else if (c == '\t' || !isControl(c)) {
      plain += c;
    }
  }
  endLine(plain);
  return plain;
}

std::vector<std::string_view> labelsOf(std::string_view plain, TextUnit unit) {
  const std::string_view separator = unit == TextUnit::line ? kBlankLine.substr(1) : kBlankLine;
  std::vector<std::string_view> labels;
  while (!plain.empty()) {
    std::string_view label = takePart(plain, separator);
    while (label.starts_with('\n')) label.remove_prefix(1);
    while (label.ends_with('\n')) label.remove_suffix(1);
    if (!label.empty()) labels.push_back(label);
  }
  return labels;
}

std::optional<TypesetProblem> problemWith(const std::vector<std::string_view>& labels) {
  if (labels.empty()) return TypesetProblem{DocumentProblem::empty, {}};
  if (labels.size() > kMostLabels)
    return TypesetProblem{DocumentProblem::tooManyPages, std::to_string(labels.size())};
  for (const std::string_view label : labels) {
    const std::size_t characters = charactersIn(label);
    if (characters > kMostCharacters)
      return TypesetProblem{DocumentProblem::tooLarge,
                            std::to_string(characters) + " characters for one label"};
  }
  return std::nullopt;
}

}  // namespace cutline
