#include "base/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

namespace cutline {
namespace {

// A path in the temporary directory, whose last letters the system chooses.
std::string pattern() {
  std::error_code problem;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(problem);
  return ((problem ? std::filesystem::path("/tmp") : folder) / "cutline-XXXXXX").string();
}

Error cannotMake(const std::string& path) {
  return Sentence(Phrase("base", "%1: cannot keep the document: %2"),
                  {path, std::string(std::strerror(errno))});
}

}  // namespace

// No name is left behind, however the program ends. Some file systems give none without a name;
// there it is taken away at once.
Result<TemporaryFile> TemporaryFile::make() {
  constexpr mode_t kMode = 0600;
  std::string path = pattern();
  const std::string folder = std::filesystem::path(path).parent_path();
  FileDescriptor descriptor(::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kMode));
  if (!descriptor) {
    descriptor = FileDescriptor(::mkostemp(path.data(), O_CLOEXEC));
    if (!descriptor) return cannotMake(path);
    ::unlink(path.c_str());
  }
  std::string open = "/proc/self/fd/" + std::to_string(descriptor.get());
  return TemporaryFile(std::move(open), std::move(descriptor));
}

Result<TemporaryFolder> TemporaryFolder::make() {
  std::string path = pattern();
  if (!::mkdtemp(path.data())) return cannotMake(path);
  return TemporaryFolder(std::move(path));
}

TemporaryFolder::TemporaryFolder(TemporaryFolder&& other) noexcept
    : mPath(std::exchange(other.mPath, {})) {}

TemporaryFolder& TemporaryFolder::operator=(TemporaryFolder&& other) noexcept {
  std::swap(mPath, other.mPath);
  return *this;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!mPath.empty()) std::filesystem::remove_all(mPath, ignored);
}

}  // namespace cutline
