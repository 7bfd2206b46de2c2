#include "samples/printer/StripFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Numbers.h"

namespace cutline::printer {
namespace {

constexpr std::string_view kPace = "pace=";
constexpr unsigned kMaxPace = 60'000;

std::optional<unsigned> paceOf(std::string_view query) {
  if (!query.starts_with(kPace)) return std::nullopt;
  const auto pace = numberIn<unsigned>(query.substr(kPace.size()));
  return pace && *pace <= kMaxPace ? pace : std::nullopt;
}

// None for a % without two digits, and for a NUL, at which the system would cut the path.
std::optional<std::string> unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    unsigned code = static_cast<unsigned char>(text[at]);
    if (text[at] == '%') {
      if (at + 2 >= text.size()) return std::nullopt;
      const auto escaped = numberIn<unsigned>(text.substr(at + 1, 2), 16);
      if (!escaped) return std::nullopt;
      code = *escaped;
      at += 2;
    }
    if (code == 0) return std::nullopt;
    result += static_cast<char>(code);
  }
  return result;
}

// Hidden, so that whoever lists the folder doesn't take it for a result.
std::string patternBeside(const std::string& path) {
  const std::size_t name = path.rfind('/') + 1;
  return path.substr(0, name) + '.' + path.substr(name) + ".XXXXXX";
}

}  // namespace

std::optional<DeviceUri> deviceUriOf(std::string_view text) {
  if (!text.starts_with(kDeviceScheme)) return std::nullopt;
  text.remove_prefix(kDeviceScheme.size());
  if (!text.starts_with(":/")) return std::nullopt;
  text.remove_prefix(1);
  DeviceUri uri;
  if (const std::size_t mark = text.find('?'); mark != std::string_view::npos) {
    const auto pace = paceOf(text.substr(mark + 1));
    if (!pace) return std::nullopt;
    uri.pace = *pace;
    text = text.substr(0, mark);
  }
  auto folder = unescaped(text);
  if (!folder) return std::nullopt;
  uri.folder = std::move(*folder);
  return uri;
}

AtomicFile::AtomicFile(std::string path)
    : mPath(std::move(path)), mTemporary(patternBeside(mPath)) {
  FileDescriptor file(::mkstemp(mTemporary.data()));
  if (!file) return;
  ::fchmod(file.get(), 0644);
  mStream = ::fdopen(file.get(), "wb");
  if (mStream == nullptr)
    ::unlink(mTemporary.c_str());
  else
    file.release();  // the stream closes it
}

AtomicFile::~AtomicFile() {
  if (mStream == nullptr) return;
  (void)std::fclose(mStream);
  ::unlink(mTemporary.c_str());
}

bool AtomicFile::commit() {
  if (mStream == nullptr) return false;
  const bool sound = std::ferror(mStream) == 0;
  const bool closed = std::fclose(std::exchange(mStream, nullptr)) == 0;
  if (sound && closed && std::rename(mTemporary.c_str(), mPath.c_str()) == 0) return true;
  ::unlink(mTemporary.c_str());
  return false;
}

}  // namespace cutline::printer
