// The colours of the program in light and dark surroundings.
#pragma once

#include <QPalette>

namespace cutline {

QPalette lightPalette();
QPalette darkPalette();

bool isDark(const QPalette& palette);

// The style of the whole program. Before the application is made it spares the loading of another.
void applyStyle();

// The palette of the whole program: dark when asked for, or when the desktop's own colours are
// dark; light otherwise.
void applyAppearance(bool dark);

}  // namespace cutline
