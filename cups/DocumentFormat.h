// What kind of document some bytes begin.
#pragma once

#include <string>
#include <string_view>

namespace cutline {

// The MIME type for the first bytes of a document; "application/octet-stream", which lets the
// server find out, where they are nothing that is known here.
std::string documentFormat(std::string_view start);

}  // namespace cutline
