#include "composition/reader/OpenedDocument.h"

#include <algorithm>
#include <array>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/DocumentKind.h"
#include "composition/reader/JpegSource.h"
#include "composition/reader/PdfSource.h"
#include "composition/reader/PngSource.h"
#include "composition/reader/Refusal.h"
#include "composition/reader/TextLayout.h"
#include "composition/reader/TiffSource.h"
#include "composition/reader/WebpSource.h"

namespace cutline {
namespace {

// How many labels of a text are needed; 0 for all. They are all needed where not the first ones are
// chosen.
int neededLabels(const PageSelection& pages) {
  const bool isFromBeginning =
      pages.ranges.text().empty() && pages.set == PageSet::all && !pages.isReversed;
  return isFromBeginning ? pages.most : 0;
}

struct Opening {
  int descriptor;
  const CompositionRequest& request;
  Typesetter* typesetter;

  Typesetter& needTypesetter() const {
    if (typesetter == nullptr) throw Refusal{DocumentProblem::missingModule, {}};
    return *typesetter;
  }
};

OpenedDocument openText(const Opening& opening) {
  const CompositionRequest& request = opening.request;
  LayoutSettings layout = request.layout;
  layout.turn = textTurn(request.label, layout.turn);
  TypesetPages pages;
  TypesetProblem problem;
  if (!opening.needTypesetter().setText(contentsOf(opening.descriptor),
                                        textRoom(request, layout.turn), request.text,
                                        neededLabels(request.pages), pages, problem))
    throw Refusal{problem.problem, problem.detail};
  return {std::make_unique<PdfSource>(std::move(pages)), layout, neededLabels(request.pages) > 0};
}

OpenedDocument openDrawing(const Opening& opening) {
  TypesetPages pages;
  TypesetProblem problem;
  if (!opening.needTypesetter().setDrawing(contentsOf(opening.descriptor), pages, problem))
    throw Refusal{problem.problem, problem.detail};
  return {std::make_unique<PdfSource>(std::move(pages)), opening.request.layout};
}

template <typename Source>
OpenedDocument openFile(const Opening& opening) {
  return {std::make_unique<Source>(opening.descriptor), opening.request.layout};
}

struct Reader {
  DocumentKind kind;
  OpenedDocument (*open)(const Opening&);
};
constexpr std::array kReaders = std::to_array<Reader>({
    {DocumentKind::pdf, openFile<PdfSource>},
    {DocumentKind::png, openFile<PngSource>},
    {DocumentKind::jpeg, openFile<JpegSource>},
    {DocumentKind::tiff, openFile<TiffSource>},
    {DocumentKind::webp, openFile<WebpSource>},
    {DocumentKind::svg, openDrawing},
    {DocumentKind::text, openText},
});

}  // namespace

OpenedDocument openDocument(int descriptor, const CompositionRequest& request,
                            Typesetter* typesetter) {
  const DocumentKind kind = documentKind(startOf(descriptor, kDocumentStart));
  const auto* reader = std::ranges::find(kReaders, kind, &Reader::kind);
  if (reader == kReaders.end()) throw Refusal{DocumentProblem::unknownKind, {}};
  return reader->open({descriptor, request, typesetter});
}

}  // namespace cutline
