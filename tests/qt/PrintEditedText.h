// How a failed test shows a text with its selection.
#pragma once

#include <ostream>

#include "qt/TextEdits.h"

namespace cutline {

inline void PrintTo(const EditedText& state, std::ostream* out) {
  *out << '"' << state.text.toStdString() << "\" " << state.anchor << "->" << state.caret;
}

}  // namespace cutline
