// A document of any kind, read and laid onto a label as the confined program does it.
#include "composition/reader/DocumentComposer.h"
#include "composition/reader/LibraryPictureReader.h"
#include "composition/typeset/LibraryTypesetter.h"
#include "tests/composition/MemoryFile.h"
#include "tests/fuzz/Insist.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cutline;
  constexpr int kMostPages = 20;
  CompositionRequest request;
  request.label = {100, 200, 10, 20, 90, 180, 0, 90};
  request.names = {"document"};
  request.pages.most = kMostPages;
  LibraryTypesetter typesetter;
  LibraryPictureReader pictures;
  const test::MemoryFile document({reinterpret_cast<const char*>(data), size});
  const test::MemoryFile output;
  const CompositionReport report = DocumentComposer().compose(
      request, {document.descriptor()}, output.descriptor(), {&typesetter, &pictures});
  if (report.failure) return 0;
  fuzz::insist(!report.pages.empty(), "what is composed has pages");
  fuzz::insist(output.bytes().starts_with("%PDF-"), "what is composed is a PDF");
  return 0;
}
