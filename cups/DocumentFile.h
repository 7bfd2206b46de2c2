// The file of a document that is to be printed.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "base/Result.h"

namespace cutline {

// The MIME type for the first bytes of a document; "application/octet-stream", which lets the
// server find out, where they are nothing that is known here.
std::string documentFormat(std::string_view start);

struct DocumentFile {
  // Opens a document for reading. A missing, empty or unreadable file, and what is no file, is an
  // error that names the path.
  static Result<DocumentFile> open(const std::string& path);

  std::ifstream stream;    // at the beginning
  std::string name;        // without the folder
  std::string format;      // as documentFormat says
  std::uint64_t size = 0;  // in bytes
};

// What people hear of a document that cannot be printed, the same for every reason.
Error unreadable(const std::string& path, Sentence reason);

}  // namespace cutline
