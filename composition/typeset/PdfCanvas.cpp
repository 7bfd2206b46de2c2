#include "composition/typeset/PdfCanvas.h"

#include <cairo-pdf.h>

#include <new>
#include <utility>

namespace cutline {

// The first page's size is set when it starts.
PdfCanvas::PdfCanvas() : mSurface(cairo_pdf_surface_create_for_stream(&keep, &mFile, 1, 1)) {}

cairo_status_t PdfCanvas::keep(void* file, const unsigned char* bytes, unsigned count) noexcept {
  try {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::bad_alloc&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

cairo_t* PdfCanvas::startPage(double width, double height) {
  if (mCanvas) cairo_show_page(mCanvas.get());
  cairo_pdf_surface_set_size(mSurface.get(), width, height);
  mCanvas.reset(cairo_create(mSurface.get()));
  return mCanvas.get();
}

std::optional<std::string> PdfCanvas::finish() {
  const bool isDrawn = !mCanvas || cairo_status(mCanvas.get()) == CAIRO_STATUS_SUCCESS;
  mCanvas.reset();
  cairo_surface_finish(mSurface.get());
  if (!isDrawn || cairo_surface_status(mSurface.get()) != CAIRO_STATUS_SUCCESS) return std::nullopt;
  return std::move(mFile);
}

}  // namespace cutline
