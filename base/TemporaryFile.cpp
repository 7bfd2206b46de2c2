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

Result<TemporaryFile> TemporaryFile::make() {
  std::string path = pattern();
  FileDescriptor descriptor(::mkostemp(path.data(), O_CLOEXEC));
  if (!descriptor) return cannotMake(path);
  return TemporaryFile(std::move(path), std::move(descriptor));
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : mPath(std::exchange(other.mPath, {})), mDescriptor(std::move(other.mDescriptor)) {}

TemporaryFile& TemporaryFile::operator=(TemporaryFile&& other) noexcept {
  std::swap(mPath, other.mPath);
  std::swap(mDescriptor, other.mDescriptor);
  return *this;
}

TemporaryFile::~TemporaryFile() {
  if (!mPath.empty()) ::unlink(mPath.c_str());
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
