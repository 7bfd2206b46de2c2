// The libraries of code that the loaders' tests put into bundles and folders.
#pragma once

#include <filesystem>
#include <string>

namespace cutline::test {

// Where the build put one, without links.
inline std::string builtModule(const std::string& name) {
  return std::filesystem::canonical(CUTLINE_BUILD_DIR "/tests/modules/" + name + ".so");
}

// Puts a whole bundle together in a folder, with such code; answers its path.
std::filesystem::path makeBundle(const std::filesystem::path& folder, const std::string& module,
                                 const std::string& name = "Test");
// Where the code of a bundle is.
std::filesystem::path codeOf(const std::filesystem::path& bundle);

// Takes the right to write away from group and others, from the path downwards.
void makePrivate(const std::filesystem::path& path);

}  // namespace cutline::test
