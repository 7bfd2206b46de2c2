#include "composition/reader/OpenedDocument.h"

#include <algorithm>
#include <array>
#include <utility>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/DocumentKind.h"
#include "composition/reader/JpegSource.h"
#include "composition/reader/PictureReader.h"
#include "composition/reader/PngSource.h"
#include "composition/reader/Refusal.h"
#include "composition/reader/TextLayout.h"

namespace cutline {
namespace {

struct Opening {
  int descriptor;
  DocumentKind kind;
  const CompositionRequest& request;
  const ReaderModules& modules;
};

template <typename Module>
Module& needed(Module* module) {
  if (module == nullptr) throw Refusal{DocumentProblem::missingModule, {}};
  return *module;
}

OpenedDocument openText(const Opening& opening) {
  const CompositionRequest& request = opening.request;
  LayoutSettings layout = request.layout;
  layout.turn = textTurn(request.label, layout.turn);
  TypesetPages pages;
  TypesetProblem problem;
  if (!needed(opening.modules.typesetter)
           .setText(contentsOf(opening.descriptor), textRoom(request, layout.turn), request.text,
                    request.pages.neededFirst(), pages, problem))
    throw Refusal{problem.problem, problem.detail};
  return {std::make_unique<PdfSource>(std::move(pages)), layout, request.pages.neededFirst() > 0};
}

OpenedDocument openDrawing(const Opening& opening) {
  TypesetPages pages;
  TypesetProblem problem;
  if (!needed(opening.modules.typesetter)
           .setDrawing(contentsOf(opening.descriptor), pages, problem))
    throw Refusal{problem.problem, problem.detail};
  return {std::make_unique<PdfSource>(std::move(pages)), opening.request.layout};
}

OpenedDocument openPdf(const Opening& opening) {
  const CompositionRequest& request = opening.request;
  auto source = std::make_unique<PdfSource>(opening.descriptor, request.pages.neededFirst());
  const bool isPartial = source->isPartial();
  return {std::move(source), request.layout, isPartial};
}

template <typename Source>
OpenedDocument openFile(const Opening& opening) {
  return {std::make_unique<Source>(opening.descriptor), opening.request.layout};
}

OpenedDocument openPicture(const Opening& opening) {
  return {needed(opening.modules.pictures).open(opening.kind, opening.descriptor),
          opening.request.layout};
}

struct Reader {
  DocumentKind kind;
  OpenedDocument (*open)(const Opening&);
};
constexpr std::array kReaders = std::to_array<Reader>({
    {DocumentKind::pdf, openPdf},
    {DocumentKind::png, openFile<PngSource>},
    {DocumentKind::jpeg, openFile<JpegSource>},
    {DocumentKind::tiff, openPicture},
    {DocumentKind::webp, openPicture},
    {DocumentKind::svg, openDrawing},
    {DocumentKind::text, openText},
});

}  // namespace

OpenedDocument openDocument(int descriptor, const CompositionRequest& request,
                            const ReaderModules& modules) {
  const DocumentKind kind = documentKind(startOf(descriptor, kDocumentStart));
  const auto* reader = std::ranges::find(kReaders, kind, &Reader::kind);
  if (reader == kReaders.end()) throw Refusal{DocumentProblem::unknownKind, {}};
  return reader->open({descriptor, kind, request, modules});
}

OpenedDocument openedBefore(std::unique_ptr<PdfSource> source, const CompositionRequest& request) {
  return {std::move(source), request.layout};
}

}  // namespace cutline
