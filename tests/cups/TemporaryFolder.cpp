#include "tests/cups/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace cutline::test {

// Under /tmp whatever TMPDIR says: a socket's path must be short.
TemporaryFolder::TemporaryFolder() : mPath("/tmp/cutline-test.XXXXXX") {
  if (!mkdtemp(mPath.data())) throw std::runtime_error("no temporary folder");
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& text) const {
  std::string path = mPath + '/' + name;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

bool TemporaryFolder::isEmpty() const { return std::filesystem::is_empty(mPath); }

std::string fixturePath(const std::string& name) {
  return std::string(CUTLINE_SOURCE_DIR) + "/tests/cups/fixtures/" + name;
}

std::string fixtureText(const std::string& name) {
  std::ifstream file(fixturePath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace cutline::test
