// A PDF that is drawn page by page and kept in memory.
#pragma once

#include <cairo.h>

#include <memory>
#include <optional>
#include <string>

#include "composition/typeset/Typesetter.h"

namespace cutline {

class PdfCanvas {
 public:
  PdfCanvas();

  // Where the page is drawn, of this size in points; ended by the next page, or by finish().
  cairo_t* startPage(double width, double height);
  // The file's bytes; the canvas takes no more. Nothing when there was not enough memory for it.
  std::optional<std::string> finish();

 private:
  struct Released {
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
    void operator()(cairo_t* canvas) const noexcept { cairo_destroy(canvas); }
  };
  static cairo_status_t keep(void* file, const unsigned char* bytes, unsigned count) noexcept;

  // In the order that the surface needs while it ends.
  std::string mFile;
  std::unique_ptr<cairo_surface_t, Released> mSurface;
  std::unique_ptr<cairo_t, Released> mCanvas;
};

}  // namespace cutline
