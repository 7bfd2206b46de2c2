#include "composition/typeset/Drawing.h"

#include <librsvg/rsvg.h>

#include <memory>
#include <optional>

#include "composition/typeset/PdfCanvas.h"

namespace cutline {
namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPointsPerPixel = 72 / kPixelsPerInch;
// As large as a PDF's page may be.
constexpr double kMostPoints = 14'400;

struct Released {
  void operator()(RsvgHandle* drawing) const noexcept { g_object_unref(drawing); }
};
using Handle = std::unique_ptr<RsvgHandle, Released>;

// The part of the drawing that is the page, in its pixels.
struct DrawingView {
  RsvgRectangle area{0, 0, 0, 0};
  bool isStated = true;
};

// No file that it could refer to is near it: it gets no place of its own.
Handle readDrawing(std::string_view svg) {
  Handle drawing(
      rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), nullptr));
  if (drawing) rsvg_handle_set_dpi(drawing.get(), kPixelsPerInch);
  return drawing;
}

// What it says of itself, or its proportions, or as much as is drawn.
std::optional<DrawingView> viewOf(RsvgHandle* drawing) {
  DrawingView view;
  RsvgRectangle& area = view.area;
  if (rsvg_handle_get_intrinsic_size_in_pixels(drawing, &area.width, &area.height)) return view;
  view.isStated = false;
  gboolean hasBox = FALSE;
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(drawing, nullptr, nullptr, nullptr, nullptr, &hasBox, &box);
  if (hasBox) {
    area.width = box.width;
    area.height = box.height;
    return view;
  }
  if (!rsvg_handle_get_geometry_for_element(drawing, nullptr, &area, nullptr, nullptr))
    return std::nullopt;
  return view;
}

bool isPaper(const RsvgRectangle& area) {
  const auto isLength = [](double pixels) {
    return pixels > 0 && pixels * kPointsPerPixel <= kMostPoints;
  };
  return isLength(area.width) && isLength(area.height);
}

bool failed(TypesetProblem& problem, DocumentProblem reason) {
  problem = {reason, {}};
  return false;
}

}  // namespace

bool drawingPage(std::string_view svg, TypesetPages& pages, TypesetProblem& problem) {
  const Handle drawing = readDrawing(svg);
  if (!drawing) return failed(problem, DocumentProblem::damaged);
  const std::optional<DrawingView> view = viewOf(drawing.get());
  if (!view) return failed(problem, DocumentProblem::empty);
  const RsvgRectangle& area = view->area;
  if (!isPaper(area)) return failed(problem, DocumentProblem::badSize);
  PdfCanvas pdf;
  cairo_t* canvas = pdf.startPage(area.width * kPointsPerPixel, area.height * kPointsPerPixel);
  cairo_scale(canvas, kPointsPerPixel, kPointsPerPixel);
  cairo_translate(canvas, -area.x, -area.y);
  const RsvgRectangle whole{0, 0, area.width, area.height};
  const bool isDrawn = rsvg_handle_render_document(drawing.get(), canvas, &whole, nullptr) != FALSE;
  std::optional<std::string> file = pdf.finish();
  if (!isDrawn) return failed(problem, DocumentProblem::damaged);
  if (!file) return failed(problem, DocumentProblem::tooLarge);
  pages = {std::move(*file), view->isStated};
  return true;
}

}  // namespace cutline
