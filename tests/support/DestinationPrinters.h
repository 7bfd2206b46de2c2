// How failures show the names of queues and what was refused: as a person reads them. To be
// included wherever one of these is compared.
#pragma once

#include <ostream>

#include "base/Result.h"
#include "cups/Destination.h"

namespace cutline {

inline void PrintTo(const DestinationName& name, std::ostream* out) { *out << name.text(); }

inline void PrintTo(const Sentence& sentence, std::ostream* out) { *out << sentence.english(); }

template <typename T>
void PrintTo(const Result<T>& result, std::ostream* out) {
  *out << (result ? "no error" : result.error().message);
}

}  // namespace cutline
