#include "tests/host/TestCode.h"

#include <fstream>

namespace cutline::test {

namespace {

namespace fs = std::filesystem;

constexpr char kInfo[] =
    "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
    "<key>CFBundleIdentifier</key><string>org.cutline.Test</string>"
    "<key>NSPrincipalClass</key><string>TestPlugIn</string></dict></plist>";

}  // namespace

fs::path makeBundle(const fs::path& folder, const std::string& module, const std::string& name) {
  const fs::path bundle = folder / (name + ".plugin");
  fs::create_directories(bundle / "Contents/Resources");
  fs::create_directories(codeOf(bundle).parent_path());
  std::ofstream(bundle / "Contents/Info.plist") << kInfo;
  fs::copy_file(builtModule(module), codeOf(bundle));
  makePrivate(bundle);
  return bundle;
}

fs::path codeOf(const fs::path& bundle) {
  return bundle / ("Contents/Linux-" CUTLINE_TEST_PROCESSOR) / (bundle.stem().string() + ".so");
}

void makePrivate(const fs::path& path) {
  const auto notOthers = fs::perms::group_write | fs::perms::others_write;
  fs::permissions(path, notOthers, fs::perm_options::remove);
  if (!fs::is_directory(path)) return;
  for (const auto& entry : fs::recursive_directory_iterator(path))
    fs::permissions(entry.path(), notOthers, fs::perm_options::remove);
}

}  // namespace cutline::test
