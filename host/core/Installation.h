// Where the parts of an installation are, found from the program's own place, so that the whole can
// be moved. The build tree has the same layout.
#pragma once

#include <string>

namespace cutline {

class Installation {
 public:
  // Of the running program (/proc/self/exe): PREFIX/bin/PROGRAM gives PREFIX.
  static Installation ofThisProgram();
  explicit Installation(std::string prefix) : mPrefix(std::move(prefix)) {}

  std::string prefix() const { return mPrefix; }
  std::string modulePath(const std::string& fileName) const;  // PREFIX/lib/cutline/FILENAME
  std::string helperDirectory() const;                        // PREFIX/lib/cutline
  std::string plugInDirectory() const;                        // PREFIX/lib/cutline/plugins
  std::string sampleDirectory() const;                        // PREFIX/share/cutline/samples
  std::string translationDirectory() const;                   // PREFIX/share/cutline/translations
  std::string iconPath(int side) const;                       // a PNG picture of so many dots
  std::string cutWordsPath() const;                           // PREFIX/share/cutline/cut-words.txt

 private:
  std::string mPrefix;
};

}  // namespace cutline
