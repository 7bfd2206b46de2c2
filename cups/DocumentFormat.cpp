#include "cups/DocumentFormat.h"

#include <algorithm>
#include <array>

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

}  // namespace cutline
