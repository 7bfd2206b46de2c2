// What the code under test asks libcups about a PPD, in the order in which it asks.
#pragma once

#include <string>
#include <vector>

namespace cutline::test {

// Notes the questions as long as it lives; one at a time. What libcups asks itself while it answers
// is not noted.
class PpdQueries {
 public:
  PpdQueries();
  ~PpdQueries();
  PpdQueries(const PpdQueries&) = delete;
  PpdQueries& operator=(const PpdQueries&) = delete;

  // As in "find LxMirror", "marked LxMirror", "attribute LxTapeType", "mark LxMirror ON".
  const std::vector<std::string>& asked() const { return mAsked; }
  void note(const std::string& question) { mAsked.push_back(question); }

 private:
  std::vector<std::string> mAsked;
};

}  // namespace cutline::test
