#include "samples/printer/AtomicFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace cutline::printer {
namespace {

// Hidden, so that whoever lists the folder doesn't take it for a result.
std::string patternBeside(const std::string& path) {
  const std::size_t name = path.rfind('/') + 1;
  return path.substr(0, name) + '.' + path.substr(name) + ".XXXXXX";
}

}  // namespace

AtomicFile::AtomicFile(std::string path)
    : mPath(std::move(path)), mTemporary(patternBeside(mPath)) {
  const int descriptor = ::mkstemp(mTemporary.data());
  if (descriptor < 0) return;
  ::fchmod(descriptor, 0644);
  mStream = ::fdopen(descriptor, "wb");
  if (mStream != nullptr) return;
  ::close(descriptor);
  ::unlink(mTemporary.c_str());
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
