// The file of the dump of the print settings.
#pragma once

#include <string_view>

namespace cutline {

// Writes the file "LxPDE_NAME.plist" in the directory, in one step: whoever reads it finds it whole
// or as it was before. It belongs to the user alone (mode 0600); a link of its name is replaced,
// not followed. A name with "/" or NUL is refused. Whether the file was written.
bool writeSettingsFile(int directory, std::string_view name, std::string_view contents);

}  // namespace cutline
