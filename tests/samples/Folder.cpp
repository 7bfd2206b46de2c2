#include "tests/samples/Folder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace cutline::tests {

Folder::Folder() : mPath("/tmp/cutline-test.XXXXXX") {
  if (::mkdtemp(mPath.data()) == nullptr) std::abort();
  ::chmod(mPath.c_str(), 0755);
}

Folder::~Folder() {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

std::vector<std::string> Folder::names(const std::string& below) const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(mPath + '/' + below)) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void write(const std::string& path, const std::string& contents) {
  std::ofstream(path, std::ios::binary) << contents;
}

}  // namespace cutline::tests
