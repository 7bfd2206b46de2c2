#include "composition/typeset/TextShaper.h"

#include <algorithm>

namespace cutline {
namespace {

// Large enough that the library's whole units are finer than anybody sees.
constexpr double kReference = 32;
constexpr double kUnit = kReference * PANGO_SCALE;
constexpr char kUsualFamily[] = "Sans";

struct FreedDescription {
  void operator()(PangoFontDescription* font) const noexcept { pango_font_description_free(font); }
};
struct FreedOptions {
  void operator()(cairo_font_options_t* options) const noexcept {
    cairo_font_options_destroy(options);
  }
};

// Nothing is moved to whole pixels: there are none in a PDF.
PangoContext* newContext() {
  PangoContext* context = pango_font_map_create_context(pango_cairo_font_map_get_default());
  const std::unique_ptr<cairo_font_options_t, FreedOptions> options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(context, options.get());
  pango_context_set_round_glyph_positions(context, FALSE);
  return context;
}

PangoWrapMode modeOf(Wrapping wrapping) {
  return wrapping == Wrapping::words ? PANGO_WRAP_WORD : PANGO_WRAP_WORD_CHAR;
}

}  // namespace

TextShaper::TextShaper(const std::string& family) {
  const std::unique_ptr<PangoContext, Released> context(newContext());
  mLayout.reset(pango_layout_new(context.get()));
  const std::unique_ptr<PangoFontDescription, FreedDescription> font(pango_font_description_new());
  pango_font_description_set_family(font.get(), family.empty() ? kUsualFamily : family.c_str());
  pango_font_description_set_absolute_size(font.get(), kUnit);
  pango_layout_set_font_description(mLayout.get(), font.get());
}

TextBlock TextShaper::shape(std::string_view text, Wrapping wrapping, double width) {
  PangoLayout* layout = mLayout.get();
  pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
  pango_layout_set_width(layout, wrapping == Wrapping::none ? -1 : static_cast<int>(width * kUnit));
  pango_layout_set_wrap(layout, modeOf(wrapping));
  PangoRectangle ink;
  PangoRectangle lines;
  pango_layout_get_extents(layout, &ink, &lines);
  const int left = std::min(ink.x, lines.x);
  const int top = std::min(ink.y, lines.y);
  const int right = std::max(ink.x + ink.width, lines.x + lines.width);
  const int bottom = std::max(ink.y + ink.height, lines.y + lines.height);
  return {left / kUnit,
          top / kUnit,
          (right - left) / kUnit,
          (bottom - top) / kUnit,
          pango_layout_get_line_count(layout),
          pango_layout_get_direction(layout, 0) == PANGO_DIRECTION_RTL};
}

void TextShaper::draw(cairo_t* canvas, double size) {
  cairo_save(canvas);
  cairo_set_source_rgb(canvas, 0, 0, 0);
  cairo_scale(canvas, size / kReference, size / kReference);
  pango_cairo_show_layout(canvas, mLayout.get());
  cairo_restore(canvas);
}

}  // namespace cutline
