#include "host/core/DocumentCheck.h"

#include <array>
#include <cstdint>
#include <istream>
#include <string_view>

#include "composition/PageRanges.h"
#include "host/core/Installation.h"
#include "host/core/Module.h"
#include "host/core/PdfInspection.h"

namespace cutline {

namespace {

using InspectFunction = void (*)(const std::string&, PdfFacts&) noexcept;
using Facts = Result<DocumentFacts>;

constexpr Phrase kDamagedPdf("host", "the PDF is damaged; open it elsewhere and save it again");

struct StateText {
  PdfState state;
  Phrase text;
};
constexpr std::array kStateTexts = std::to_array<StateText>({
    {PdfState::damaged, kDamagedPdf},
    {PdfState::locked, Phrase("host", "the PDF is locked with a password; save it without one")},
    {PdfState::unprintable,
     Phrase("host", "the PDF is locked against printing; ask its owner for another one")},
});

Facts factsOf(const std::string& path, const PdfFacts& pdf) {
  for (const StateText& row : kStateTexts)
    if (row.state == pdf.state) return unreadable(path, row.text);
  if (pdf.pages < 1) return unreadable(path, Phrase("host", "the PDF has no pages"));
  return DocumentFacts{"application/pdf", pdf.pages};
}

Facts checkPdf(const std::string& path, DocumentFile&) {
  const Installation installation = Installation::ofThisProgram();
  const Result<void*> function =
      loadModule(installation.modulePath(kPdfModuleName), kPdfBuildSymbol, kPdfInspectSymbol);
  if (!function) return function.error();
  PdfFacts pdf;
  reinterpret_cast<InspectFunction> (*function)(path, pdf);
  return factsOf(path, pdf);
}

// A chunk is its length, four letters, that many bytes and a sum.
constexpr std::size_t kPngSignature = 8;
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kChunkSum = 4;

std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8U | static_cast<unsigned char>(byte);
  return number;
}

// Whether all of a picture is there: its chunks follow each other up to the one that ends it.
bool isWholePng(std::istream& stream, std::uint64_t size) {
  std::array<char, kChunkHead> head{};
  for (std::uint64_t at = kPngSignature; at + kChunkHead + kChunkSum <= size;) {
    stream.seekg(static_cast<std::streamoff>(at));
    if (!stream.read(head.data(), head.size())) return false;
    const std::string_view text(head.data(), head.size());
    at += kChunkHead + bigEndian(text.substr(0, 4)) + kChunkSum;
    if (text.substr(4) == "IEND") return at <= size;
  }
  return false;
}

Facts checkPng(const std::string& path, DocumentFile& file) {
  if (isWholePng(file.stream, file.size)) return DocumentFacts{file.format, 1};
  return unreadable(path,
                    Phrase("host", "the picture is damaged; open it elsewhere and save it again"));
}

// A picture that breaks off is printed as far as it goes.
Facts checkJpeg(const std::string&, DocumentFile& file) { return DocumentFacts{file.format, 1}; }

struct Check {
  std::string_view format;
  Facts (*run)(const std::string&, DocumentFile&);
};
constexpr std::array kChecks = std::to_array<Check>(
    {{"application/pdf", checkPdf}, {"image/png", checkPng}, {"image/jpeg", checkJpeg}});

}  // namespace

Result<DocumentFacts> checkDocument(const std::string& path) {
  Result<DocumentFile> file = DocumentFile::open(path);
  if (!file) return file.error();
  for (const Check& check : kChecks)
    if (check.format == file->format) return check.run(path, *file);
  return DocumentFacts{file->format, std::nullopt};
}

Error damagedPdf(const std::string& path) { return unreadable(path, kDamagedPdf); }

Result<Done> checkPages(const DocumentFacts& document, const OptionList& options) {
  for (const auto& [name, value] : options) {
    if (name != "page-ranges") continue;
    const Result<PageRanges> ranges = PageRanges::parse(value);
    if (!ranges) return ranges.error();
    if (document.pages) return ranges->checkWithin(*document.pages);
  }
  return Done{};
}

}  // namespace cutline
