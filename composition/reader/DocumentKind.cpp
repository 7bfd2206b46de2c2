#include "composition/reader/DocumentKind.h"

#include <algorithm>
#include <array>

#include "base/Utf8.h"

namespace cutline {
namespace {

using namespace std::string_view_literals;

struct Signature {
  std::string_view bytes;
  DocumentKind kind;
};
constexpr std::array kSignatures = std::to_array<Signature>({
    {"%PDF-"sv, DocumentKind::pdf},
    {"%!"sv, DocumentKind::postScript},
    {"\x04%!"sv, DocumentKind::postScript},
    {"\x89PNG\r\n\x1a\n"sv, DocumentKind::png},
    {"\xff\xd8\xff"sv, DocumentKind::jpeg},
    {"II*\0"sv, DocumentKind::tiff},
    {"MM\0*"sv, DocumentKind::tiff},
    {"II+\0\x08\0"sv, DocumentKind::tiff},
    {"MM\0+\0\x08"sv, DocumentKind::tiff},
});

// A PDF may have other bytes before its header.
constexpr std::size_t kPdfHeaderReach = 1024;
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kBlanks = " \t\r\n";

bool isPdf(std::string_view start) {
  return start.substr(0, kPdfHeaderReach).find("%PDF-") != std::string_view::npos;
}

bool isWebp(std::string_view start) {
  return start.starts_with("RIFF") && start.size() > 8 && start.substr(8).starts_with("WEBP");
}

void skipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

// Skips to behind `end`; to the text's end where there is none.
void skipBehind(std::string_view& text, std::string_view end) {
  const std::size_t at = text.find(end);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
}

// A document type may declare entities, between brackets.
void skipDocumentType(std::string_view& text) {
  const std::size_t end = text.find_first_of("[>");
  const bool hasDeclarations = end != std::string_view::npos && text[end] == '[';
  if (hasDeclarations) skipBehind(text, "]");
  skipBehind(text, ">");
}

// What may stand before the root element of an XML document.
bool skipBeforeRoot(std::string_view& text) {
  skipBlanks(text);
  if (text.starts_with("<!--"))
    skipBehind(text, "-->");
  else if (text.starts_with("<?"))
    skipBehind(text, "?>");
  else if (text.starts_with("<!DOCTYPE"))
    skipDocumentType(text);
  else
    return false;
  return true;
}

bool isSvg(std::string_view text) {
  while (skipBeforeRoot(text)) {
  }
  for (const std::string_view root : {"<svg"sv, "<svg:svg"sv}) {
    if (!text.starts_with(root) || text.size() == root.size()) continue;
    if ((" \t\r\n/>"sv).find(text[root.size()]) != std::string_view::npos) return true;
  }
  return false;
}

bool isTextCharacter(std::int32_t character) {
  constexpr std::string_view kTextControls = "\t\n\r\f";
  if (character < 0) return false;
  if (character < 0x20)
    return kTextControls.find(static_cast<char>(character)) != std::string_view::npos;
  return character < 0x7f || character > 0x9f;
}

bool isText(std::string_view text) {
  while (!text.empty()) {
    if (!isTextCharacter(takeCharacter(text))) return false;
  }
  return true;
}

}  // namespace

DocumentKind documentKind(std::string_view start) {
  for (const Signature& signature : kSignatures) {
    if (start.starts_with(signature.bytes)) return signature.kind;
  }
  if (isWebp(start)) return DocumentKind::webp;
  if (isPdf(start)) return DocumentKind::pdf;
  const bool isCut = start.size() >= kDocumentStart;
  if (start.starts_with(kByteOrderMark)) start.remove_prefix(kByteOrderMark.size());
  if (isCut) start = withoutCutCharacter(start);
  if (start.empty() || !isText(start)) return DocumentKind::unknown;
  return isSvg(start) ? DocumentKind::svg : DocumentKind::text;
}

}  // namespace cutline
