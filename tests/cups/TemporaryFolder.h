// A folder of its own for a test, gone again when it ends.
#pragma once

#include <string>

namespace cutline::test {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const noexcept { return mPath; }
  // Writes a file in the folder and gives its path.
  std::string write(const std::string& name, const std::string& text) const;
  bool isEmpty() const;

 private:
  std::string mPath;
};

// The contents of a file of the tests' fixtures.
std::string fixtureText(const std::string& name);
std::string fixturePath(const std::string& name);

}  // namespace cutline::test
