// A folder of a test's own that goes with the test. Other users may enter it, as print filters have
// to.
#pragma once

#include <string>
#include <vector>

namespace cutline::test {

class TemporaryFolder {
 public:
  // Throws where there can be none.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const noexcept { return mPath; }
  // The path of a file in the folder.
  std::string operator/(const std::string& name) const { return mPath + '/' + name; }
  // Writes a file in the folder and gives its path; folders on the way are made.
  std::string write(const std::string& name, const std::string& bytes) const;
  // The names in the folder or in one of its own, hidden ones included, sorted.
  std::vector<std::string> names(const std::string& below = {}) const;
  bool isEmpty() const { return names().empty(); }

 private:
  std::string mPath;
};

void writeFile(const std::string& path, const std::string& bytes);
// The bytes of a file; none when it can't be read.
std::string contentsOf(const std::string& path);

}  // namespace cutline::test
