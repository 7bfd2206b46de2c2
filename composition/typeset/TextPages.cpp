#include "composition/typeset/TextPages.h"

#include <algorithm>

#include "base/Utf8.h"
#include "composition/typeset/PdfCanvas.h"
#include "composition/typeset/TextFit.h"
#include "composition/typeset/TextLabels.h"
#include "composition/typeset/TextShaper.h"

namespace cutline {
namespace {

// One line stands in the middle; several begin where their script begins.
double leftOf(const TextBlock& block, double width, double room) {
  const double free = room - width;
  if (block.lines == 1) return free / 2;
  return block.isRightToLeft ? free : 0;
}

// The room without a margin, in its heights, that keeps what lies on its edge from being cut off.
constexpr double kInset = 0.01;
TextRoom inner(const TextRoom& room) {
  const double both = 2 * kInset * room.height;
  return {std::max(room.width - both, 0.0), room.height - both, room.isEndless};
}

void drawLabel(PdfCanvas& pdf, TextShaper& shaper, std::string_view label, const TextFit& fit,
               const TextRoom& room) {
  const TextRoom within = inner(room);
  const TextBlock block = shaped(shaper, label, fit, within);
  const double width = block.width * fit.size;
  const double margin = (room.height - within.height) / 2;
  const double pageWidth = room.isEndless ? width + 2 * margin : room.width;
  cairo_t* canvas = pdf.startPage(pageWidth, room.height);
  // Of what is too large the beginning is seen.
  const double left = std::max(leftOf(block, width, pageWidth - 2 * margin), 0.0) + margin;
  const double top = std::max((room.height - block.height * fit.size) / 2, 0.0);
  cairo_translate(canvas, left - block.left * fit.size, top - block.top * fit.size);
  shaper.draw(canvas, fit.size);
}

bool hasRoom(const TextRoom& room) { return room.height > 0 && (room.isEndless || room.width > 0); }

bool failed(TypesetProblem& problem, TypesetProblem reason) {
  problem = std::move(reason);
  return false;
}

}  // namespace

bool textPages(std::string_view text, const TextRoom& room, const TextSettings& settings, int most,
               TypesetPages& pages, TypesetProblem& problem) {
  if (!hasRoom(room)) return failed(problem, {DocumentProblem::badSize, {}});
  if (!isUtf8(text)) return failed(problem, {DocumentProblem::unknownKind, {}});
  const std::string plain = plainText(text);
  const std::vector<std::string_view> labels = labelsOf(plain, settings.unit);
  if (auto reason = problemWith(labels)) return failed(problem, std::move(*reason));

  TextShaper shaper(settings.font);
  const TextFit fit = settings.size > 0 ? TextFit{settings.size, Wrapping::anywhere}
                                        : fitted(shaper, labels, inner(room));
  const std::size_t count =
      most > 0 ? std::min(labels.size(), static_cast<std::size_t>(most)) : labels.size();
  PdfCanvas pdf;
  for (std::size_t at = 0; at < count; ++at) drawLabel(pdf, shaper, labels[at], fit, room);
  std::optional<std::string> file = pdf.finish();
  if (!file) return failed(problem, {DocumentProblem::tooLarge, {}});
  pages = {std::move(*file), true};
  return true;
}

}  // namespace cutline
