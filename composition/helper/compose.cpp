// Lays documents onto label pages, confined: the request comes on standard input, the report goes
// to standard output. Descriptor 3 is the PDF to write, 4, 5, ... are the documents. Started by
// compose().
#include <malloc.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "base/FileDescriptor.h"
#include "base/Uninterrupted.h"
#include "composition/Composition.h"
#include "composition/helper/Confinement.h"
#include "composition/helper/LoadedModules.h"
#include "composition/helper/PostScript.h"
#include "composition/reader/DocumentComposer.h"
#include "composition/reader/DocumentKind.h"
#include "composition/reader/PictureReader.h"

namespace {

using namespace cutline;

constexpr int kOutput = STDERR_FILENO + 1;
constexpr int kFirstDocument = kOutput + 1;
// For what the readers open themselves: fonts and their settings.
constexpr unsigned kOwnFiles = 64;
// The processor's time is less than what the client waits.
constexpr ProcessLimits kLimits = {
    .memory = 512U << 20U, .fileSize = 512U << 20U, .cpuSeconds = 45, .wallSeconds = 65};

std::optional<std::string> readAll(int descriptor) {
  std::string text;
  std::array<char, 4096> block;
  for (;;) {
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor, block.data(), block.size()); });
    if (count < 0) return std::nullopt;
    if (count == 0) return text;
    text.append(block.data(), static_cast<std::size_t>(count));
  }
}

DocumentKind kindOf(int document) {
  std::string start(kDocumentStart, '\0');
  const ssize_t count = ::pread(document, start.data(), start.size(), 0);
  start.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return documentKind(start);
}

CompositionReport failed(DocumentProblem problem, int document, std::string detail = {}) {
  CompositionReport report;
  report.failure = CompositionFailure{problem, document, std::move(detail)};
  return report;
}

bool needsTypesetter(DocumentKind kind) {
  return kind == DocumentKind::text || kind == DocumentKind::svg;
}

CompositionReport composed(const CompositionRequest& request, DocumentComposer& composer) {
  std::vector<int> documents;
  std::vector<FileDescriptor> made;
  ReaderModules modules;
  for (int at = 0; at < static_cast<int>(request.names.size()); ++at) {
    documents.push_back(kFirstDocument + at);
    const DocumentKind kind = kindOf(documents.back());
    if (!modules.typesetter && needsTypesetter(kind)) modules.typesetter = loadedTypesetter();
    if (!modules.pictures && needsPictureReader(kind)) modules.pictures = loadedPictureReader();
    if (kind != DocumentKind::postScript) continue;
    PostScriptResult result = pdfOfPostScript(documents.back(), request.pages.neededFirst());
    if (result.problem) return failed(result.problem->problem, at, result.problem->detail);
    documents.back() = result.pdf.get();
    made.push_back(std::move(result.pdf));
  }
  ProcessLimits limits = kLimits;
  limits.files = static_cast<unsigned>(kFirstDocument + documents.size() + made.size()) + kOwnFiles;
  if (!confine(limits)) return failed(DocumentProblem::broken, 0, "it cannot be confined");
  CompositionReport report = composer.compose(request, documents, kOutput, modules);
  report.isPartial |= !made.empty() && request.pages.neededFirst() > 0;
  return report;
}

}  // namespace

int main() {
  ::mallopt(M_ARENA_MAX, 1);
  const std::optional<std::string> text = readAll(STDIN_FILENO);
  const auto request = text ? CompositionRequest::parse(*text) : std::nullopt;
  if (!request) return EXIT_FAILURE;
  CompositionReport report;
  DocumentComposer composer;
  try {
    report = composed(*request, composer);
  } catch (const std::bad_alloc&) {
    report = failed(DocumentProblem::tooLarge, -1);
  }
  const std::string answer = report.asText();
  // Without what a program does at its end: to let go of long documents takes a while, what read
  // them may not be in order, and a sanitizer's search for leaks needs calls that are refused here.
  ::_exit(writeAll(STDOUT_FILENO, answer.data(), answer.size()) ? EXIT_SUCCESS : EXIT_FAILURE);
}
