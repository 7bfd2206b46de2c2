#include "tests/support/TemporaryFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace cutline::test {

// Under /tmp whatever TMPDIR says: a socket's path must be short.
TemporaryFolder::TemporaryFolder() : mPath("/tmp/cutline-test.XXXXXX") {
  if (!::mkdtemp(mPath.data())) throw std::runtime_error("no temporary folder");
  ::chmod(mPath.c_str(), 0755);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
  const std::filesystem::path path = *this / name;
  std::filesystem::create_directories(path.parent_path());
  writeFile(path, bytes);
  return path;
}

std::vector<std::string> TemporaryFolder::names(const std::string& below) const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(*this / below)) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void writeFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace cutline::test
