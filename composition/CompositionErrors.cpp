#include "composition/CompositionErrors.h"

#include <sys/wait.h>

#include <array>
#include <csignal>
#include <utility>

namespace cutline {
namespace {

struct ProblemText {
  DocumentProblem problem;
  Phrase text;
};
// %1 is the failure's detail.
constexpr std::array kProblemTexts = std::to_array<ProblemText>({
    {DocumentProblem::unknownKind,
     Phrase("composition",
            "it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or "
            "text (UTF-8); \"-o raw\" sends it to the printer as it is")},
    {DocumentProblem::damaged,
     Phrase("composition", "it is damaged; open it elsewhere and save it again")},
    {DocumentProblem::locked,
     Phrase("composition", "it is locked with a password; save it without one")},
    {DocumentProblem::unprintable,
     Phrase("composition", "it is locked against printing; ask its owner for another one")},
    {DocumentProblem::empty, Phrase("composition", "it has no pages")},
    {DocumentProblem::tooManyPages,
     Phrase("composition", "it has too many pages; print it in smaller parts")},
    {DocumentProblem::badSize,
     Phrase("composition", "it has a page of a size that no paper has; save it with another one")},
    {DocumentProblem::tooLarge,
     Phrase("composition",
            "it needs more memory than a document may take; save it with smaller pictures, or in "
            "parts")},
    {DocumentProblem::tooSlow,
     Phrase("composition",
            "it takes too long to read; save it as a PDF elsewhere, or print it in parts")},
    {DocumentProblem::pageMissing,
     Phrase("composition", "it does not have all the pages that were chosen")},
    {DocumentProblem::missingModule,
     Phrase("composition", "what reads documents of its kind is not installed")},
    {DocumentProblem::broken, Phrase("composition", "its reader failed")},
});

// With what the reader says of it.
constexpr std::array kDetailedTexts = std::to_array<ProblemText>({
    {DocumentProblem::tooManyPages,
     Phrase("composition", "it has %1 pages, which is too many; print it in smaller parts")},
    {DocumentProblem::tooLarge, Phrase("composition", "it is too large: %1")},
    {DocumentProblem::missingModule,
     Phrase("composition", "what reads documents of its kind is not installed: %1")},
    {DocumentProblem::broken, Phrase("composition", "its reader failed: %1")},
});

template <std::size_t Count>
const Phrase* textIn(const std::array<ProblemText, Count>& rows, DocumentProblem problem) {
  for (const ProblemText& row : rows)
    if (row.problem == problem) return &row.text;
  return nullptr;
}

struct EndMeaning {
  int signal;
  DocumentProblem problem;
};
// Who has no memory left is killed by the system, or by GLib, with a trap.
constexpr std::array kEndMeanings = std::to_array<EndMeaning>({
    {SIGXCPU, DocumentProblem::tooSlow},
    {SIGALRM, DocumentProblem::tooSlow},
    {SIGXFSZ, DocumentProblem::tooLarge},
    {SIGKILL, DocumentProblem::tooLarge},
    {SIGTRAP, DocumentProblem::tooLarge},
});

}  // namespace

Error unreadableDocuments(const std::vector<std::string>& paths, Sentence reason) {
  if (paths.size() == 1)
    return Sentence(Phrase("composition", "cannot read the document \"%1\": %2"),
                    {paths.front(), std::move(reason)});
  std::string names;
  for (const std::string& path : paths) names += (names.empty() ? "\"" : ", \"") + path + '"';
  return Sentence(Phrase("composition", "cannot read one of the documents %1: %2"),
                  {names, std::move(reason)});
}

Sentence reasonOf(const CompositionFailure& failure) {
  if (!failure.detail.empty())
    if (const Phrase* text = textIn(kDetailedTexts, failure.problem))
      return Sentence(*text, {failure.detail});
  const Phrase* text = textIn(kProblemTexts, failure.problem);
  return text ? Sentence(*text) : Sentence();
}

DocumentProblem problemOfEnd(int status) {
  if (status < 0 || !WIFSIGNALED(status)) return DocumentProblem::broken;
  for (const EndMeaning& row : kEndMeanings)
    if (row.signal == WTERMSIG(status)) return row.problem;
  return DocumentProblem::broken;
}

}  // namespace cutline
