// The dialog's icons: strokes of one width in the colour of the text beside them, so that they are
// sharp at every scale and fit light and dark.
#pragma once

#include <QIcon>

namespace cutline {

enum class Glyph { closed, opened, open, undo, redo, save, remove, previous, next, fewer, more };

QIcon icon(Glyph glyph);

}  // namespace cutline
