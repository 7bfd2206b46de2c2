// A file that appears whole under its name or not at all.
#pragma once

#include <cstdio>
#include <string>

namespace cutline::printer {

class AtomicFile {
 public:
  // Makes a file beside `path` to write to; stream() is null when that is not possible.
  explicit AtomicFile(std::string path);
  // Removes what was not committed.
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  std::FILE* stream() const { return mStream; }
  // Gives the file its name. No when something could not be written, and then there is no file.
  bool commit();

 private:
  std::string mPath;
  std::string mTemporary;
  std::FILE* mStream = nullptr;
};

}  // namespace cutline::printer
