// The folder in which the virtual printer stores what it prints: the printer's address names it, as
// in cutline-strip:/FOLDER[?pace=MILLISECONDS], and a file appears there whole or not at all.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace cutline::printer {

inline constexpr std::string_view kDeviceScheme = "cutline-strip";

struct DeviceUri {
  std::string folder;  // absolute
  unsigned pace = 0;   // milliseconds that a label takes, to have time to watch, or to cancel
};

// None when the text is no such URI. Escapes like %20 are resolved.
std::optional<DeviceUri> deviceUriOf(std::string_view text);

// A file that appears whole under its name or not at all.
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
