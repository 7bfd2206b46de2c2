// What there is to say to a person: English phrases that the dialog can say in another language,
// and sentences made of them.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cutline {

// English words for people that the dialog can say in another language. The command line says them
// as they are: scripts read it.

// `Phrase("cups", "\"%1\" takes no job")`: %1 to %9 are places for what differs each time. Both are
// literals, because the tables of translations are collected from the sources: the context groups
// the phrases of one folder there.
struct Phrase {
  constexpr Phrase(const char* itsContext, const char* itsSource) noexcept
      : context(itsContext), source(itsSource) {}

  const char* context;
  const char* source;
};

// What there is to say to a person, with its words still to be chosen: a phrase and what stands in
// its places, which may be sentences again; or a text that is the same in every language.
class Sentence {
 public:
  Sentence() = default;  // says nothing
  // The same in every language: a name, a number, another program's words; cut where it is longer
  // than anybody reads.
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
