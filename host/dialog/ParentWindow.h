// The dialog as a part of another program's window.
#pragma once

#include <string>

class QWidget;

namespace cutline {

// Keeps the dialog in front of the window that `name` has in portals: "x11:" and the window's
// number in hex. Where the display is none of X11's, or the name says something else, nothing
// changes. Before the dialog is shown.
void setParentWindow(QWidget& dialog, const std::string& name);

}  // namespace cutline
