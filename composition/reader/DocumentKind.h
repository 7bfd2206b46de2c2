// What kind a document is, by what it contains, whatever its name says.
#pragma once

#include <cstddef>
#include <string_view>

namespace cutline {

enum class DocumentKind { unknown, pdf, postScript, png, jpeg, tiff, webp, svg, text };

// As much of a document's beginning as tells its kind.
inline constexpr std::size_t kDocumentStart = 65536;

// `start` is the document's first kDocumentStart bytes, or all of it where it is shorter.
DocumentKind documentKind(std::string_view start);

}  // namespace cutline
