#include "cups/DocumentFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

namespace cutline {

namespace {

struct Signature {
  std::string_view bytes;
  std::string_view format;
};

constexpr std::array kSignatures = std::to_array<Signature>({
    {"%PDF-", "application/pdf"},
    {"%!", "application/postscript"},
    {"\x04%!", "application/postscript"},
    {"\x89PNG\r\n\x1a\n", "image/png"},
    {"\xff\xd8\xff", "image/jpeg"},
});

// A PDF may have other bytes before its header.
constexpr std::size_t kPdfHeaderReach = 1024;
// As much of a document's beginning as tells a text from other bytes.
constexpr std::size_t kStart = 65536;

bool isControl(char c) {
  constexpr std::string_view kTextControls = "\t\n\f\r\b\x1b";
  const auto byte = static_cast<unsigned char>(c);
  return byte == 0x7f || (byte < 0x20 && kTextControls.find(c) == std::string_view::npos);
}

}  // namespace

std::string documentFormat(std::string_view start) {
  for (const Signature& signature : kSignatures) {
    if (start.starts_with(signature.bytes)) return std::string(signature.format);
  }
  const std::string_view reach = start.substr(0, kPdfHeaderReach);
  if (reach.find("%PDF-") != std::string_view::npos) return "application/pdf";
  const bool isText = !start.empty() && std::ranges::none_of(start, isControl);
  return isText ? "text/plain" : "application/octet-stream";
}

Error unreadable(const std::string& path, Sentence reason) {
  return Sentence(Phrase("cups", "cannot read the document \"%1\": %2"), {path, std::move(reason)});
}

// The kind of file comes first: to open a pipe could wait for ever.
Result<DocumentFile> DocumentFile::open(const std::string& path) {
  std::error_code problem;
  const auto kind = std::filesystem::status(path, problem).type();
  if (problem) return unreadable(path, problem.message());
  if (kind == std::filesystem::file_type::directory)
    return unreadable(path, Phrase("cups", "it is a folder"));
  if (kind != std::filesystem::file_type::regular)
    return unreadable(path, Phrase("cups", "it is not a file"));
  DocumentFile document{std::ifstream(path, std::ios::binary), "", "", 0};
  if (!document.stream) return unreadable(path, std::string(std::strerror(errno)));
  document.size = std::filesystem::file_size(path, problem);
  if (problem) return unreadable(path, problem.message());
  if (document.size == 0) return unreadable(path, Phrase("cups", "it is empty"));
  std::string start(std::min<std::uint64_t>(kStart, document.size), '\0');
  document.stream.read(start.data(), static_cast<std::streamsize>(start.size()));
  start.resize(static_cast<std::size_t>(document.stream.gcount()));
  document.stream.clear();
  document.stream.seekg(0);
  document.format = documentFormat(start);
  document.name = std::filesystem::path(path).filename();
  return document;
}

}  // namespace cutline
