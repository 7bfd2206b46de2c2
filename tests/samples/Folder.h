// A folder of a test's own that goes with the test. Other users may enter it, as print filters have
// to.
#pragma once

#include <string>
#include <vector>

namespace cutline::tests {

class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::string& path() const { return mPath; }
  std::string operator/(const std::string& name) const { return mPath + '/' + name; }
  // The names in the folder or in one of its own, hidden ones included, sorted.
  std::vector<std::string> names(const std::string& below = {}) const;

 private:
  std::string mPath;
};

std::string contentsOf(const std::string& path);
void write(const std::string& path, const std::string& contents);

}  // namespace cutline::tests
