// Libraries that a window's toolkit brings along, with others of theirs, and that a dialog hardly
// ever calls. A stand-in shows the same functions, and loads the library when the first of them is
// called.
#pragma once

namespace cutline {

// Loads the stand-ins below the folder of the program's parts, each while its library is the very
// one that it was made for. Before the toolkit is loaded, which takes the libraries of their names
// that are there; one that is missing is not stood in for.
void loadStandIns(const char* folder) noexcept;

}  // namespace cutline
