// The first pages of a PDF that has many, found without a look at the others.
#pragma once

#include <optional>
#include <qpdf/QPDF.hh>

namespace cutline {

// Leaves so many first pages of an open PDF in its tree of pages, and answers how many it says that
// it has, which may be wrong. Nothing, and the PDF stays as it is, where it says that it has few,
// or where its tree is not in order as far as it was looked at: who finds all pages finds out what
// is wrong.
std::optional<int> keepFirstPages(QPDF& pdf, int needed);

}  // namespace cutline
