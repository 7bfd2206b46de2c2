// Shapes the text of a label in any script: measured and drawn in multiples of the font's size,
// because a text is the same at every size.
#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>
#include <string>
#include <string_view>

namespace cutline {

enum class Wrapping {
  none,
  words,     // a word that is longer than the width stays whole
  anywhere,  // such a word is broken
};

// What a shaped text covers, in multiples of the font's size: its lines and whatever of its ink
// lies beside them. From the point where it is drawn, y downwards.
struct TextBlock {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  int lines = 0;
  bool isRightToLeft = false;
};

class TextShaper {
 public:
  // A family that is not installed, or an empty one, gives way to the system's sans-serif.
  explicit TextShaper(const std::string& family);

  // `width` counts where there is wrapping.
  TextBlock shape(std::string_view text, Wrapping wrapping = Wrapping::none, double width = 0);
  // The text that was shaped last, in black.
  void draw(cairo_t* canvas, double size);

 private:
  struct Released {
    void operator()(void* object) const noexcept { g_object_unref(object); }
  };
  std::unique_ptr<PangoLayout, Released> mLayout;
};

}  // namespace cutline
