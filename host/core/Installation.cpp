#include "host/core/Installation.h"

#include <filesystem>

namespace cutline {

Installation Installation::ofThisProgram() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return Installation(program.parent_path().parent_path().string());
}

std::string Installation::modulePath(const std::string& fileName) const {
  return mPrefix + "/lib/cutline/" + fileName;
}

std::string Installation::helperDirectory() const { return mPrefix + "/lib/cutline"; }

std::string Installation::plugInDirectory() const { return mPrefix + "/lib/cutline/plugins"; }

std::string Installation::sampleDirectory() const { return mPrefix + "/share/cutline/samples"; }

std::string Installation::translationDirectory() const {
  return mPrefix + "/share/cutline/translations";
}

std::string Installation::iconPath(int side) const {
  const std::string length = std::to_string(side);
  return mPrefix + "/share/icons/hicolor/" + length + 'x' + length + "/apps/cutline.png";
}

std::string Installation::cutWordsPath() const { return mPrefix + "/share/cutline/cut-words.txt"; }

}  // namespace cutline
