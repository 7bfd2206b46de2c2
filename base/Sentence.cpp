#include "base/Sentence.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "base/Visible.h"

namespace cutline {

namespace {

// Names come from files and from outside, and nobody reads more of one.
constexpr std::size_t kLongestVerbatim = 2000;

bool isPlace(std::string_view words, std::size_t at) {
  return words[at] == '%' && at + 1 < words.size() && words[at + 1] >= '1' && words[at + 1] <= '9';
}

}  // namespace

Sentence::Sentence(std::string verbatim) : mVerbatim(shortened(verbatim, kLongestVerbatim)) {}

Sentence::Sentence(const char* verbatim) : mVerbatim(shortened(verbatim, kLongestVerbatim)) {}

Sentence::Sentence(Phrase phrase, std::vector<Sentence> arguments)
    : mPhrase(phrase), mArguments(std::move(arguments)) {}

std::string Sentence::english() const {
  if (!mPhrase) return mVerbatim;
  const std::string_view words = mPhrase->source;
  std::string text;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (!isPlace(words, at)) {
      text += words[at];
      continue;
    }
    const auto number = static_cast<std::size_t>(words[++at] - '1');
    if (number < mArguments.size()) text += mArguments[number].english();
  }
  return text;
}

Sentence withRemarks(Sentence state, const std::vector<Sentence>& remarks) {
  if (remarks.empty()) return state;
  Sentence list = remarks.front();
  for (std::size_t i = 1; i < remarks.size(); ++i) {
    list = Sentence(Phrase("cups", "%1, %2"), {std::move(list), remarks[i]});
  }
  return {Phrase("cups", "%1 - %2"), {std::move(state), std::move(list)}};
}

}  // namespace cutline
