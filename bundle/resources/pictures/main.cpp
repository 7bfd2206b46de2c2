// cutline_pictures DIRECTORY: writes the pictures of the cut panel's preview into the directory.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "bundle/resources/pictures/Names.h"
#include "bundle/resources/pictures/Picture.h"

namespace {

bool writePicture(const std::filesystem::path& directory, std::string_view name) {
  const std::filesystem::path path = directory / cutline::pictures::fileNameOf(name);
  std::ofstream file(path, std::ios::binary);
  file << cutline::pictures::pictureOf(name);
  file.close();
  if (file.fail()) std::fprintf(stderr, "cutline_pictures: cannot write %s\n", path.c_str());
  return !file.fail();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: cutline_pictures DIRECTORY\n");
    return 2;
  }
  for (const std::string_view name : cutline::pictures::kPictureNames) {
    if (!writePicture(argv[1], name)) return 1;
  }
  return 0;
}
