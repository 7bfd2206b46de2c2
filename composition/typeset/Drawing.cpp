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

enum class DrawnPart {
  sized,   // it says how large it is
  viewed,  // it says what part of it is seen, and so its proportions
  inked,   // whatever it draws
};

// The page in the drawing's pixels.
struct DrawingView {
  double width = 0;
  double height = 0;
  DrawnPart part = DrawnPart::sized;
};

// No file that it could refer to is near it: it gets no place of its own.
Handle readDrawing(std::string_view svg) {
  Handle drawing(
      rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), nullptr));
  if (drawing) rsvg_handle_set_dpi(drawing.get(), kPixelsPerInch);
  return drawing;
}

// Nothing where it draws nothing and says nothing.
std::optional<DrawingView> viewOf(RsvgHandle* drawing) {
  DrawingView view;
  if (rsvg_handle_get_intrinsic_size_in_pixels(drawing, &view.width, &view.height)) return view;
  gboolean hasBox = FALSE;
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(drawing, nullptr, nullptr, nullptr, nullptr, &hasBox, &box);
  if (hasBox) return DrawingView{box.width, box.height, DrawnPart::viewed};
  if (!rsvg_handle_get_geometry_for_element(drawing, nullptr, &box, nullptr, nullptr))
    return std::nullopt;
  return DrawingView{box.width, box.height, DrawnPart::inked};
}

bool draw(RsvgHandle* drawing, const DrawingView& view, cairo_t* canvas) {
  const RsvgRectangle page{0, 0, view.width, view.height};
  if (view.part != DrawnPart::inked)
    return rsvg_handle_render_document(drawing, canvas, &page, nullptr) != FALSE;
  return rsvg_handle_render_element(drawing, canvas, nullptr, &page, nullptr) != FALSE;
}

bool isPaper(const DrawingView& view) {
  const auto isLength = [](double pixels) {
    return pixels > 0 && pixels * kPointsPerPixel <= kMostPoints;
  };
  return isLength(view.width) && isLength(view.height);
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
  if (!isPaper(*view)) return failed(problem, DocumentProblem::badSize);
  PdfCanvas pdf;
  cairo_t* canvas = pdf.startPage(view->width * kPointsPerPixel, view->height * kPointsPerPixel);
  cairo_scale(canvas, kPointsPerPixel, kPointsPerPixel);
  const bool isDrawn = draw(drawing.get(), *view, canvas);
  std::optional<std::string> file = pdf.finish();
  // What could be read and cannot be drawn takes too much: of memory, or of elements.
  if (!isDrawn || !file) return failed(problem, DocumentProblem::tooLarge);
  pages = {std::move(*file), view->part == DrawnPart::sized};
  return true;
}

}  // namespace cutline
