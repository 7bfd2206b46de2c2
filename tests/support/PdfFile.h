// PDF files with as many pages and such locks as a test needs.
#pragma once

#include <string>

namespace cutline::test {

struct PdfLock {
  std::string password;   // needed to read it; none when empty
  bool mayPrint = true;   // what the owner allows whoever reads it
  bool isLocked = false;  // whether the file is encrypted at all
};

// Writes a PDF of empty labels. Throws when that fails.
void writePdf(const std::string& path, int pages, const PdfLock& lock = {});

}  // namespace cutline::test
