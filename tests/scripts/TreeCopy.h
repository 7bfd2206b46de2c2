// A copy of the sources, which scripts check with one thing changed.
#pragma once

#include <stdexcept>
#include <string>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

class TreeCopy {
 public:
  // `folders` are those of the tree, with blanks between them.
  explicit TreeCopy(const std::string& folders) {
    outputOf("cd " + quoted(source("")) + " && cp -r " + folders + ' ' + quoted(mFolder.path()));
  }

  // The path of a file of the copy.
  std::string operator/(const std::string& path) const { return mFolder / path; }
  std::string write(const std::string& path, const std::string& bytes) const {
    return mFolder.write(path, bytes);
  }
  // Runs a script of the copy.
  CommandResult run(const std::string& commandLine) const {
    return test::run("cd " + quoted(mFolder.path()) + " && " + commandLine);
  }

 private:
  TemporaryFolder mFolder;
};

}  // namespace cutline::test
