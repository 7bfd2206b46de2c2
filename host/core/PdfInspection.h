// Looks at a PDF without drawing it. Implemented by a module of its own (cutline-pdf.so), loaded on
// demand: commands that send no document start without its library.
#pragma once

#include <string>

namespace cutline {

enum class PdfState {
  printable,
  damaged,      // or without anything that can be found in it
  locked,       // a password is needed to read it
  unprintable,  // it can be read, and its owner does not allow printing
};

struct PdfFacts {
  PdfState state = PdfState::damaged;
  int pages = 0;  // of what can be read
};

inline constexpr char kPdfModuleName[] = "cutline-pdf.so";
inline constexpr char kPdfBuildSymbol[] = "CutlinePdfBuild";
inline constexpr char kPdfInspectSymbol[] = "CutlineInspectPdf";

extern "C" {
// Both exported by the module; the first is asked before the second and answers the module's
// buildId().
const char* CutlinePdfBuild() noexcept;
void CutlineInspectPdf(const std::string& path, PdfFacts& facts) noexcept;
}

}  // namespace cutline
