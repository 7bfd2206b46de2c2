// English words for people that the dialog can say in another language. The command line says them
// as they are: scripts read it.
#pragma once

namespace cutline {

// `Phrase("cups", "\"%1\" takes no job")`: %1 to %9 are places for what differs each time. Both are
// literals, because the tables of translations are collected from the sources: the context groups
// the phrases of one folder there.
struct Phrase {
  constexpr Phrase(const char* itsContext, const char* itsSource) noexcept
      : context(itsContext), source(itsSource) {}

  const char* context;
  const char* source;
};

}  // namespace cutline
