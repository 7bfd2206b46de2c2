// What there is to say to a person, with its words still to be chosen: a phrase and what stands in
// its places, which may be sentences again; or a text that is the same in every language.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cups/Phrase.h"

namespace cutline {

class Sentence {
 public:
  Sentence() = default;  // says nothing
  // The same in every language: a name, a number, another program's words.
  Sentence(std::string verbatim);
  Sentence(const char* verbatim);
  // `arguments` stand in %1, %2, ...
  Sentence(Phrase phrase, std::vector<Sentence> arguments = {});

  // Empty for a text that is the same in every language.
  const std::optional<Phrase>& phrase() const noexcept { return mPhrase; }
  const std::string& verbatim() const noexcept { return mVerbatim; }
  const std::vector<Sentence>& arguments() const noexcept { return mArguments; }

  std::string english() const;

 private:
  std::optional<Phrase> mPhrase;
  std::string mVerbatim;
  std::vector<Sentence> mArguments;
};

// "first - second, third": a state and what there is to say of it.
Sentence withRemarks(Sentence state, const std::vector<Sentence>& remarks);

}  // namespace cutline
